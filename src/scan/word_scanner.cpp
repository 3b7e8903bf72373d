#include "word_scanner.h"

#include "character_class.h"
#include "character_run.h"
#include "date_time_scanner.h"

#include <cstddef>
#include <string_view>

namespace vorn::parsers::toml
{
namespace
{

// The end of digits with single underscores between them; null if a digit is missing.
const char* digitsEnd(const char* at, const char* end, CharacterClass kind) noexcept
{
    for (;;)
    {
        const char* const stop = skip(at, end, kind);
        if (stop == at)
        {
            return nullptr;
        }
        if (stop == end || *stop != '_')
        {
            return stop;
        }
        at = stop + 1;
    }
}

// The end of a decimal integer without its sign.  A leading zero stands alone.
const char* integerEnd(const char* at, const char* end) noexcept
{
    return at != end && *at == '0' ? at + 1 : digitsEnd(at, end, digit);
}

bool isExponentMark(const char* at, const char* end) noexcept
{
    return at != end && (*at == 'e' || *at == 'E');
}

// The end of the exponent whose mark is at `at`.
const char* exponentEnd(const char* at, const char* end) noexcept
{
    ++at;
    if (at != end && (*at == '+' || *at == '-'))
    {
        ++at;
    }
    return digitsEnd(at, end, digit);
}

Token token(TokenType type, const char* end) noexcept
{
    return {end != nullptr ? type : TokenType::none, end};
}

// A number goes on with the point at `at`: it must be a float.
Token scanFraction(const char* at, const char* end) noexcept
{
    at = digitsEnd(at + 1, end, digit);
    if (at != nullptr && isExponentMark(at, end))
    {
        at = exponentEnd(at, end);
    }
    return token(TokenType::floating, at);
}

struct Radix
{
    TokenType type;
    CharacterClass digits;
};

Radix radixOf(char mark) noexcept
{
    switch (mark)
    {
    case 'x':
        return {TokenType::hexInt, hexDigit};
    case 'o':
        return {TokenType::octInt, octalDigit};
    case 'b':
        return {TokenType::binInt, binaryDigit};
    default:
        return {TokenType::none, digit};
    }
}

// The word from `begin` to `stop` starts with a digit or a minus sign, and no longer token
// goes on after it: it is a number or a bare key.
TokenType classifyNumber(const char* begin, const char* stop) noexcept
{
    const bool isSigned = *begin == '-';
    const char* at = isSigned ? begin + 1 : begin;
    if (!isSigned && *at == '0' && stop - at > 2)
    {
        const Radix radix = radixOf(at[1]);
        if (radix.type != TokenType::none)
        {
            return digitsEnd(at + 2, stop, radix.digits) == stop ? radix.type : TokenType::bareKey;
        }
    }
    at = integerEnd(at, stop);
    if (at == stop)
    {
        return TokenType::decInt;
    }
    if (at != nullptr && isExponentMark(at, stop) && exponentEnd(at, stop) == stop)
    {
        return TokenType::floating;
    }
    return TokenType::bareKey;
}

TokenType classifyKeyword(std::string_view word) noexcept
{
    switch (word.size())
    {
    case 3:
        return word == "inf" ? TokenType::inf : word == "nan" ? TokenType::nan : TokenType::bareKey;
    case 4:
        return word == "true"   ? TokenType::boolean
               : word == "-inf" ? TokenType::inf
               : word == "-nan" ? TokenType::nan
                                : TokenType::bareKey;
    case 5:
        return word == "false" ? TokenType::boolean : TokenType::bareKey;
    default:
        return TokenType::bareKey;
    }
}

// A number, perhaps with a minus sign, or a bare key that starts like one.  Once a float has
// started it must be whole: there is no way back to the word.
Token scanNumber(const char* begin, const char* end) noexcept
{
    const char* const stop = runEnd<KeyCharacters>(begin, end);
    if (stop != end && (*stop == '.' || *stop == '+'))
    {
        const char* const at = integerEnd(*begin == '-' ? begin + 1 : begin, stop);
        if (*stop == '.' && at == stop)
        {
            return scanFraction(stop, end);
        }
        if (*stop == '+' && at != nullptr && at + 1 == stop && isExponentMark(at, stop))
        {
            return token(TokenType::floating, exponentEnd(at, end));
        }
    }
    return {classifyNumber(begin, stop), stop};
}

} // namespace

Token scanDigit(const char* begin, const char* end) noexcept
{
    const char* const stop = runEnd<Digits>(begin, end);
    const char next = stop != end ? *stop : '\0';
    if (next == '-' && beginsWithDate(begin, end))
    {
        return scanDate(begin, end);
    }
    if (next == ':' && stop - begin == 2)
    {
        return scanTime(begin, end);
    }
    if (is(next, keyCharacter) || next == '.')
    {
        return scanNumber(begin, end);
    }
    const bool plain = *begin != '0' || stop - begin == 1;
    return {plain ? TokenType::decInt : TokenType::bareKey, stop};
}

Token scanWord(const char* begin, const char* end) noexcept
{
    if (*begin == '-' && end - begin > 1 && is(begin[1], digit))
    {
        return scanNumber(begin, end);
    }
    const char* const stop = runEnd<KeyCharacters>(begin, end);
    return {classifyKeyword({begin, static_cast<std::size_t>(stop - begin)}), stop};
}

Token scanPlus(const char* begin, const char* end) noexcept
{
    const std::string_view rest(begin + 1, static_cast<std::size_t>(end - begin - 1));
    if (rest.substr(0, 3) == "inf")
    {
        return {TokenType::inf, begin + 4};
    }
    if (rest.substr(0, 3) == "nan")
    {
        return {TokenType::nan, begin + 4};
    }
    const char* const stop = integerEnd(begin + 1, end);
    if (stop == nullptr)
    {
        return {TokenType::none, nullptr};
    }
    if (stop != end && *stop == '.')
    {
        return scanFraction(stop, end);
    }
    return isExponentMark(stop, end) ? token(TokenType::floating, exponentEnd(stop, end))
                                     : token(TokenType::decInt, stop);
}

} // namespace vorn::parsers::toml
