#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "event.h"

namespace vorn::parsers::toml
{

// A sink that keeps the events of a document's first lines, so that they can be repeated
// without reading those lines again.  It takes all events and keeps what it has room for,
// which is bounded whatever the size of the document.
//
// An event takes one byte: its kind and, with a text, whether it begins or ends a pair as
// well, which saves time rather than room.  A text takes two more: its distance from the text
// before, and its length.  If one of them is large, eight more bytes follow.
class EventRecord
{
public:
    using Byte = std::uint8_t;

    // The bytes that the record of a document of this many bytes takes.
    static constexpr std::size_t bytesFor(std::size_t size)
    {
        return std::min(size, maxBytes) + longEntry;
    }

    // Writes into as many bytes; the document starts at `begin`.
    EventRecord(Byte* bytes, std::size_t size, const char* begin) noexcept
        : begin_(bytes), last_(bytes), lastLine_(bytes), full_(bytes + size - longEntry),
          text_(begin), textEnd_(begin), lineEnd_(begin)
    {
    }

    void event(Event event) noexcept
    {
        if (hasRoom())
        {
            *last_++ = static_cast<Byte>(event);
        }
    }

    void text(Event event, std::string_view text) noexcept
    {
        record(static_cast<Byte>(event), text);
    }

    void keyOfPair(Event event, std::string_view text) noexcept
    {
        record(static_cast<Byte>(event) | beginsPair, text);
    }

    void valueOfPair(Event event, std::string_view text) noexcept
    {
        record(static_cast<Byte>(event) | endsPair, text);
    }

    // All events of the lines before `position` have come.
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
        const char* at = text_;
        for (const Byte* entry = begin_; entry != lastLine_;)
        {
            const Byte kind = entry[0];
            if (kind < static_cast<Byte>(Event::visitBareKey))
            {
                ++entry;
                sink.event(static_cast<Event>(kind));
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
            if ((kind & beginsPair) != 0)
            {
                sink.event(Event::beginKeyValue);
            }
            sink.text(static_cast<Event>(kind & events), {at, length});
            at += length;
            if ((kind & endsPair) != 0)
            {
                sink.event(Event::endKeyValue);
            }
        }
    }

private:
    // Of 32 bits, as the runtime counts the bytes of texts.
    struct Numbers
    {
        std::uint32_t gap;
        std::uint32_t length;
    };

    static constexpr Byte events = 0x3F;
    static constexpr Byte beginsPair = 0x40;
    static constexpr Byte endsPair = 0x80;
    static constexpr Byte longGap = 255;
    static constexpr std::size_t maxLength = 255;
    static constexpr std::size_t shortEntry = 3;
    static constexpr std::size_t longEntry = shortEntry + sizeof(Numbers);
    static constexpr std::size_t maxBytes = std::size_t{512} * 1024;

    void record(Byte kind, std::string_view text) noexcept
    {
        longestText_ = std::max(longestText_, text.size());
        if (!hasRoom())
        {
            return;
        }
        const auto gap = static_cast<std::size_t>(text.data() - textEnd_);
        textEnd_ = text.data() + text.size();
        Byte* const entry = last_;
        entry[0] = kind;
        if (gap < longGap && text.size() <= maxLength)
        {
            entry[1] = static_cast<Byte>(gap);
            entry[2] = static_cast<Byte>(text.size());
            last_ = entry + shortEntry;
            return;
        }
        last_ = writeLong(entry, gap, text.size());
    }

    [[gnu::noinline]] static Byte* writeLong(Byte* entry, std::size_t gap, std::size_t length)
    {
        entry[1] = longGap;
        const Numbers numbers = {static_cast<std::uint32_t>(gap),
                                 static_cast<std::uint32_t>(length)};
        std::memcpy(entry + shortEntry, &numbers, sizeof(numbers));
        return entry + longEntry;
    }

    // Room for the longest entry: once there is none, shorter ones are not kept either.
    bool hasRoom() const noexcept { return last_ <= full_; }

    const Byte* const begin_;
    Byte* last_;
    const Byte* lastLine_; // the same, when the last line ended
    const Byte* const full_;
    const char* const text_;
    const char* textEnd_;
    const char* lineEnd_;
    std::size_t longestText_ = 0;
};

} // namespace vorn::parsers::toml
