#pragma once

#include <vorn/parsers/toml_places.h>

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "byte_block.h"

namespace vorn::parsers::toml::config
{

// Counts the lines and columns of offsets.  It goes on from the last offset: those that ascend take
// time in proportion to the document, all together.  For one that is before the last it starts
// again, from its line or from the document's start.
class LineCounter
{
public:
    explicit LineCounter(std::string_view document) noexcept;

    // The place of an offset, at most the document's size.  Within a character it is that of the
    // character.
    Place at(std::size_t offset) noexcept
    {
        takeAscii(offset);
        return offset_ == offset ? Place{line_, offset_ - lessColumns_, offset} : farther(offset);
    }

private:
    // Goes on to an offset in blocks, as far as there are any and they are ASCII.
    void takeAscii(std::size_t end) noexcept
    {
        while (offset_ < end && document_.size() - offset_ >= ByteBlock::size)
        {
            const std::size_t count = std::min(end - offset_, ByteBlock::size);
            const ByteBlock block(document_.data() + offset_);
            if (ByteBlock::amongFirst(ByteBlock::marks(block.notAscii()), count) != 0)
            {
                return;
            }
            const auto lineFeeds =
                ByteBlock::amongFirst(ByteBlock::marks(block.equal('\n')), count);
            if (lineFeeds != 0)
            {
                line_ += ByteBlock::count(lineFeeds);
                beginLine(offset_ + ByteBlock::upToLast(lineFeeds));
            }
            offset_ += count;
        }
    }

    void beginLine(std::size_t offset) noexcept
    {
        lineBegin_ = offset;
        lessColumns_ = offset - 1;
    }

    // The same for all that it may be: backwards, at the end, not ASCII.
    Place farther(std::size_t offset) noexcept;
    void goTo(std::size_t offset) noexcept;

    std::string_view document_;
    std::size_t line_ = 1;
    std::size_t lineBegin_;
    // The last offset, or the first byte of the character that it is within.
    std::size_t offset_;
    std::size_t lessColumns_; // by so much its column is less than it
};

} // namespace vorn::parsers::toml::config
