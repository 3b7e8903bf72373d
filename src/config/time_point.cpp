#include <vorn/parsers/toml_values.h>

#include "calendar.h"

namespace vorn::parsers::toml
{
namespace
{

using Clock = std::chrono::system_clock;
using Ticks = Clock::rep;
constexpr Ticks ticksOfSecond = Clock::period::den;
constexpr int nanosecondsOfSecond = 1000000000;
static_assert(Clock::period::num == 1 && nanosecondsOfSecond % ticksOfSecond == 0);

// Days since 1970-01-01.
std::int64_t daysSinceEpoch(const Date& date)
{
    // Years that start with March end with the day that not all years have.
    const int year = date.year - (date.month <= 2 ? 1 : 0) + 400; // not negative
    const int month = date.month + (date.month <= 2 ? 9 : -3);    // March is 0
    const int dayOfYear = (153 * month + 2) / 5 + date.day - 1;
    const int day = year * 365 + year / 4 - year / 100 + year / 400 + dayOfYear;
    constexpr int epoch = 719468 + 146097; // this day of 1970-01-01, with the 400 years
    return day - epoch;
}

} // namespace

std::optional<Clock::time_point> DateTime::toTimePoint() const noexcept
{
    if (!date || !time || !offset || !config::exists(*date) || !config::exists(*time) ||
        !config::isOffset(*offset))
    {
        return std::nullopt;
    }
    const int minuteOfDay = time->hour * 60 + time->minute;
    const std::int64_t minutes =
        daysSinceEpoch(*date) * config::minutesOfDay + minuteOfDay - *offset;
    std::int64_t seconds = minutes * 60 + time->second;
    std::int64_t fraction = time->nanosecond / (nanosecondsOfSecond / ticksOfSecond);
    // The second before the first one of the clock may be out of range, where what comes after it
    // is not.
    if (seconds < 0 && fraction != 0)
    {
        ++seconds;
        fraction -= ticksOfSecond;
    }
    Ticks ticks = 0;
    if (__builtin_mul_overflow(seconds, ticksOfSecond, &ticks) ||
        __builtin_add_overflow(ticks, fraction, &ticks))
    {
        return std::nullopt;
    }
    return Clock::time_point(Clock::duration(ticks));
}

} // namespace vorn::parsers::toml
