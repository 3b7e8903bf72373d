#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tool
{

// A line of source, or a part of it, as a terminal can show it, and the marks below a place.
struct Excerpt
{
    std::string source;
    std::string marks; // blanks and ^~~~
};

// Offsets count from the begin of the line.
Excerpt excerptOf(std::string_view line, std::size_t begin, std::size_t end);

} // namespace tool
