// Finds the end of a run of characters without a branch for each of them: processors cannot
// predict the lengths of words and numbers.
//
// A run is a type: has() says whether a character belongs to it, and outside() which bytes of a
// block do not.
#pragma once

#include "byte_block.h"
#include "character_class.h"
#include "utf8.h"

namespace vorn::parsers::toml
{

struct Digits
{
    static constexpr bool has(char c) { return is(c, digit); }

    template <typename Block>
    static auto outside(Block block) noexcept
    {
        return block.notMarked(block.from('0', '9'));
    }
};

struct KeyCharacters
{
    static constexpr bool has(char c) { return is(c, keyCharacter); }

    template <typename Block>
    static auto outside(Block block) noexcept
    {
        return block.notMarked(block.fromInAnyCase('a', 'z') | block.from('0', '9') |
                               block.equal('-') | block.equal('_'));
    }
};

// ASCII without some characters: what strings and comments are made of for the most part.
template <char... others>
struct Plain
{
    static constexpr bool has(char c) { return ((c != others) && ...) && isAscii(c); }

    template <typename Block>
    static auto outside(Block block) noexcept
    {
        return block.markedOrNotAscii((block.equal(others) | ...));
    }
};

// The first position from `at` on whose character does not belong to the run; null if it is within
// the last block of bytes before the end.
template <typename Run, typename Block = ByteBlock>
const char* earlyRunEnd(const char* at, const char* end) noexcept
{
    for (; littleEndian && end - at >= Block::size; at += Block::size)
    {
        if (const auto outside = Run::outside(Block(at)); outside != 0)
        {
            return at + Block::firstOf(outside);
        }
    }
    return nullptr;
}

// The first position from `at` on whose character does not belong to the run.
template <typename Run, typename Block = ByteBlock>
const char* runEnd(const char* at, const char* end) noexcept
{
    if (const char* const early = earlyRunEnd<Run, Block>(at, end); early != nullptr)
    {
        return early;
    }
    if (littleEndian)
    {
        at = end - (end - at) % Block::size;
    }
    while (at != end && Run::has(*at))
    {
        ++at;
    }
    return at;
}

} // namespace vorn::parsers::toml
