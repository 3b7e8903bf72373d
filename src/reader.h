// Follows the rules of documents.
#pragma once

#include <cstdint>

#include "event.h"
#include "nesting_stack.h"
#include "scanned_tokens.h"

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

// Follows the rules of documents token by token.  Each member stops before the first
// token behind what it has read; false means a refusal.
template <typename Sink>
class Reader
{
public:
    Reader(const char* begin, const char* end, NestingStack& nesting, Sink& sink)
        : tokens_(begin, end), nesting_(nesting), sink_(sink)
    {
    }

    // Reads all lines.
    bool lines()
    {
        while (!tokens_.atEnd())
        {
            if (tokens_.takeNewline())
            {
                continue;
            }
            const bool read = tokens_.take('[') ? header() : pair();
            // A line break must follow, also at the document's end.
            if (!read || !tokens_.takeNewline())
            {
                return false;
            }
            sink_.lineEnd(tokens_.position());
        }
        return true;
    }

private:
    bool header()
    {
        if (!tokens_.take('['))
        {
            sink_.event(Event::beginTable);
            if (!key() || !tokens_.take(']'))
            {
                return false;
            }
            sink_.event(Event::endTable);
            return true;
        }
        sink_.event(Event::beginArrayTable);
        if (!key() || !tokens_.take(']') || !tokens_.take(']'))
        {
            return false;
        }
        sink_.event(Event::endArrayTable);
        return true;
    }

    bool key()
    {
        const Lexeme first = tokens_.take();
        const bool dotted = tokens_.isNext('.');
        if (dotted)
        {
            sink_.event(Event::beginDottedKey);
        }
        if (!keyPart(first))
        {
            return false;
        }
        while (tokens_.take('.'))
        {
            if (!keyPart(tokens_.take()))
            {
                return false;
            }
        }
        if (dotted)
        {
            sink_.event(Event::endDottedKey);
        }
        return true;
    }

    bool keyPart(const Lexeme& part)
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
        sink_.event(Event::beginKeyValue);
        return key() && tokens_.take('=');
    }

    // A pair of the top level, with all that nests in it.
    bool pair()
    {
        if (!keyAndEquals())
        {
            return false;
        }
        for (;;)
        {
            // A value begins here, or what it encloses.
            if (tokens_.take('['))
            {
                sink_.event(Event::beginArray);
                if (!nesting_.enter(Inside::firstElement))
                {
                    return false;
                }
                tokens_.takeNewline();
                continue;
            }
            if (tokens_.take('{'))
            {
                sink_.event(Event::beginInlineTable);
                if (!nesting_.enter(Inside::inlineTable) || !keyAndEquals())
                {
                    return false;
                }
                continue;
            }
            const Lexeme value = tokens_.take();
            const Event scalar = scalarEvent(value.type);
            if (scalar == Event::none)
            {
                return false;
            }
            sink_.text(scalar, value.text);

            // The value ends, and maybe what encloses it.
            After after = After::end;
            while (after == After::end)
            {
                if (nesting_.inside() == Inside::pair)
                {
                    sink_.event(Event::endKeyValue);
                    return true;
                }
                after = nesting_.inside() == Inside::inlineTable ? afterPair() : afterElement();
            }
            if (after == After::refusal)
            {
                return false;
            }
        }
    }

    enum class After
    {
        value, // another value follows
        end,   // the array or inline table has ended
        refusal,
    };

    After afterPair()
    {
        sink_.event(Event::endKeyValue);
        if (tokens_.take(','))
        {
            return keyAndEquals() ? After::value : After::refusal;
        }
        if (!tokens_.take('}'))
        {
            return After::refusal;
        }
        sink_.event(Event::endInlineTable);
        nesting_.leave();
        return After::end;
    }

    // Behind an element: one line break, but not behind the first one.  Then another
    // one commits to a comma and a value.  Without it a bracket or a comma may follow,
    // and behind the comma a bracket, or else a value with one line break before it.
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

    ScannedTokens tokens_;
    NestingStack& nesting_;
    Sink& sink_;
};

} // namespace vorn::parsers::toml
