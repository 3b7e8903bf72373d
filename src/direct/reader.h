// Follows the rules of documents.
#pragma once

#include <cstdint>

#include "event.h"
#include "nesting_stack.h"
#include "token_cursor.h"

namespace vorn::parsers::toml
{

// The event of a key or a part of one; none for other tokens.
constexpr Event keyEvent(TokenType type)
{
    switch (type)
    {
    case TokenType::bareKey:
        return Event::visitBareKey;
    case TokenType::basicString:
    case TokenType::literalString:
        return Event::visitQuotedKey;
    default:
        return Event::none;
    }
}

// The event of a scalar; none for other tokens.
constexpr Event scalarEvent(TokenType type)
{
    switch (type)
    {
    case TokenType::basicString:
        return Event::visitBasicString;
    case TokenType::mlBasicString:
        return Event::visitMultilineBasicString;
    case TokenType::literalString:
        return Event::visitLiteralString;
    case TokenType::mlLiteralString:
        return Event::visitMultilineLiteralString;
    case TokenType::decInt:
    case TokenType::hexInt:
    case TokenType::octInt:
    case TokenType::binInt:
        return Event::visitInteger;
    case TokenType::floating:
    case TokenType::inf:
    case TokenType::nan:
        return Event::visitFloat;
    case TokenType::boolean:
        return Event::visitBoolean;
    case TokenType::offsetDateTime:
        return Event::visitOffsetDateTime;
    case TokenType::localDateTime:
        return Event::visitLocalDateTime;
    case TokenType::localDate:
        return Event::visitLocalDate;
    case TokenType::localTime:
        return Event::visitLocalTime;
    default:
        return Event::none;
    }
}

// Follows the rules of documents token by token.  Each member stops before the first token
// after what it has read; it returns false if it cannot read that.
template <typename Sink, typename Cursor = TokenCursor>
class Reader
{
public:
    // The text ends with a NUL at `end`.
    Reader(const char* begin, const char* end, NestingStack& nesting, Sink& sink)
        : tokens_(begin, end), nesting_(nesting), sink_(sink)
    {
    }
    // With another cursor than that over a text.
    Reader(Cursor tokens, NestingStack& nesting, Sink& sink)
        : tokens_(tokens), nesting_(nesting), sink_(sink)
    {
    }

    // Reads all lines.
    bool lines()
    {
        while (!tokens_.atEnd())
        {
            if (!line())
            {
                return false;
            }
        }
        return true;
    }

    bool atEnd() const { return tokens_.atEnd(); }

    // Reads a line, or empty ones.
    bool line()
    {
        if (tokens_.takeNewline())
        {
            return true;
        }
        const bool read = tokens_.take('[') ? header() : pair();
        // A line break must follow, also at the document's end.
        if (!read || !tokens_.takeNewline())
        {
            return false;
        }
        sink_.lineEnd(tokens_.position());
        return true;
    }

    // Before the next token.
    const char* position() const { return tokens_.position(); }

private:
    bool header()
    {
        const bool isOfArray = tokens_.take('[');
        sink_.event(isOfArray ? Event::beginArrayTable : Event::beginTable);
        const TakenToken first = tokens_.take();
        const bool hasKey = tokens_.isNext('.') ? dottedKey(first) : keyPart(first);
        if (!hasKey || !tokens_.take(']') || (isOfArray && !tokens_.take(']')))
        {
            return false;
        }
        sink_.event(isOfArray ? Event::endArrayTable : Event::endTable);
        return true;
    }

    bool dottedKey(const TakenToken& first)
    {
        sink_.event(Event::beginDottedKey);
        for (TakenToken part = first; keyPart(part); part = tokens_.take())
        {
            if (!tokens_.take('.'))
            {
                sink_.event(Event::endDottedKey);
                return true;
            }
        }
        return false;
    }

    bool keyPart(const TakenToken& part)
    {
        const Event event = keyEvent(part.type);
        if (event == Event::none)
        {
            return false;
        }
        sink_.text(event, part.text);
        return true;
    }

    bool keyAndEquals()
    {
        const TakenToken first = tokens_.take();
        if (tokens_.isNext('.'))
        {
            sink_.event(Event::beginKeyValue);
            return dottedKey(first) && tokens_.take('=');
        }
        const Event event = keyEvent(first.type);
        if (event == Event::none || !tokens_.take('='))
        {
            return false;
        }
        sink_.keyOfPair(event, first.text);
        return true;
    }

    // A pair of the top level, with all that nests in it.
    bool pair()
    {
        After after = After::pair;
        while (after == After::pair || after == After::value)
        {
            if (after == After::pair && !keyAndEquals())
            {
                return false;
            }
            const TakenToken value = tokens_.take();
            const Event scalar = scalarEvent(value.type);
            after = scalar != Event::none ? afterScalar(scalar, value.text) : enter(value.type);
            // What encloses the value may end with it.
            while (after == After::end)
            {
                after = afterEnd();
            }
        }
        return after == After::nothing;
    }

    // What comes next.
    enum class After
    {
        pair,    // of an inline table
        value,   // an element, if not the value of a pair
        end,     // the array or inline table has ended
        nothing, // the pair of the top level has ended
        refusal, // cannot be read
    };

    // Begins the array or inline table whose bracket has been taken.
    After enter(TokenType bracket)
    {
        if (bracket == TokenType::openBracket)
        {
            sink_.event(Event::beginArray);
            tokens_.takeNewline();
            return nesting_.enter(Inside::firstElement) ? After::value : After::refusal;
        }
        if (bracket == TokenType::openBrace)
        {
            sink_.event(Event::beginInlineTable);
            return nesting_.enter(Inside::inlineTable) ? After::pair : After::refusal;
        }
        return After::refusal;
    }

    After afterScalar(Event scalar, std::string_view text)
    {
        if (isInArray())
        {
            sink_.text(scalar, text);
            return afterElement();
        }
        sink_.valueOfPair(scalar, text);
        return afterPair();
    }

    // After an array or inline table.
    After afterEnd()
    {
        if (isInArray())
        {
            return afterElement();
        }
        sink_.event(Event::endKeyValue);
        return afterPair();
    }

    bool isInArray() const
    {
        return nesting_.inside() == Inside::firstElement ||
               nesting_.inside() == Inside::laterElement;
    }

    After afterPair()
    {
        if (nesting_.inside() == Inside::pair)
        {
            return After::nothing;
        }
        if (tokens_.take(','))
        {
            return After::pair;
        }
        if (!tokens_.take('}'))
        {
            return After::refusal;
        }
        sink_.event(Event::endInlineTable);
        nesting_.leave();
        return After::end;
    }

    // After an element that is not the first there may be a line break.  After any element,
    // another one commits to a comma and a value.  Without it a bracket or a comma may follow,
    // and after the comma a bracket, or a value with at most one line break before it.
    After afterElement()
    {
        if (nesting_.inside() == Inside::laterElement)
        {
            tokens_.takeNewline();
        }
        const bool committed = tokens_.takeNewline();
        if (tokens_.take(',') && !tokens_.isNext(']'))
        {
            tokens_.takeNewline();
            nesting_.setInside(Inside::laterElement);
            return After::value;
        }
        if (committed || !tokens_.take(']'))
        {
            return After::refusal;
        }
        sink_.event(Event::endArray);
        nesting_.leave();
        return After::end;
    }

    Cursor tokens_;
    NestingStack& nesting_;
    Sink& sink_;
};

} // namespace vorn::parsers::toml
