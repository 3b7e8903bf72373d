#include <gtest/gtest.h>
#include <vorn/parsers/toml_values.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <ctime>
#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "support/time_zone.h"

using namespace vorn::parsers::toml;
using Clock = std::chrono::system_clock;

namespace
{

std::optional<std::chrono::nanoseconds> sinceEpoch(const std::string& text)
{
    const auto point = dateTimeValue(text).value().toTimePoint();
    return point ? std::optional(std::chrono::nanoseconds(point->time_since_epoch()))
                 : std::nullopt;
}

std::optional<std::chrono::nanoseconds> nanoseconds(long long count)
{
    return std::chrono::nanoseconds(count);
}

constexpr long long second = 1000000000;

} // namespace

TEST(TimePoint, IsThatOfADateTimeWithAnOffset)
{
    const std::vector<std::pair<std::string, long long>> cases = {
        {"1970-01-01T00:00:00Z", 0},           {"1970-01-02T00:00:00Z", 86400},
        {"1970-01-01T00:00:00+01:00", -3600},  {"1970-01-01T00:00:00-01:30", 5400},
        {"1979-05-27T07:32:00Z", 296638320},   {"1979-05-27T00:32:00-07:00", 296638320},
        {"2000-02-29T23:59:59Z", 951868799},   {"2000-03-01T00:00:00Z", 951868800},
        {"1900-03-01T00:00:00Z", -2203891200}, {"2016-12-31T23:59:60Z", 1483228800},
        {"2038-01-19T03:14:08Z", 2147483648},  {"2262-04-11T00:00:00Z", 9223286400},
        {"1677-09-22T00:00:00Z", -9223286400},
    };
    for (const auto& [text, seconds] : cases)
    {
        EXPECT_EQ(sinceEpoch(text), nanoseconds(seconds * second)) << text;
    }
    EXPECT_EQ(sinceEpoch("1970-01-01T00:00:00.000000001Z"), nanoseconds(1));
    EXPECT_EQ(sinceEpoch("1969-12-31T23:59:59.999999999Z"), nanoseconds(-1));
}

// timegm() knows the calendar, too.
TEST(TimePoint, IsThatOfTheCLibrary)
{
    using Limits = std::numeric_limits<std::time_t>;
    const std::int64_t first = std::max<std::int64_t>(-9200000000, Limits::min());
    const std::int64_t end = std::min<std::int64_t>(9200000000, Limits::max());
    for (std::int64_t seconds = first; seconds < end; seconds += 12345678 + seconds % 86400)
    {
        const auto time = static_cast<std::time_t>(seconds);
        std::tm parts = {};
        gmtime_r(&time, &parts);
        const DateTime value = {Date{parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday},
                                Time{parts.tm_hour, parts.tm_min, parts.tm_sec, 0}, 0};
        ASSERT_TRUE(value.toTimePoint()) << time;
        EXPECT_EQ(Clock::to_time_t(*value.toTimePoint()), time);
    }
}

TEST(TimePoint, EndsWithTheClock)
{
    using Limits = std::numeric_limits<long long>;
    ASSERT_EQ(std::nano::den, Clock::period::den);
    EXPECT_EQ(sinceEpoch("2262-04-11T23:47:16.854775807Z"), nanoseconds(Limits::max()));
    EXPECT_EQ(sinceEpoch("1677-09-21T00:12:43.145224192Z"), nanoseconds(Limits::min()));
    EXPECT_EQ(sinceEpoch("1677-09-21T00:12:44Z"), nanoseconds(-9223372036 * second));
    for (const std::string text :
         {"2262-04-11T23:47:16.854775808Z", "2262-04-11T23:47:17Z",
          "1677-09-21T00:12:43.145224191Z", "1677-09-21T00:12:43Z", "0000-01-01T00:00:00Z",
          "9999-12-31T23:59:60Z", "0000-01-01T00:00:00+23:59", "9999-12-31T23:59:59-23:59"})
    {
        EXPECT_EQ(sinceEpoch(text), std::nullopt) << text;
    }
}

TEST(TimePoint, NeedsAllParts)
{
    for (const std::string text : {"1979-05-27", "07:32:00", "1979-05-27T07:32:00"})
    {
        EXPECT_EQ(sinceEpoch(text), std::nullopt) << text;
    }
    EXPECT_EQ(DateTime().toTimePoint(), std::nullopt);
    EXPECT_NE((DateTime{Date{}, Time{}, 0}).toTimePoint().has_value(), true) << "the year 0";
}

TEST(TimePoint, NeedsPartsThatExist)
{
    constexpr int max = std::numeric_limits<int>::max();
    constexpr int min = std::numeric_limits<int>::min();
    const Date date = {2000, 1, 1};
    ASSERT_TRUE((DateTime{date, Time{}, 0}).toTimePoint());
    for (const Date& other :
         {Date{2001, 2, 29}, Date{2000, 13, 1}, Date{2000, 0, 1}, Date{max, 1, 1}, Date{min, 1, 1},
          Date{2000, min, 1}, Date{2000, max, 1}, Date{2000, 1, min}, Date{2000, 1, max}})
    {
        EXPECT_EQ((DateTime{other, Time{}, 0}).toTimePoint(), std::nullopt);
    }
    for (const Time& other :
         {Time{24, 0, 0, 0}, Time{-1, 0, 0, 0}, Time{0, 60, 0, 0}, Time{0, 0, 61, 0},
          Time{0, 0, 0, -1}, Time{0, 0, 0, 1000000000}, Time{max, 0, 0, 0}, Time{0, min, 0, 0}})
    {
        EXPECT_EQ((DateTime{date, other, 0}).toTimePoint(), std::nullopt);
    }
    for (const int offset : {1440, -1440, max, min})
    {
        EXPECT_EQ((DateTime{date, Time{}, offset}).toTimePoint(), std::nullopt);
    }
}

TEST(TimePoint, IsTheSameInAllTimeZones)
{
    const auto expected = sinceEpoch("1979-05-27T07:32:00Z");
    for (const std::string zone : {"America/New_York", "Asia/Kolkata", "Europe/Berlin"})
    {
        const test::TimeZone current(zone);
        EXPECT_EQ(sinceEpoch("1979-05-27T07:32:00Z"), expected) << zone;
        EXPECT_EQ(sinceEpoch("1979-05-27T09:32:00+02:00"), expected) << zone;
    }
}
