// The escapes of strings in double quotes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vorn::parsers::toml::config
{

// The length of the line break, a line feed with or without a carriage return before it, at an
// offset; 0 if there is none.
std::size_t lineBreakLength(std::string_view text, std::size_t at);

// Appends what the escape stands for whose backslash is at an offset, and returns the escape's
// length; 0 if it is unknown, incomplete, or stands for no character.
std::size_t appendEscaped(std::string& content, std::string_view text, std::size_t at);

// The length of a backslash before a line break, with all blanks and line breaks after it; 0 if
// there is none at that offset.
std::size_t joinedLength(std::string_view text, std::size_t at);

} // namespace vorn::parsers::toml::config
