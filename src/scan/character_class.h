// Classes of bytes, as bits of a table.
#pragma once

#include <array>
#include <cstdint>

namespace vorn::parsers::toml
{

enum CharacterClass : std::uint16_t
{
    binaryDigit = 1,
    octalDigit = 2,
    digit = 4,
    hexDigit = 8,
    letter = 16,
    keyCharacter = 32, // what bare keys are made of
    blank = 64,
    skipped = 128,      // blanks and the start of comments
    valueStart = 256,   // values and keys start with these, and no other token does
    keywordStart = 512, // of words that are no keys
};

constexpr bool isFrom(unsigned c, char first, char last)
{
    return c >= static_cast<unsigned>(first) && c <= static_cast<unsigned>(last);
}

constexpr bool isOneOf(unsigned c, const char* members)
{
    for (; *members != '\0'; ++members)
    {
        if (c == static_cast<unsigned>(*members))
        {
            return true;
        }
    }
    return false;
}

constexpr std::uint16_t classesOf(unsigned c)
{
    const bool isDigit = isFrom(c, '0', '9');
    const bool isLetter = isFrom(c, 'A', 'Z') || isFrom(c, 'a', 'z');
    const bool isHexLetter = isFrom(c, 'A', 'F') || isFrom(c, 'a', 'f');
    const bool isOfKey = isDigit || isLetter || isOneOf(c, "_-");
    return static_cast<std::uint16_t>(
        (isFrom(c, '0', '1') ? binaryDigit : 0) | (isFrom(c, '0', '7') ? octalDigit : 0) |
        (isDigit ? digit : 0) | (isDigit || isHexLetter ? hexDigit : 0) | (isLetter ? letter : 0) |
        (isOfKey ? keyCharacter : 0) | (isOneOf(c, " \t") ? blank : 0) |
        (isOneOf(c, " \t#") ? skipped : 0) | (isOfKey || isOneOf(c, "+\"'[{") ? valueStart : 0) |
        (isOneOf(c, "tfin") ? keywordStart : 0));
}

constexpr std::array<std::uint16_t, 256> makeCharacterClasses()
{
    std::array<std::uint16_t, 256> classes = {};
    for (unsigned c = 0; c < classes.size(); ++c)
    {
        classes[c] = classesOf(c);
    }
    return classes;
}

inline constexpr std::array<std::uint16_t, 256> characterClasses = makeCharacterClasses();

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
