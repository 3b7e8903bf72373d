#pragma once

#include <vorn/parsers/toml.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "event.h"
#include "scratch.h"

namespace vorn::parsers::toml
{

// A sink that calls the visitor.  Texts are handed over NUL-terminated, from one buffer
// that has room for the longest.
class VisitorCalls
{
public:
    // `end` is the document's end.
    VisitorCalls(ITomlTreeVisitor& visitor, const char* end, std::size_t longestText)
        : visitor_(visitor), end_(end), text_(std::max(longestText, block) + 1)
    {
    }

    // Whether it could be made; if not, it is of no use.
    bool hasMemory() const noexcept { return text_.begin() != nullptr; }

    void event(Event event) { (visitor_.*operations[static_cast<std::size_t>(event)])(); }

    void text(Event event, std::string_view text)
    {
        const std::size_t operation = static_cast<std::size_t>(event) - operations.size();
        (visitor_.*textOperations[operation])(terminated(text));
    }

    void lineEnd(const char*) noexcept {}

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

    // Most texts are short, and a block of fixed size is copied fastest.
    static constexpr std::size_t block = 32;

    const char* terminated(std::string_view text) noexcept
    {
        const auto left = static_cast<std::size_t>(end_ - text.data());
        if (text.size() <= block && left >= block)
        {
            std::memcpy(text_.begin(), text.data(), block);
        }
        else
        {
            std::memcpy(text_.begin(), text.data(), text.size());
        }
        text_.begin()[text.size()] = '\0';
        return text_.begin();
    }

    ITomlTreeVisitor& visitor_;
    const char* end_; // of the document
    const Scratch<char, 256> text_;
};

} // namespace vorn::parsers::toml
