#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "event.h"
#include "scratch.h"

namespace vorn::parsers::toml
{

// The events of a document's first lines, as a pass over it has found them, so that they
// can be repeated without reading those lines again.  It is bounded, whatever the size
// of the document: a sink that takes all events and keeps what it has room for.
//
// An event takes a byte: what it is.  A text takes two more, the gap between it and the
// text before and its length.  Where those are large, eight more bytes follow.
class EventRecord
{
public:
    EventRecord(const char* begin, const char* end)
        : EventRecord(begin, std::min(static_cast<std::size_t>(end - begin), mostBytes) + longEntry)
    {
    }

    // Whether it could be made; if not, it is of no use.
    bool hasMemory() const noexcept { return entries_.begin() != nullptr; }

    void event(Event event) noexcept
    {
        if (hasRoom())
        {
            *last_++ = static_cast<Byte>(event);
        }
    }

    void text(Event event, std::string_view text) noexcept
    {
        longestText_ = std::max(longestText_, text.size());
        if (!hasRoom())
        {
            return;
        }
        const auto gap = static_cast<std::size_t>(text.data() - textEnd_);
        textEnd_ = text.data() + text.size();
        Byte* const entry = last_;
        entry[0] = static_cast<Byte>(event);
        if (gap < longGap && text.size() <= mostLength)
        {
            entry[1] = static_cast<Byte>(gap);
            entry[2] = static_cast<Byte>(text.size());
            last_ = entry + shortEntry;
            return;
        }
        entry[1] = longGap;
        const Numbers numbers = {static_cast<std::uint32_t>(gap),
                                 static_cast<std::uint32_t>(text.size())};
        std::memcpy(entry + shortEntry, &numbers, sizeof(numbers));
        last_ = entry + longEntry;
    }

    // All events of a line, with the pair or the header that it holds, have come.
    void lineEnd(const char* position) noexcept
    {
        if (hasRoom())
        {
            lineEnd_ = position;
            lastLine_ = last_;
        }
    }

    std::size_t longestText() const noexcept { return longestText_; }

    // Where the recorded lines end.
    const char* position() const noexcept { return lineEnd_; }

    // Hands the events of the recorded lines to another sink.
    template <typename Sink>
    void repeat(Sink& sink) const
    {
        const char* at = begin_;
        for (const Byte* entry = entries_.begin(); entry != lastLine_;)
        {
            const auto recorded = static_cast<Event>(entry[0]);
            if (recorded < Event::visitBareKey)
            {
                ++entry;
                sink.event(recorded);
                continue;
            }
            std::size_t gap = entry[1];
            std::size_t length = entry[2];
            entry += shortEntry;
            if (gap == longGap)
            {
                Numbers numbers = {};
                std::memcpy(&numbers, entry, sizeof(numbers));
                gap = numbers.gap;
                length = numbers.length;
                entry += sizeof(numbers);
            }
            at += gap;
            sink.text(recorded, {at, length});
            at += length;
        }
    }

private:
    using Byte = std::uint8_t;

    // The runtime, too, counts a text's bytes in 32 bits.
    struct Numbers
    {
        std::uint32_t gap;
        std::uint32_t length;
    };

    static constexpr Byte longGap = 255;
    static constexpr std::size_t mostLength = 255;
    static constexpr std::size_t shortEntry = 3;
    static constexpr std::size_t longEntry = shortEntry + sizeof(Numbers);
    static constexpr std::size_t mostBytes = std::size_t{512} * 1024;

    EventRecord(const char* begin, std::size_t room)
        : entries_(room), last_(entries_.begin()), lastLine_(last_),
          end_(last_ != nullptr ? last_ + room : nullptr), begin_(begin), textEnd_(begin),
          lineEnd_(begin)
    {
    }

    // For the longest of entries, so that once there is no room there is none for shorter
    // ones either.
    bool hasRoom() const noexcept { return static_cast<std::size_t>(end_ - last_) >= longEntry; }

    const Scratch<Byte, 2048> entries_;
    Byte* last_;
    const Byte* lastLine_; // the same, when the last line ended
    const Byte* const end_;
    const char* begin_;
    const char* textEnd_;
    const char* lineEnd_;
    std::size_t longestText_ = 0;
};

} // namespace vorn::parsers::toml
