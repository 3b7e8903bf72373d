// Classes of bytes, as bits of a table.
#pragma once

#include <array>
#include <cstdint>

namespace vorn::parsers::toml
{

enum CharacterClass : std::uint8_t
{
    binaryDigit = 1,
    octalDigit = 2,
    digit = 4,
    hexDigit = 8,
    letter = 16,
    keyCharacter = 32, // what bare keys are made of
    blank = 64,
};

constexpr std::array<std::uint8_t, 256> makeCharacterClasses()
{
    std::array<std::uint8_t, 256> classes = {};
    for (unsigned c = 0; c < classes.size(); ++c)
    {
        const bool isDigit = c >= '0' && c <= '9';
        const bool isLetter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        const bool isHexLetter = (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
        classes[c] = static_cast<std::uint8_t>(
            (c == '0' || c == '1' ? binaryDigit : 0) | (c >= '0' && c <= '7' ? octalDigit : 0) |
            (isDigit ? digit : 0) | (isDigit || isHexLetter ? hexDigit : 0) |
            (isLetter ? letter : 0) |
            (isDigit || isLetter || c == '_' || c == '-' ? keyCharacter : 0) |
            (c == ' ' || c == '\t' ? blank : 0));
    }
    return classes;
}

inline constexpr std::array<std::uint8_t, 256> characterClasses = makeCharacterClasses();

constexpr bool is(char c, CharacterClass kind)
{
    return (characterClasses[static_cast<unsigned char>(c)] & kind) != 0;
}

// The first position from `at` on that is not of the class.
inline const char* skip(const char* at, const char* end, CharacterClass kind) noexcept
{
    while (at != end && is(*at, kind))
    {
        ++at;
    }
    return at;
}

} // namespace vorn::parsers::toml
