#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vorn::parsers::toml::diagnosis
{

// A line of source, or part of it, in a form that is safe for terminals, with marks below a place.
struct Excerpt
{
    std::string source;
    std::string marks; // spaces and ^~~~
};

// Offsets count from the start of the line.
Excerpt excerptOf(std::string_view line, std::size_t begin, std::size_t end);

} // namespace vorn::parsers::toml::diagnosis
