#include "string_scanner.h"

#include <cstddef>

#include "character_class.h"
#include "character_run.h"
#include "escape.h"
#include "utf8.h"

namespace vorn::parsers::toml
{
namespace
{

constexpr Token notRecognised = {TokenType::none, nullptr};

// The end of `count` hexadecimal digits; null if there are fewer.
const char* hexEnd(const char* at, const char* end, std::ptrdiff_t count) noexcept
{
    return end - at >= count && skip(at, at + count, hexDigit) == at + count ? at + count : nullptr;
}

// The end of the escape whose backslash is at `at`; null if it is unknown or incomplete.
const char* escapeEnd(const char* at, const char* end) noexcept
{
    if (end - at < 2)
    {
        return nullptr;
    }
    const int digits = escapeDigits(static_cast<unsigned char>(at[1]));
    return digits != unknownEscape ? hexEnd(at + 2, end, digits) : nullptr;
}

// The same, or the end of a backslash and one line break.
const char* multiLineEscapeEnd(const char* at, const char* end) noexcept
{
    if (end - at >= 2 && at[1] == '\n')
    {
        return at + 2;
    }
    if (end - at >= 3 && at[1] == '\r' && at[2] == '\n')
    {
        return at + 3;
    }
    return escapeEnd(at, end);
}

// How many quotes come next, up to four.  (To count all of a long run for each token in it
// would take a time that grows with the square of its length.)
std::ptrdiff_t countQuotes(const char* at, const char* end, char quote) noexcept
{
    const char* const limit = end - at > 4 ? at + 4 : end;
    const char* stop = at;
    while (stop != limit && *stop == quote)
    {
        ++stop;
    }
    return stop - at;
}

// A string on one line, without its opening quote.
template <char quote, TokenType type>
Token scanLine(const char* at, const char* end) noexcept
{
    constexpr bool escapes = type == TokenType::basicString;
    for (;;)
    {
        at = escapes ? runEnd<Plain<quote, '\n', '\\'>>(at, end)
                     : runEnd<Plain<quote, '\n'>>(at, end);
        if (at == end || *at == '\n')
        {
            return notRecognised;
        }
        if (*at == quote)
        {
            return {type, at + 1};
        }
        at = *at == '\\' ? escapeEnd(at, end) : sequenceEnd(at, end, Utf8Range::upToFFFF);
        if (at == nullptr)
        {
            return notRecognised;
        }
    }
}

// A string on several lines, without its opening delimiter.  Fewer than three quotes
// are content; of four or more, one is.
template <char quote, TokenType type>
Token scanLines(const char* at, const char* end) noexcept
{
    constexpr bool escapes = type == TokenType::mlBasicString;
    for (;;)
    {
        at = escapes ? runEnd<Plain<quote, '\\'>>(at, end) : runEnd<Plain<quote>>(at, end);
        if (at == end)
        {
            return notRecognised;
        }
        if (*at == quote)
        {
            const std::ptrdiff_t quotes = countQuotes(at, end, quote);
            if (quotes >= 3)
            {
                return {type, at + (quotes == 3 ? 3 : 4)};
            }
            at += quotes;
            continue;
        }
        at = *at == '\\' ? multiLineEscapeEnd(at, end) : sequenceEnd(at, end, Utf8Range::upToFFFF);
        if (at == nullptr)
        {
            return notRecognised;
        }
    }
}

template <char quote, TokenType line, TokenType lines>
Token scanString(const char* begin, const char* end) noexcept
{
    if (end - begin >= 3 && begin[1] == quote && begin[2] == quote)
    {
        return scanLines<quote, lines>(begin + 3, end);
    }
    return scanLine<quote, line>(begin + 1, end);
}

} // namespace

Token scanBasic(const char* begin, const char* end) noexcept
{
    return scanString<'"', TokenType::basicString, TokenType::mlBasicString>(begin, end);
}

Token scanLiteral(const char* begin, const char* end) noexcept
{
    return scanString<'\'', TokenType::literalString, TokenType::mlLiteralString>(begin, end);
}

const char* commentEnd(const char* begin, const char* end) noexcept
{
    const char* at = begin;
    while (at != nullptr)
    {
        at = runEnd<Plain<'\n'>>(at, end);
        if (at == end || *at == '\n')
        {
            return at;
        }
        at = sequenceEnd(at, end, Utf8Range::upToFFFF);
    }
    return nullptr;
}

} // namespace vorn::parsers::toml
