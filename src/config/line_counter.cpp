#include "line_counter.h"

#include <algorithm>
#include <cstring>

#include "utf8.h"

namespace vorn::parsers::toml::config
{

LineCounter::LineCounter(std::string_view document) noexcept
    : document_(document), lineBegin_(byteOrderMarkLength(document)), offset_(lineBegin_),
      lessColumns_(lineBegin_ - 1)
{
}

Place LineCounter::farther(std::size_t offset) noexcept
{
    offset = std::min(offset, document_.size());
    goTo(offset);
    return {line_, offset_ - lessColumns_, offset};
}

void LineCounter::goTo(std::size_t offset) noexcept
{
    if (offset < lineBegin_)
    {
        line_ = 1;
        lineBegin_ = byteOrderMarkLength(document_);
    }
    if (offset < offset_)
    {
        beginLine(lineBegin_);
        offset_ = lineBegin_;
    }
    if (offset < offset_)
    {
        return; // within the byte order mark
    }
    // Only in its line columns count.
    while (const void* const lineFeed =
               std::memchr(document_.data() + offset_, '\n', offset - offset_))
    {
        offset_ =
            static_cast<std::size_t>(static_cast<const char*>(lineFeed) - document_.data()) + 1;
        ++line_;
        beginLine(offset_);
    }
    while (offset_ < offset)
    {
        const std::size_t length =
            isAscii(document_[offset_]) ? 1 : characterLength(document_, offset_);
        if (length > offset - offset_)
        {
            return;
        }
        offset_ += length;
        lessColumns_ += length - 1;
        takeAscii(offset);
    }
}

} // namespace vorn::parsers::toml::config
