// An entry of the record: an event in 32 bits.
#pragma once

#include <cstddef>
#include <cstdint>

#include "event.h"

namespace vorn::parsers::toml
{

// From the lowest bits on: the length of the text, the gap between it and the text before, what
// starts right before the event and ends right after it, and the event.
//
// Where the length or the gap has more bits, both are in entries of their own, after one that is 0
// and before that of the text, which has neither.
using RecordEntry = std::uint32_t;

struct LongText
{
    std::size_t gap;
    std::size_t length;
};

inline constexpr std::size_t longTextEntries = sizeof(LongText) / sizeof(RecordEntry);
inline constexpr std::size_t longestEntry = 1 + longTextEntries + 1;
inline constexpr std::size_t maxShortText = 0xFF;

enum Edge : RecordEntry
{
    startsPair = 1U << 16,
    startsTable = 1U << 17,
    startsArrayTable = 1U << 18,
    startsDottedKey = 1U << 19,
    endsDottedKey = 1U << 20,
    endsPair = 1U << 21,
    endsTable = 1U << 22,
    endsArrayTable = 1U << 23,
};

inline constexpr RecordEntry anyStart =
    startsPair | startsTable | startsArrayTable | startsDottedKey;
inline constexpr RecordEntry anyEnd = endsDottedKey | endsPair | endsTable | endsArrayTable;

constexpr RecordEntry entryOf(Event event, RecordEntry edges = 0)
{
    return RecordEntry{static_cast<std::uint8_t>(event)} << 24 | edges;
}

constexpr RecordEntry entryOf(Event event, RecordEntry edges, std::size_t gap, std::size_t length)
{
    return entryOf(event, edges) | static_cast<RecordEntry>(gap << 8 | length);
}

constexpr Event eventOf(RecordEntry entry)
{
    return static_cast<Event>(entry >> 24);
}

constexpr bool hasText(RecordEntry entry)
{
    return entry >= entryOf(Event::visitBareKey);
}

// Of an entry with a text, all but that.
constexpr RecordEntry kindOf(RecordEntry entry)
{
    return entry & 0xFFFF0000;
}

constexpr std::size_t gapOf(RecordEntry entry)
{
    return entry >> 8 & 0xFF;
}

constexpr std::size_t lengthOf(RecordEntry entry)
{
    return entry & 0xFF;
}

constexpr bool fitEntry(std::size_t gap, std::size_t length)
{
    return (gap | length) <= 0xFF;
}

} // namespace vorn::parsers::toml
