#include "suggestion.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace tool
{
namespace
{

// How many characters have to be inserted, removed or replaced to get from one to the other.
std::size_t distanceOf(std::string_view one, std::string_view other)
{
    std::vector<std::size_t> row(other.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
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
    return row.back();
}

} // namespace

std::string suggestionFor(std::string_view word, const std::vector<std::string>& names)
{
    constexpr std::size_t maxLength = 40; // longer words are no names
    std::string nearest;
    std::size_t least = word.size() < 4 ? 2 : word.size() < 8 ? 3 : 4;
    for (const std::string& name : names)
    {
        const std::size_t distance = word.size() > maxLength ? least : distanceOf(word, name);
        if (distance < least)
        {
            least = distance;
            nearest = name;
        }
    }
    return nearest;
}

} // namespace tool
