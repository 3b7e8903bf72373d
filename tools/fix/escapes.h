// Escapes in basic strings of TOML 1.0, except for line-ending backslashes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tool::fixing
{

struct Escape
{
    std::size_t length; // 0 if it is none, or stands for no character
    char32_t code;
};

// The escape that starts with a backslash at an offset.
Escape escapeAt(std::string_view text, std::size_t at);

// Appends a character in UTF-8.
void appendCharacter(std::string& text, char32_t code);

// Appends a character as \UXXXXXXXX.
void appendEscaped(std::string& text, char32_t code);

} // namespace tool::fixing
