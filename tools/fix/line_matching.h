// Which lines of two texts correspond.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace tool::fixing
{

// The lines of a text, with their line breaks.
std::vector<std::string_view> linesOf(std::string_view text);

// A run of equal lines.
struct Match
{
    std::size_t before; // the first line's number in each text, counted from 0
    std::size_t after;
    std::size_t count;
};

// Runs of lines that are the same in both, in order.  The last one ends both texts, and may be
// empty.  They are what a reader would expect, not always the most that there are, and take time
// and memory in proportion to the texts.
std::vector<Match> matchLines(const std::vector<std::string_view>& before,
                              const std::vector<std::string_view>& after);

} // namespace tool::fixing
