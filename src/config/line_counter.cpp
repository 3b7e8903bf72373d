#include "line_counter.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "utf8.h"

namespace vorn::parsers::toml::config
{

LineCounter::LineCounter(std::string_view document) noexcept
    : document_(document), lineBegin_(byteOrderMarkLength(document)), offset_(lineBegin_)
{
}

Place LineCounter::at(std::size_t offset) noexcept
{
    offset = std::min(offset, document_.size());
    if (offset < lineBegin_)
    {
        line_ = 1;
        lineBegin_ = byteOrderMarkLength(document_);
    }
    if (offset < offset_)
    {
        offset_ = lineBegin_;
        column_ = 1;
    }
    while (offset_ < offset)
    {
        const void* const lineFeed =
            std::memchr(document_.data() + offset_, '\n', offset - offset_);
        if (lineFeed == nullptr)
        {
            countColumns(offset);
            break;
        }
        offset_ =
            static_cast<std::size_t>(static_cast<const char*>(lineFeed) - document_.data()) + 1;
        lineBegin_ = offset_;
        ++line_;
        column_ = 1;
    }
    return {line_, column_, offset};
}

void LineCounter::countColumns(std::size_t end) noexcept
{
    using Word = std::uint64_t;
    constexpr Word highBits = 0x8080808080808080U;
    while (offset_ < end)
    {
        Word word = highBits;
        if (end - offset_ >= sizeof(word))
        {
            std::memcpy(&word, document_.data() + offset_, sizeof(word));
        }
        if ((word & highBits) == 0)
        {
            offset_ += sizeof(word);
            column_ += sizeof(word);
            continue;
        }
        const bool isPlain = isAscii(document_[offset_]);
        const std::size_t length = isPlain ? 1 : characterLength(document_, offset_);
        if (length > end - offset_)
        {
            return;
        }
        offset_ += length;
        ++column_;
    }
}

} // namespace vorn::parsers::toml::config
