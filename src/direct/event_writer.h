#pragma once

#include <cstddef>
#include <string_view>

#include "event.h"
#include "event_record.h"
#include "record_entry.h"

namespace vorn::parsers::toml
{

// A sink that writes the events of lines into a record.  What changes with every event is in here,
// apart from the record: in registers, while nobody has the address of this.
class EventWriter
{
public:
    // For lines that start where the kept ones end.
    explicit EventWriter(EventRecord& record) noexcept
        : record_(&record), last_(record.last_), text_(record.position_)
    {
    }

    // Where something starts, it waits for the entry of its first text; where it ends, it joins
    // the last entry.
    void event(Event event)
    {
        switch (event)
        {
        case Event::beginKeyValue:
            starts_ |= startsPair;
            break;
        case Event::beginTable:
            starts_ |= startsTable;
            break;
        case Event::beginArrayTable:
            starts_ |= startsArrayTable;
            break;
        case Event::beginDottedKey:
            starts_ |= startsDottedKey;
            break;
        case Event::endDottedKey:
            last_[-1] |= endsDottedKey;
            break;
        case Event::endKeyValue:
            last_[-1] |= endsPair;
            break;
        case Event::endTable:
            last_[-1] |= endsTable;
            break;
        case Event::endArrayTable:
            last_[-1] |= endsArrayTable;
            break;
        default:
            makeRoom();
            *last_++ = entryOf(event);
        }
    }

    void keyPart(Event event, std::string_view text)
    {
        write(event, starts_, text);
        starts_ = 0;
    }
    void pair(std::string_view key, Event event, std::string_view value)
    {
        const auto keyGap = static_cast<std::size_t>(key.data() - text_);
        const auto gap = static_cast<std::size_t>(value.data() - (key.data() + key.size()));
        if (!fitEntry(keyGap | gap, key.size() | value.size()))
        {
            keyOfPair(Event::visitBareKey, key);
            valueOfPair(event, value);
            return;
        }
        makeRoom();
        last_[0] = entryOf(Event::visitBareKey, startsPair, keyGap, key.size());
        last_[1] = entryOf(event, endsPair, gap, value.size());
        last_ += 2;
        text_ = value.data() + value.size();
    }

    void keyOfPair(Event event, std::string_view text) { write(event, startsPair, text); }
    void valueOfPair(Event event, std::string_view text) { write(event, endsPair, text); }
    void text(Event event, std::string_view text) { write(event, 0, text); }

    void lineEnd(const char* position) noexcept { record_->keepLines(last_, position); }
    void emptyLines(const char* end) noexcept { lineEnd(end); }

private:
    void makeRoom()
    {
        if (last_ > record_->full_)
        {
            last_ = record_->makeRoom(last_);
        }
    }

    void write(Event event, RecordEntry edges, std::string_view text)
    {
        makeRoom();
        auto gap = static_cast<std::size_t>(text.data() - text_);
        std::size_t length = text.size();
        text_ = text.data() + length;
        if (!fitEntry(gap, length))
        {
            last_ = record_->writeNumbers(last_, gap, length);
            gap = 0;
            length = 0;
        }
        *last_++ = entryOf(event, edges, gap, length);
    }

    EventRecord* record_;
    RecordEntry* last_;
    const char* text_; // the end of the last one
    RecordEntry starts_ = 0;
};

} // namespace vorn::parsers::toml
