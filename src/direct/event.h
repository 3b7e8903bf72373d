// The visitor's operations as values.
#pragma once

#include <cstdint>

namespace vorn::parsers::toml
{

enum class Event : std::uint8_t
{
    beginKeyValue,
    endKeyValue,
    beginTable,
    endTable,
    beginArrayTable,
    endArrayTable,
    beginDottedKey,
    endDottedKey,
    beginArray,
    endArray,
    beginInlineTable,
    endInlineTable,
    // With a text:
    visitBareKey,
    visitQuotedKey,
    visitBasicString,
    visitMultilineBasicString,
    visitLiteralString,
    visitMultilineLiteralString,
    visitInteger,
    visitFloat,
    visitBoolean,
    visitOffsetDateTime,
    visitLocalDateTime,
    visitLocalDate,
    visitLocalTime,
    none, // no event
};

constexpr bool hasText(Event event)
{
    return event >= Event::visitBareKey && event < Event::none;
}

} // namespace vorn::parsers::toml
