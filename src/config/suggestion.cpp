#include "suggestion.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "shown_text.h"

namespace vorn::parsers::toml::config
{
namespace
{

constexpr std::size_t maxLength = 40; // longer names are not compared

// How many bytes have to be inserted, removed or replaced to get from one to the other.
std::size_t distanceOf(std::string_view one, std::string_view other)
{
    std::array<std::size_t, maxLength + 1> row{};
    for (std::size_t i = 0; i <= other.size(); ++i)
    {
        row[i] = i;
    }
    for (std::size_t i = 0; i < one.size(); ++i)
    {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < other.size(); ++j)
        {
            const std::size_t replaced = diagonal + (one[i] == other[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row[other.size()];
}

} // namespace

std::string didYouMean(std::string_view word, const std::vector<std::string_view>& names)
{
    std::string_view nearest;
    std::size_t least = word.size() < 4 ? 2 : word.size() < 8 ? 3 : 4;
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
