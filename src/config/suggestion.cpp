#include "suggestion.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>

#include "shown_text.h"

namespace vorn::parsers::toml::config
{
namespace
{

constexpr std::size_t maxLength = 40; // longer names are not compared

using Row = std::array<std::size_t, maxLength + 1>;

// How many bytes have to be inserted, removed or replaced, or swapped with the next, to get from
// one to the other.
std::size_t distanceOf(std::string_view one, std::string_view other)
{
    Row last{};
    Row row{};
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= one.size(); ++i)
    {
        const Row beforeLast = last;
        last = row;
        row[0] = i;
        for (std::size_t j = 1; j <= other.size(); ++j)
        {
            const bool isSame = one[i - 1] == other[j - 1];
            row[j] = std::min({last[j - 1] + (isSame ? 0 : 1), last[j] + 1, row[j - 1] + 1});
            if (i > 1 && j > 1 && one[i - 1] == other[j - 2] && one[i - 2] == other[j - 1])
            {
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
            }
        }
    }
    return row[other.size()];
}

// About a third of a name may be wrong.
std::size_t maxDistance(std::string_view word)
{
    return word.size() < 2 ? 0 : std::max(std::size_t{1}, (word.size() + 1) / 3);
}

} // namespace

std::string didYouMean(std::string_view word, const std::vector<std::string_view>& names)
{
    std::string_view nearest;
    std::size_t least = maxDistance(word) + 1;
    for (const std::string_view name : names)
    {
        const bool isLong = word.size() > maxLength || name.size() > maxLength;
        const std::size_t distance = isLong ? least : distanceOf(word, name);
        if (distance < least)
        {
            least = distance;
            nearest = name;
        }
    }
    return nearest.empty() ? std::string() : "did you mean " + shown(nearest) + "?";
}

} // namespace vorn::parsers::toml::config
