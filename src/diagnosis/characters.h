// Characters of UTF-8, well-formed or not, as an editor sees them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vorn::parsers::toml::diagnosis
{

struct Character
{
    char32_t code;      // the byte itself if it is not well-formed
    std::size_t length; // in bytes
    bool isWellFormed;
};

// The character at an offset before the end.
Character characterAt(std::string_view text, std::size_t at);

// The first byte, from an offset on, that is not part of a well-formed character; npos if all
// are.
std::size_t findMalformed(std::string_view text, std::size_t from = 0);

std::size_t countCharacters(std::string_view text);

// The first byte of the character that a byte is part of.
std::size_t characterBegin(std::string_view text, std::size_t at);

// U+00E9 and the like.
std::string codeName(char32_t code);

// How a character is shown, and how many columns that takes.  What could command a terminal,
// or is not seen, is shown as \x1B or \u202E.
struct ShownCharacter
{
    std::string text;
    unsigned columns;
};
ShownCharacter shown(std::string_view text, const Character& character, std::size_t at);

// A text in which all characters are shown like that.
std::string printable(std::string_view text);

} // namespace vorn::parsers::toml::diagnosis
