// UTF-8, well-formed or not.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vorn::parsers::toml::config
{

constexpr bool isAscii(char c)
{
    return (static_cast<unsigned char>(c) & 0x80) == 0;
}

// The length of the byte order mark that a document starts with; 0 without one.
std::size_t byteOrderMarkLength(std::string_view document);

// The length of the well-formed character at an offset before the end; 1 if the byte is part of
// none.
std::size_t characterLength(std::string_view document, std::size_t at);

// A character as the parser reads it.
struct ReadCharacter
{
    std::uint32_t code;
    std::size_t length; // in bytes
};

// The character that the parser reads at an offset before the end.  Malformed bytes may be one
// that is ASCII otherwise, and may take bytes after them along.
ReadCharacter readCharacter(std::string_view document, std::size_t at);

} // namespace vorn::parsers::toml::config
