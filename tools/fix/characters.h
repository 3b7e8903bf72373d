// Characters, as TOML 1.0 has them.
#pragma once

#include <cstddef>
#include <string_view>

namespace tool::fixing
{

constexpr bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

constexpr bool isHexDigit(char c)
{
    return isDigit(c) || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

constexpr bool isBareKeyCharacter(char c)
{
    return isDigit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c == '-';
}

// Whether a character may not stand in strings and comments.  Line breaks are among them.
constexpr bool isControl(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return (byte < 0x20 && c != '\t') || byte == 0x7F;
}

// The length of the line break at an offset; 0 if there is none.
constexpr std::size_t newlineLength(std::string_view text, std::size_t at)
{
    if (text.substr(at, 1) == "\n")
    {
        return 1;
    }
    return text.substr(at, 2) == "\r\n" ? 2 : 0;
}

// The end of the blanks at an offset.
constexpr std::size_t blanksEnd(std::string_view text, std::size_t at)
{
    while (at < text.size() && isBlank(text[at]))
    {
        ++at;
    }
    return at;
}

// The first byte, from an offset on, of a character above U+FFFF in well-formed UTF-8; npos
// without one.
constexpr std::size_t findHigh(std::string_view text, std::size_t at = 0)
{
    while (at < text.size() && static_cast<unsigned char>(text[at]) < 0xF0)
    {
        ++at;
    }
    return at < text.size() ? at : std::string_view::npos;
}

constexpr bool hasHigh(std::string_view text)
{
    return findHigh(text) != std::string_view::npos;
}

} // namespace tool::fixing
