// Follows the rules of documents.
#pragma once

#include <cstdint>

#include "event.h"
#include "nesting_stack.h"
#include "scanned_tokens.h"

namespace vorn::parsers::toml
{

constexpr bool isKey(TokenType type)
{
    return type == TokenType::bareKey || type == TokenType::basicString ||
           type == TokenType::literalString;
}

constexpr Event keyEvent(TokenType type)
{
    return type == TokenType::bareKey ? Event::visitBareKey : Event::visitQuotedKey;
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

// Follows the rules of documents token by token, with one token of lookahead.  Each
// member leaves the first token behind what it has read; false means a refusal.
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
        for (advance(); next_.type != TokenType::endOfInput;)
        {
            if (next_.type == TokenType::newline)
            {
                advance();
                continue;
            }
            const bool read = next_.type == TokenType::openBracket ? header() : pair();
            // A line break must follow, also at the document's end.
            if (!read || next_.type != TokenType::newline)
            {
                return false;
            }
            sink_.lineEnd(tokens_.position());
        }
        return true;
    }

private:
    void advance() { next_ = tokens_.next(); }

    // Goes over a token of the given type.
    bool expect(TokenType type)
    {
        if (next_.type != type)
        {
            return false;
        }
        advance();
        return true;
    }

    bool header()
    {
        advance();
        if (next_.type != TokenType::openBracket)
        {
            sink_.event(Event::beginTable);
            if (!key() || !expect(TokenType::closeBracket))
            {
                return false;
            }
            sink_.event(Event::endTable);
            return true;
        }
        advance();
        sink_.event(Event::beginArrayTable);
        if (!key() || !expect(TokenType::closeBracket) || !expect(TokenType::closeBracket))
        {
            return false;
        }
        sink_.event(Event::endArrayTable);
        return true;
    }

    bool key()
    {
        if (!isKey(next_.type))
        {
            return false;
        }
        const TokenType type = next_.type;
        const std::string_view first = next_.text;
        advance();
        if (next_.type != TokenType::dot)
        {
            sink_.text(keyEvent(type), first);
            return true;
        }
        sink_.event(Event::beginDottedKey);
        sink_.text(keyEvent(type), first);
        while (next_.type == TokenType::dot)
        {
            advance();
            if (!isKey(next_.type))
            {
                return false;
            }
            sink_.text(keyEvent(next_.type), next_.text);
            advance();
        }
        sink_.event(Event::endDottedKey);
        return true;
    }

    bool keyAndEquals()
    {
        sink_.event(Event::beginKeyValue);
        return key() && expect(TokenType::equals);
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
            if (next_.type == TokenType::openBracket)
            {
                sink_.event(Event::beginArray);
                nesting_.enter(Inside::firstElement);
                advance();
                skipNewline();
                continue;
            }
            if (next_.type == TokenType::openBrace)
            {
                sink_.event(Event::beginInlineTable);
                nesting_.enter(Inside::inlineTable);
                advance();
                if (!keyAndEquals())
                {
                    return false;
                }
                continue;
            }
            const Event scalar = scalarEvent(next_.type);
            if (scalar == Event::none)
            {
                return false;
            }
            sink_.text(scalar, next_.text);
            advance();

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

    bool skipNewline() { return expect(TokenType::newline); }

    After afterPair()
    {
        sink_.event(Event::endKeyValue);
        if (next_.type == TokenType::comma)
        {
            advance();
            return keyAndEquals() ? After::value : After::refusal;
        }
        if (!expect(TokenType::closeBrace))
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
            skipNewline();
        }
        const bool committed = skipNewline();
        if (next_.type == TokenType::comma)
        {
            advance();
            if (next_.type != TokenType::closeBracket)
            {
                skipNewline();
                nesting_.setInside(Inside::laterElement);
                return After::value;
            }
        }
        if (committed || !expect(TokenType::closeBracket))
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
    Lexeme next_ = {TokenType::none, {}}; // the lookahead
};

} // namespace vorn::parsers::toml
