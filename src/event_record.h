#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "event.h"

namespace vorn::parsers::toml
{

// The events of a document's first lines, as a pass over it has found them, so that they
// can be repeated without reading those lines again.  It is bounded, whatever the size
// of the document: a sink that takes all events and keeps what it has room for.
//
// An event takes an entry of 16 bits: what it is and, for a text, its length and the gap
// between it and the text before.  Where those are large, four more entries follow.
class EventRecord
{
public:
    EventRecord(const char* begin, const char* end)
        : EventRecord(
              begin, std::min(static_cast<std::size_t>(end - begin) / 2 + longEntries, mostEntries))
    {
    }

    void event(Event event) noexcept
    {
        if (hasRoom())
        {
            *last_++ = entry(event, 0, 0);
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
        if (gap < longGap && text.size() <= mostLength)
        {
            *last_++ = entry(event, gap, text.size());
            return;
        }
        *last_++ = entry(event, longGap, 0);
        addLong(gap);
        addLong(text.size());
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
        const char* text = begin_;
        for (const Entry* next = entries_.get(); next != lastLine_;)
        {
            const unsigned entry = *next++;
            const auto event = static_cast<Event>(entry >> eventShift);
            if (event < Event::visitBareKey)
            {
                sink.event(event);
                continue;
            }
            std::size_t gap = entry >> gapShift & longGap;
            std::size_t length = entry & mostLength;
            if (gap == longGap)
            {
                gap = next[0] | std::size_t{next[1]} << 16;
                length = next[2] | std::size_t{next[3]} << 16;
                next += longEntries - 1;
            }
            text += gap;
            sink.text(event, {text, length});
            text += length;
        }
    }

private:
    using Entry = std::uint16_t;
    // Five bits of event, four of gap, seven of length.
    static constexpr unsigned eventShift = 11;
    static constexpr unsigned gapShift = 7;
    static constexpr unsigned longGap = 15;
    static constexpr unsigned mostLength = 127;
    static constexpr std::size_t longEntries = 5;
    static constexpr std::size_t mostEntries = 256 * 1024;

    EventRecord(const char* begin, std::size_t room)
        : entries_(new Entry[room]), last_(entries_.get()), lastLine_(last_), end_(last_ + room),
          begin_(begin), textEnd_(begin), lineEnd_(begin)
    {
    }

    // Once there has been no room, there is none for shorter events either.
    bool hasRoom() noexcept
    {
        if (static_cast<std::size_t>(end_ - last_) >= longEntries)
        {
            return true;
        }
        end_ = last_;
        return false;
    }

    static Entry entry(Event event, std::size_t gap, std::size_t length) noexcept
    {
        return static_cast<Entry>(static_cast<unsigned>(event) << eventShift | gap << gapShift |
                                  length);
    }

    void addLong(std::size_t number) noexcept
    {
        *last_++ = static_cast<Entry>(number);
        *last_++ = static_cast<Entry>(number >> 16);
    }

    const std::unique_ptr<Entry[]> entries_;
    Entry* last_;
    const Entry* lastLine_; // the same, when the last line ended
    const Entry* end_;
    const char* begin_;
    const char* textEnd_;
    const char* lineEnd_;
    std::size_t longestText_ = 0;
};

} // namespace vorn::parsers::toml
