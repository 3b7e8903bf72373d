#pragma once

#include <string_view>

namespace vorn::parsers::toml::diagnosis
{

// How many arrays and inline tables enclose one another in a document, up to its first
// error.  The parser nests as deeply, there; what it makes of the rest is its own affair.
// The text ends with a NUL, as that of a string does.
unsigned documentDepth(std::string_view text);

} // namespace vorn::parsers::toml::diagnosis
