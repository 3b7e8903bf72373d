// The escapes of strings.
#pragma once

#include <cstdint>

namespace vorn::parsers::toml
{

constexpr int unknownEscape = -1;

// How many hexadecimal digits come after the character that follows a backslash.
constexpr int escapeDigits(std::uint32_t character)
{
    switch (character)
    {
    case '"':
    case '\'':
    case '\\':
    case 'b':
    case 'f':
    case 'n':
    case 'r':
    case 't':
        return 0;
    case 'u':
        return 4;
    case 'U':
        return 8;
    default:
        return unknownEscape;
    }
}

} // namespace vorn::parsers::toml
