#include "string_scanner.h"

#include "character_class.h"
#include "packed_bytes.h"

#include <cstddef>

namespace vorn::parsers::toml
{
namespace
{

constexpr Token notRecognised = {TokenType::none, nullptr};

// The first position from `at` on that holds one of the three characters or a byte
// that is not ASCII.
template <char first, char second, char third>
const char* plainEnd(const char* at, const char* end) noexcept
{
    for (; end - at >= static_cast<std::ptrdiff_t>(sizeof(PackedBytes)); at += sizeof(PackedBytes))
    {
        const PackedBytes word = loadBytes(at);
        const PackedBytes found =
            (bytesEqual(word, first) | bytesEqual(word, second) | bytesEqual(word, third) | word) &
            highBits;
        if (found != 0)
        {
            // The lowest byte that is marked has been found for sure.
            if constexpr (littleEndian)
            {
                return at + lowestByte(found);
            }
            break;
        }
    }
    while (at != end && *at != first && *at != second && *at != third &&
           static_cast<signed char>(*at) >= 0)
    {
        ++at;
    }
    return at;
}

bool isContinuation(char c) noexcept
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// The end of the well-formed UTF-8 sequence, up to U+FFFF and not ASCII, at `at`.
const char* sequenceEnd(const char* at, const char* end) noexcept
{
    const auto lead = static_cast<unsigned char>(*at);
    if (lead >= 0xC2 && lead <= 0xDF)
    {
        return end - at >= 2 && isContinuation(at[1]) ? at + 2 : nullptr;
    }
    if ((lead & 0xF0) != 0xE0 || end - at < 3 || !isContinuation(at[1]) || !isContinuation(at[2]))
    {
        return nullptr;
    }
    const auto second = static_cast<unsigned char>(at[1]);
    const bool overlong = lead == 0xE0 && second < 0xA0;
    const bool surrogate = lead == 0xED && second >= 0xA0;
    return overlong || surrogate ? nullptr : at + 3;
}

// The end of `count` hexadecimal digits.
const char* hexEnd(const char* at, const char* end, std::ptrdiff_t count) noexcept
{
    return end - at >= count && skip(at, at + count, hexDigit) == at + count ? at + count : nullptr;
}

// The end of the escape whose backslash stands at `at`.
const char* escapeEnd(const char* at, const char* end) noexcept
{
    if (end - at < 2)
    {
        return nullptr;
    }
    switch (at[1])
    {
    case '"':
    case '\'':
    case '\\':
    case 'b':
    case 'f':
    case 'n':
    case 'r':
    case 't':
        return at + 2;
    case 'u':
        return hexEnd(at + 2, end, 4);
    case 'U':
        return hexEnd(at + 2, end, 8);
    default:
        return nullptr;
    }
}

// The same, or a backslash with one line break behind it.
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

// How many quotes stand there, up to four.  (Were all of a long run counted for each token
// within it, the time would grow with the square of its length.)
std::ptrdiff_t countQuotes(const char* at, const char* end, char quote) noexcept
{
    const char* const most = end - at > 4 ? at + 4 : end;
    const char* stop = at;
    while (stop != most && *stop == quote)
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
        at = plainEnd < quote, '\n', escapes ? '\\' : quote > (at, end);
        if (at == end || *at == '\n')
        {
            return notRecognised;
        }
        if (*at == quote)
        {
            return {type, at + 1};
        }
        at = *at == '\\' ? escapeEnd(at, end) : sequenceEnd(at, end);
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
        at = plainEnd < quote, quote, escapes ? '\\' : quote > (at, end);
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
        at = *at == '\\' ? multiLineEscapeEnd(at, end) : sequenceEnd(at, end);
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
        at = plainEnd<'\n', '\n', '\n'>(at, end);
        if (at == end || *at == '\n')
        {
            return at;
        }
        at = sequenceEnd(at, end);
    }
    return nullptr;
}

} // namespace vorn::parsers::toml
