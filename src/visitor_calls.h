#pragma once

#include <vorn/parsers/toml.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

#include "event.h"

namespace vorn::parsers::toml
{

// A sink that calls the visitor.  Texts are handed over NUL-terminated, from one buffer
// that has room for the longest.
class VisitorCalls
{
public:
    // `end` is the document's end.
    VisitorCalls(ITomlTreeVisitor& visitor, const char* end, std::size_t longestText)
        : visitor_(visitor), end_(end), text_(new char[std::max(longestText, block) + 1])
    {
    }

    void event(Event event)
    {
        switch (event)
        {
        case Event::beginKeyValue:
            return visitor_.beginKeyValue();
        case Event::endKeyValue:
            return visitor_.endKeyValue();
        case Event::beginTable:
            return visitor_.beginTable();
        case Event::endTable:
            return visitor_.endTable();
        case Event::beginArrayTable:
            return visitor_.beginArrayTable();
        case Event::endArrayTable:
            return visitor_.endArrayTable();
        case Event::beginDottedKey:
            return visitor_.beginDottedKey();
        case Event::endDottedKey:
            return visitor_.endDottedKey();
        case Event::beginArray:
            return visitor_.beginArray();
        case Event::endArray:
            return visitor_.endArray();
        case Event::beginInlineTable:
            return visitor_.beginInlineTable();
        default:
            return visitor_.endInlineTable();
        }
    }

    void text(Event event, std::string_view lexeme)
    {
        const char* const text = terminated(lexeme);
        switch (event)
        {
        case Event::visitBareKey:
            return visitor_.visitBareKey(text);
        case Event::visitQuotedKey:
            return visitor_.visitQuotedKey(text);
        case Event::visitBasicString:
            return visitor_.visitBasicString(text);
        case Event::visitMultilineBasicString:
            return visitor_.visitMultilineBasicString(text);
        case Event::visitLiteralString:
            return visitor_.visitLiteralString(text);
        case Event::visitMultilineLiteralString:
            return visitor_.visitMultilineLiteralString(text);
        case Event::visitInteger:
            return visitor_.visitInteger(text);
        case Event::visitFloat:
            return visitor_.visitFloat(text);
        case Event::visitBoolean:
            return visitor_.visitBoolean(text);
        case Event::visitOffsetDateTime:
            return visitor_.visitOffsetDateTime(text);
        case Event::visitLocalDateTime:
            return visitor_.visitLocalDateTime(text);
        case Event::visitLocalDate:
            return visitor_.visitLocalDate(text);
        default:
            return visitor_.visitLocalTime(text);
        }
    }

    void lineEnd(const char*) noexcept {}

private:
    // Most texts are short, and a block of fixed size is copied fastest.
    static constexpr std::size_t block = 32;

    const char* terminated(std::string_view text) noexcept
    {
        const auto left = static_cast<std::size_t>(end_ - text.data());
        if (text.size() <= block && left >= block)
        {
            std::memcpy(text_.get(), text.data(), block);
        }
        else
        {
            std::memcpy(text_.get(), text.data(), text.size());
        }
        text_[text.size()] = '\0';
        return text_.get();
    }

    ITomlTreeVisitor& visitor_;
    const char* end_; // of the document
    const std::unique_ptr<char[]> text_;
};

} // namespace vorn::parsers::toml
