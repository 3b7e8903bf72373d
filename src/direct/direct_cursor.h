#pragma once

#include <cstddef>
#include <string_view>

#include "plain_tokens.h"
#include "scan/byte_block.h"
#include "scan/character_class.h"
#include "token_cursor.h"
#include "token_events.h"

namespace vorn::parsers::toml
{

// Takes the same tokens as TokenCursor.  Those that come most often are recognised in line, and
// some together; what is the least unusual, or close to the end of the text, is left to the
// scanner.
//
// Where a token is never known before the end of the one before it, all that is computed from one
// to the next takes its whole time.  What can be foreseen is a branch instead: a blank, a sign.
template <typename Block>
class BlockCursor : public TokenCursor
{
public:
    using TokenCursor::TokenCursor;

    bool takeNewline() noexcept
    {
        const char* const at = position();
        if (*at == '\n' && is(at[1], valueStart))
        {
            goTo(at + 1);
            return true;
        }
        if (static_cast<unsigned char>(*at) > '\r')
        {
            return false;
        }
        const char* const next = afterNewline(*this);
        goTo(next != nullptr ? next : at);
        return next != nullptr;
    }

    TakenText takeKeyPart() noexcept
    {
        const char* const stop = keyPartEnd(position(), end());
        return stop != nullptr ? TakenText{Event::visitBareKey, goOver(stop)} : takeAny<keyEvent>();
    }

    // Goes over a bare key and the sign after it, with a blank on each side of that or on none, if
    // a value comes next.  Otherwise it stays.
    bool takePlainKey(std::string_view& key) noexcept
    {
        const char* const begin = position();
        const char* const stop = plainKeyEnd<Block>(begin, end());
        if (stop == nullptr || end() - stop < 4)
        {
            return false;
        }
        const char* value = stop + 1;
        if (startsWith(stop, " = "))
        {
            value = stop + 3;
        }
        else if (*stop != '=')
        {
            return false;
        }
        if (!is(*value, valueStart))
        {
            return false;
        }
        key = {begin, static_cast<std::size_t>(stop - begin)};
        goTo(value);
        return true;
    }

    TakenText takeValue() noexcept
    {
        const char first = *position();
        if (first == '"')
        {
            return takeValueUpTo(plainStringEnd<Block>(position(), end()), Event::visitBasicString);
        }
        if (is(first, digit))
        {
            return takeNumber(position());
        }
        switch (first)
        {
        case '[':
            return {Event::beginArray, goOver(position() + 1)};
        case '{':
            return {Event::beginInlineTable, goOver(position() + 1)};
        case '-':
        case '+':
            return takeNumber(position() + 1);
        case 't':
            return takeValueUpTo(plainWordEnd(position(), end(), "true"), Event::visitBoolean);
        case 'f':
            return takeValueUpTo(plainWordEnd(position(), end(), "false"), Event::visitBoolean);
        default:
            return takeAny<valueEvent>();
        }
    }

    // Goes over a comma with at most one blank after it, if a value comes next.  Otherwise it
    // stays.
    bool takeCommaBeforeValue() noexcept
    {
        const char* next = position();
        if (*next != ',')
        {
            return false;
        }
        ++next;
        if (*next == ' ')
        {
            ++next;
        }
        if (!is(*next, valueStart))
        {
            return false;
        }
        goTo(next);
        return true;
    }

private:
    // What is rare has functions of its own, which do not take the address of this.
    struct Found
    {
        Event event;
        const char* stop;
    };

    template <Event (*eventOf)(TokenType)>
    [[gnu::noinline]] static Found find(const char* begin, const char* end) noexcept
    {
        const Token token = scanToken(begin, end);
        return {eventOf(token.type), token.end};
    }

    template <Event (*eventOf)(TokenType)>
    TakenText takeAny() noexcept
    {
        const Found found = find<eventOf>(position(), end());
        return {found.event, found.event != Event::none ? goOver(found.stop) : std::string_view()};
    }

    // Goes over a value that ends at `stop`, or over any where that is null.
    TakenText takeValueUpTo(const char* stop, Event event) noexcept
    {
        return stop != nullptr ? TakenText{event, goOver(stop)} : takeAny<valueEvent>();
    }

    TakenText takeNumber(const char* whole) noexcept
    {
        const PlainNumber number = plainNumber<Block>(whole, end());
        return takeValueUpTo(number.stop, number.event);
    }

    [[gnu::noinline]] static const char* keyPartEnd(const char* begin, const char* end) noexcept
    {
        return plainKeyEnd<Block>(begin, end);
    }

    // The start of the token after a line break; null if there is none.
    [[gnu::noinline]] static const char* afterNewline(TokenCursor tokens) noexcept
    {
        return tokens.takeNewline() ? tokens.position() : nullptr;
    }
};

using DirectCursor = BlockCursor<ByteBlock>;

template <typename Block>
TakenText takeKeyPart(BlockCursor<Block>& tokens)
{
    return tokens.takeKeyPart();
}

template <typename Block>
TakenText takeValue(BlockCursor<Block>& tokens)
{
    return tokens.takeValue();
}

template <typename Block>
bool takePlainKey(BlockCursor<Block>& tokens, std::string_view& key)
{
    return tokens.takePlainKey(key);
}

template <typename Block>
bool takeCommaBeforeValue(BlockCursor<Block>& tokens)
{
    return tokens.takeCommaBeforeValue();
}

} // namespace vorn::parsers::toml
