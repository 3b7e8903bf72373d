#pragma once

#include <cstddef>
#include <cstdint>

namespace vorn::parsers::toml
{

// What a value is in.
enum class Inside : std::uint8_t
{
    pair,         // a pair of the top level
    inlineTable,  // a pair of an inline table
    firstElement, // an array, as its first element
    laterElement, // an array, as a later element
};

// The arrays and inline tables that enclose a position: two bits a level, the innermost kept
// apart.  The room is never initialised, so that what a document does not use costs no memory.
class NestingStack
{
public:
    using Word = std::uint32_t;

    // The words for all levels that a document of this many bytes can open and close.
    static constexpr std::size_t wordsFor(std::size_t size) { return size / 2 / levelsPerWord + 1; }

    // For a document of this many bytes, in words for as many.  It can count the levels that have
    // been entered at once, at most.
    NestingStack(Word* words, std::size_t size, std::size_t* max = nullptr) noexcept
        : words_(words), room_(size / 2), max_(max)
    {
    }

    Inside inside() const noexcept { return inside_; }
    // The innermost level is now this.
    void setInside(Inside inside) noexcept { inside_ = inside; }

    // Returns whether there was room.
    bool enter(Inside inside) noexcept
    {
        if (depth_ == room_)
        {
            return false;
        }
        const unsigned shift = shiftOf(depth_);
        Word& word = words_[depth_ / levelsPerWord];
        const Word below = shift == 0 ? 0 : word & ((Word{1} << shift) - 1);
        word = below | (Word{static_cast<std::uint8_t>(inside_)} << shift);
        ++depth_;
        inside_ = inside;
        if (max_ != nullptr && depth_ > *max_)
        {
            *max_ = depth_;
        }
        return true;
    }

    void leave() noexcept
    {
        --depth_;
        inside_ = static_cast<Inside>(words_[depth_ / levelsPerWord] >> shiftOf(depth_) & 3);
    }

private:
    static constexpr std::size_t levelsPerWord = 16;

    static unsigned shiftOf(std::size_t depth) noexcept
    {
        return static_cast<unsigned>(depth % levelsPerWord) * 2;
    }

    Word* const words_;
    const std::size_t room_; // in levels
    std::size_t* const max_;
    std::size_t depth_ = 0;
    Inside inside_ = Inside::pair;
};

} // namespace vorn::parsers::toml
