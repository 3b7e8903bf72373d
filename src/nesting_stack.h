#pragma once

#include <cstddef>
#include <cstdint>

#include "scratch.h"

namespace vorn::parsers::toml
{

// What a value stands in.
enum class Inside : std::uint8_t
{
    pair,         // of the top level
    inlineTable,  // a pair of an inline table
    firstElement, // an array, as its first element
    laterElement, // an array, as another element
};

// The arrays and inline tables that enclose a position: two bits a level, the innermost
// outside of the stack.  Its room is never initialised, so that what a document does not
// use of it costs no memory.
class NestingStack
{
public:
    // With room for all levels that a document of this many bytes can open and close.
    explicit NestingStack(std::size_t size)
        : words_(size / 2 / levelsPerWord + 1), room_(words_.begin() != nullptr ? size / 2 : 0)
    {
    }

    // Without memory it has no room either.
    bool hasMemory() const noexcept { return words_.begin() != nullptr; }

    Inside inside() const noexcept { return inside_; }
    // The innermost level is now this.
    void setInside(Inside inside) noexcept { inside_ = inside; }

    // Whether there has been room.
    bool enter(Inside inside) noexcept
    {
        if (depth_ == room_)
        {
            return false;
        }
        const unsigned shift = shiftOf(depth_);
        Word& word = words_.begin()[depth_ / levelsPerWord];
        const Word below = shift == 0 ? 0 : word & ((Word{1} << shift) - 1);
        word = below | (Word{static_cast<std::uint8_t>(inside_)} << shift);
        ++depth_;
        inside_ = inside;
        return true;
    }

    void leave() noexcept
    {
        --depth_;
        inside_ =
            static_cast<Inside>(words_.begin()[depth_ / levelsPerWord] >> shiftOf(depth_) & 3);
    }

private:
    using Word = std::uint32_t;
    static constexpr std::size_t levelsPerWord = 16;

    static unsigned shiftOf(std::size_t depth) noexcept
    {
        return static_cast<unsigned>(depth % levelsPerWord) * 2;
    }

    const Scratch<Word, 64> words_;
    const std::size_t room_; // in levels
    std::size_t depth_ = 0;
    Inside inside_ = Inside::pair;
};

} // namespace vorn::parsers::toml
