#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

#include "scan/character_class.h"
#include "scan/character_run.h"
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
class DirectCursor : public TokenCursor
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
        const char* const stop = bareKeyEnd(position(), end());
        return stop != nullptr ? TakenText{Event::visitBareKey, goOver(stop)} : takeAny<keyEvent>();
    }

    // Goes over a bare key and the sign after it, with a blank on each side of that or on none, if
    // a value comes next.  Otherwise it stays.
    bool takePlainKey(std::string_view& key) noexcept
    {
        const char* const begin = position();
        if (!is(*begin, letter))
        {
            return false;
        }
        const char* const stop = earlyEnd<KeyCharacters>(begin, end());
        if (stop == nullptr || end() - stop < 4 ||
            (is(*begin, keywordStart) && startsLikeValue(begin)))
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
            return takeString();
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
            return takeBoolean("true");
        case 'f':
            return takeBoolean("false");
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
    static constexpr bool hasVectors = ByteBlock::size > WordBlock::size;

    // The end of a run.  Where it is looked for by words, that is a function of its own: one in
    // line would take more room, and no less time.
    template <typename Run>
    static const char* earlyEnd(const char* at, const char* end) noexcept
    {
        if constexpr (hasVectors)
        {
            return earlyRunEnd<Run>(at, end);
        }
        return earlyEndByWords<Run>(at, end);
    }
    template <typename Run>
    [[gnu::noinline]] static const char* earlyEndByWords(const char* at, const char* end) noexcept
    {
        return earlyRunEnd<Run>(at, end);
    }

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

    // The end of a bare key; null if that is not easy to see.
    [[gnu::noinline]] static const char* bareKeyEnd(const char* begin, const char* end) noexcept
    {
        if (!is(*begin, letter))
        {
            return nullptr;
        }
        const char* const stop = earlyEnd<KeyCharacters>(begin, end);
        return stop != nullptr && is(*begin, keywordStart) && startsLikeValue(begin) ? nullptr
                                                                                     : stop;
    }

    // The start of the token after a line break; null if there is none.
    [[gnu::noinline]] static const char* afterNewline(TokenCursor tokens) noexcept
    {
        return tokens.takeNewline() ? tokens.position() : nullptr;
    }

    template <std::size_t size>
    static bool startsWith(const char* at, const char (&text)[size]) noexcept
    {
        return std::memcmp(at, text, size - 1) == 0;
    }

    // Whether a word could be a boolean or a float.  There are some bytes more.
    static bool startsLikeValue(const char* word) noexcept
    {
        return startsWith(word, "true") || startsWith(word, "fals") || startsWith(word, "inf") ||
               startsWith(word, "nan");
    }

    TakenText takeString() noexcept
    {
        const char* const content = position() + 1;
        const char* const stop = earlyEnd<Plain<'"', '\n', '\\'>>(content, end());
        // An empty string could be the start of a longer delimiter.
        if (stop == nullptr || *stop != '"' || stop == content)
        {
            return takeAny<valueEvent>();
        }
        return {Event::visitBasicString, goOver(stop + 1)};
    }

    // A decimal integer, or a float with a fraction, whose digits start at `whole`.
    TakenText takeNumber(const char* whole) noexcept
    {
        if constexpr (hasVectors)
        {
            return takeNumberInBlock(whole);
        }
        return takeNumberByWords(whole);
    }

    TakenText takeNumberInBlock(const char* whole) noexcept
    {
        if (end() - whole <= ByteBlock::size)
        {
            return takeAny<valueEvent>();
        }
        const auto others = Digits::outside(ByteBlock(whole));
        if (others == 0)
        {
            return takeAny<valueEvent>();
        }
        const char* const point = whole + ByteBlock::firstOf(others);
        if (point == whole || (*whole == '0' && point != whole + 1))
        {
            return takeAny<valueEvent>();
        }
        if (endsNumber(*point))
        {
            return {Event::visitInteger, goOver(point)};
        }
        const auto more = others & (others - 1);
        if (*point == '.' && more != 0)
        {
            const char* const stop = whole + ByteBlock::firstOf(more);
            if (stop != point + 1 && endsNumber(*stop))
            {
                return {Event::visitFloat, goOver(stop)};
            }
        }
        return takeAny<valueEvent>();
    }

    TakenText takeNumberByWords(const char* whole) noexcept
    {
        const char* const point = earlyEnd<Digits>(whole, end());
        if (point == nullptr || point == whole || (*whole == '0' && point != whole + 1))
        {
            return takeAny<valueEvent>();
        }
        if (endsNumber(*point))
        {
            return {Event::visitInteger, goOver(point)};
        }
        const char* const stop = *point == '.' ? earlyEnd<Digits>(point + 1, end()) : nullptr;
        if (stop != nullptr && stop != point + 1 && endsNumber(*stop))
        {
            return {Event::visitFloat, goOver(stop)};
        }
        return takeAny<valueEvent>();
    }

    // No number, date or time goes on with these.
    static bool endsNumber(char c) noexcept
    {
        return static_cast<unsigned char>(c) <= ',' || c == ']' || c == '}';
    }

    template <std::size_t size>
    TakenText takeBoolean(const char (&word)[size]) noexcept
    {
        const char* const begin = position();
        if (end() - begin >= static_cast<std::ptrdiff_t>(size) && startsWith(begin, word) &&
            !is(begin[size - 1], keyCharacter))
        {
            return {Event::visitBoolean, goOver(begin + (size - 1))};
        }
        return takeAny<valueEvent>();
    }
};

inline TakenText takeKeyPart(DirectCursor& tokens)
{
    return tokens.takeKeyPart();
}

inline TakenText takeValue(DirectCursor& tokens)
{
    return tokens.takeValue();
}

inline bool takePlainKey(DirectCursor& tokens, std::string_view& key)
{
    return tokens.takePlainKey(key);
}

inline bool takeCommaBeforeValue(DirectCursor& tokens)
{
    return tokens.takeCommaBeforeValue();
}

} // namespace vorn::parsers::toml
