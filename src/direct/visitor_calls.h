#pragma once

#include <vorn/parsers/toml.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "event.h"
#include "mostly.h"

namespace vorn::parsers::toml
{

// Calls the visitor for events.  It hands over texts NUL-terminated, from one buffer.
class VisitorCalls
{
public:
    // The bytes of a buffer for texts up to this length.
    static constexpr std::size_t bytesFor(std::size_t longestText)
    {
        return std::max(longestText, block) + 1;
    }

    // Copies texts into as many bytes at `buffer`; `end` is the document's end.
    VisitorCalls(ITomlTreeVisitor& visitor, char* buffer, const char* end) noexcept
        : visitor_(visitor), buffer_(buffer), end_(end)
    {
    }

    ITomlTreeVisitor& visitor() const noexcept { return visitor_; }

    // The text, as long as no other one is asked for.
    const char* terminated(std::string_view text) noexcept
    {
        const auto left = static_cast<std::size_t>(end_ - text.data());
        if (mostly(text.size() <= block && left >= block))
        {
            std::memcpy(buffer_, text.data(), block);
        }
        else
        {
            std::memcpy(buffer_, text.data(), text.size());
        }
        buffer_[text.size()] = '\0';
        return buffer_;
    }

    void call(Event event) { (visitor_.*operations[static_cast<std::size_t>(event)])(); }
    void call(Event event, const char* text)
    {
        const std::size_t operation = static_cast<std::size_t>(event) - operations.size();
        (visitor_.*textOperations[operation])(text);
    }

private:
    using Visitor = ITomlTreeVisitor;

    // In the order of the events.
    static constexpr std::array<void (Visitor::*)(), 12> operations = {
        &Visitor::beginKeyValue,  &Visitor::endKeyValue,      &Visitor::beginTable,
        &Visitor::endTable,       &Visitor::beginArrayTable,  &Visitor::endArrayTable,
        &Visitor::beginDottedKey, &Visitor::endDottedKey,     &Visitor::beginArray,
        &Visitor::endArray,       &Visitor::beginInlineTable, &Visitor::endInlineTable};
    static constexpr std::array<void (Visitor::*)(const char*), 13> textOperations = {
        &Visitor::visitBareKey,       &Visitor::visitQuotedKey,
        &Visitor::visitBasicString,   &Visitor::visitMultilineBasicString,
        &Visitor::visitLiteralString, &Visitor::visitMultilineLiteralString,
        &Visitor::visitInteger,       &Visitor::visitFloat,
        &Visitor::visitBoolean,       &Visitor::visitOffsetDateTime,
        &Visitor::visitLocalDateTime, &Visitor::visitLocalDate,
        &Visitor::visitLocalTime};
    static_assert(static_cast<std::size_t>(Event::visitBareKey) == operations.size());
    static_assert(static_cast<std::size_t>(Event::none) ==
                  operations.size() + textOperations.size());

    // Most texts are short, and a block of a fixed size is copied fastest.
    static constexpr std::size_t block = 32;

    ITomlTreeVisitor& visitor_;
    char* buffer_;
    const char* end_; // of the document
};

} // namespace vorn::parsers::toml
