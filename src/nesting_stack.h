#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

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
// outside of the stack.
class NestingStack
{
public:
    Inside inside() const noexcept { return inside_; }
    // The innermost level is now this.
    void setInside(Inside inside) noexcept { inside_ = inside; }

    void enter(Inside inside)
    {
        if (depth_ / levelsPerWord == words_.size())
        {
            words_.resize(words_.size() * growth);
        }
        Word& word = words_[depth_ / levelsPerWord];
        const unsigned shift = shiftOf(depth_);
        word = (word & ~(Word{3} << shift)) | (Word{static_cast<std::uint8_t>(inside_)} << shift);
        ++depth_;
        inside_ = inside;
    }

    void leave() noexcept
    {
        --depth_;
        inside_ = static_cast<Inside>(words_[depth_ / levelsPerWord] >> shiftOf(depth_) & 3);
    }

private:
    using Word = std::uint32_t;
    static constexpr std::size_t levelsPerWord = 16;
    // Few allocations count for more than spare room: 16 times 64 levels, and so on.
    static constexpr std::size_t growth = 16;

    static unsigned shiftOf(std::size_t depth) noexcept
    {
        return static_cast<unsigned>(depth % levelsPerWord) * 2;
    }

    std::vector<Word> words_ = std::vector<Word>(4);
    std::size_t depth_ = 0;
    Inside inside_ = Inside::pair;
};

} // namespace vorn::parsers::toml
