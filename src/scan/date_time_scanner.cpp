#include "date_time_scanner.h"

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

// What eight bytes look like, in which '0' stands for any digit.
class Shape
{
public:
    explicit constexpr Shape(const char (&text)[9])
    {
        for (unsigned index = 0; index < 8; ++index)
        {
            const unsigned shift = 8 * (littleEndian ? index : 7 - index);
            const auto byte = static_cast<unsigned char>(text[index]);
            bytes_ |= std::uint64_t{byte} << shift;
            reach_ |= std::uint64_t{text[index] == '0' ? 0x06U : 0x0FU} << shift;
        }
    }

    // Digits differ from '0' by 0 to 9, separators from themselves by 0.  The addition makes
    // any larger difference reach the upper half of its byte.
    bool isAt(const char* at) const noexcept
    {
        const auto difference = loadBytes<std::uint64_t>(at) ^ bytes_;
        return ((difference | (difference + reach_)) & 0xF0F0F0F0F0F0F0F0U) == 0;
    }

private:
    std::uint64_t bytes_ = 0;
    std::uint64_t reach_ = 0;
};

constexpr Shape yearAndMonth("0000-00-");
constexpr Shape shortDate("00-00-00");
constexpr Shape wholeTime("00:00:00");

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
    if (end - at < timeLength || !wholeTime.isAt(at))
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
    return end - at >= dateLength && yearAndMonth.isAt(at) && shortDate.isAt(at + 2);
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
