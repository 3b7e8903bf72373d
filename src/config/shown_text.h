// Texts of documents in messages: safe to print, and not too long.
#pragma once

#include <string>
#include <string_view>

namespace vorn::parsers::toml::config
{

// A text with escapes for what is invisible or no UTF-8, and "..." after its first 60 bytes.
std::string shown(std::string_view text);

// A text with the same escapes, whole.
std::string printable(std::string_view text);

// A value as a basic string, whole: "a\tb".  Bytes that are no UTF-8 become U+FFFD.
std::string quoted(std::string_view value);

} // namespace vorn::parsers::toml::config
