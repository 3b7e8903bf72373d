#include "date_time_scanner.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include "character_class.h"
#include "packed_bytes.h"

namespace vorn::parsers::toml
{
namespace
{

constexpr std::ptrdiff_t dateLength = 10;      // 0000-00-00
constexpr std::ptrdiff_t timeLength = 8;       // 00:00:00
constexpr std::ptrdiff_t hourMinuteLength = 5; // 00:00

// Whether eight bytes have a shape, in which '0' stands for any digit.
//
// Digits differ from '0' by 0 to 9, separators from themselves by 0.  The addition makes
// any larger difference reach the upper half of its byte.
bool haveShape(const char* at, const char (&shape)[9]) noexcept
{
    std::array<char, 8> reach = {};
    for (unsigned index = 0; index < 8; ++index)
    {
        reach[index] = shape[index] == '0' ? 0x06 : 0x0F;
    }
    const auto difference = loadBytes<std::uint64_t>(at) ^ loadBytes<std::uint64_t>(shape);
    const auto beyond = difference + loadBytes<std::uint64_t>(reach.data());
    return ((difference | beyond) & 0xF0F0F0F0F0F0F0F0U) == 0;
}

bool areHourAndColon(const char* at, const char* end) noexcept
{
    return end - at >= 3 && is(at[0], digit) && is(at[1], digit) && at[2] == ':';
}

bool areHourAndMinute(const char* at, const char* end) noexcept
{
    return end - at >= hourMinuteLength && areHourAndColon(at, end) && is(at[3], digit) &&
           is(at[4], digit);
}

// The end of a time with an optional fraction; null if there is none.
const char* partialTimeEnd(const char* at, const char* end) noexcept
{
    if (end - at < timeLength || !haveShape(at, "00:00:00"))
    {
        return nullptr;
    }
    at += timeLength;
    if (at == end || *at != '.')
    {
        return at;
    }
    const char* const stop = skip(at + 1, end, digit);
    return stop != at + 1 ? stop : nullptr;
}

// The date-time whose time starts at `at`.
Token scanDateTime(const char* at, const char* end) noexcept
{
    at = partialTimeEnd(at, end);
    if (at == nullptr)
    {
        return {TokenType::none, nullptr};
    }
    if (at == end)
    {
        return {TokenType::localDateTime, at};
    }
    switch (*at)
    {
    case 'Z':
        return {TokenType::offsetDateTime, at + 1};
    case '+':
    case '-':
        return areHourAndMinute(at + 1, end)
                   ? Token{TokenType::offsetDateTime, at + 1 + hourMinuteLength}
                   : Token{TokenType::none, nullptr};
    default:
        return {TokenType::localDateTime, at};
    }
}

} // namespace

bool beginsWithDate(const char* at, const char* end) noexcept
{
    return end - at >= dateLength && haveShape(at, "0000-00-") && haveShape(at + 2, "00-00-00");
}

// A date before a blank, and one before an hour with a colon, starts a date-time.  That must
// be whole: there is no way back to the date alone.
Token scanDate(const char* begin, const char* end) noexcept
{
    const char* const at = begin + dateLength;
    if (at != end && *at == ' ')
    {
        return scanDateTime(at + 1, end);
    }
    if (at != end && (*at == 'T' || *at == 't') && areHourAndColon(at + 1, end))
    {
        return scanDateTime(at + 1, end);
    }
    const char* const stop = skip(at, end, keyCharacter);
    return {stop == at ? TokenType::localDate : TokenType::bareKey, stop};
}

Token scanTime(const char* begin, const char* end) noexcept
{
    const char* const stop = partialTimeEnd(begin, end);
    return {stop != nullptr ? TokenType::localTime : TokenType::none, stop};
}

} // namespace vorn::parsers::toml
