// Finds the end of a run of characters without a branch for each of them: processors cannot
// predict the lengths of words and numbers.
#pragma once

#include "character_class.h"
#include "packed_bytes.h"

namespace vorn::parsers::toml
{

// Marks, by some of its bits, at least the first byte that is no digit, and none before it.
constexpr PackedBytes nonDigits(PackedBytes word)
{
    // Digits differ from '0' by 0 to 9: adding 6 leaves the upper half of the byte empty.
    const PackedBytes difference = word ^ everywhere('0');
    return (difference | (difference + everywhere(0x06))) & everywhere(0xF0);
}

// The high bit of each byte that is from `first` to `last`, of bytes below 0x80.
constexpr PackedBytes bytesFrom(PackedBytes word, unsigned char first, unsigned char last)
{
    return (word + everywhere(0x80 - first)) & ~(word + everywhere(0x7F - last));
}

// The high bit of each byte that is no key character.
constexpr PackedBytes nonKeyCharacters(PackedBytes word)
{
    const PackedBytes low = word & ~highBits;
    const PackedBytes found = bytesFrom(low | everywhere(0x20), 'a', 'z') |
                              bytesFrom(low, '0', '9') | (highBits - (low ^ everywhere('-'))) |
                              (highBits - (low ^ everywhere('_')));
    return (~found | word) & highBits;
}

// The first position from `at` on whose character does not belong to the run.  Of a word,
// `others` marks at least the first such byte, and none before.
template <PackedBytes (*others)(PackedBytes), bool (*belongs)(char)>
const char* runEnd(const char* at, const char* end) noexcept
{
    for (; end - at >= static_cast<std::ptrdiff_t>(sizeof(PackedBytes)); at += sizeof(PackedBytes))
    {
        if (const PackedBytes found = others(loadBytes(at)); found != 0)
        {
            if constexpr (littleEndian)
            {
                return at + lowestByte(found);
            }
            break;
        }
    }
    while (at != end && belongs(*at))
    {
        ++at;
    }
    return at;
}

template <CharacterClass kind>
constexpr bool isOf(char c)
{
    return is(c, kind);
}

inline const char* skipDigits(const char* at, const char* end) noexcept
{
    return runEnd<nonDigits, isOf<digit>>(at, end);
}

inline const char* skipKeyCharacters(const char* at, const char* end) noexcept
{
    return runEnd<nonKeyCharacters, isOf<keyCharacter>>(at, end);
}

} // namespace vorn::parsers::toml
