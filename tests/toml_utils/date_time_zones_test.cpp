// Date-times are read as local time, with daylight saving time after a zone letter only.
//
// The seconds were worked out by date(1), for example:
//   TZ=Europe/Berlin date -d "2024-07-15 12:00:00" +%s   # with daylight saving time
//   date -d "2024-07-15 12:00:00+01:00" +%s              # standard time
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>

#include <string>
#include <vector>

#include "support/date_times.h"
#include "support/time_zone.h"

using namespace std::string_literals;
using namespace test;
using vorn::parsers::toml::parseDateTime;

namespace
{

struct LocalTime
{
    std::string date;
    std::string time;
    long long behindALetter;
    long long otherwise;
};

// Expects the standard time of all forms without a zone letter right after the seconds.
void expectStandardTime(const std::string& dateAndTime, long long seconds)
{
    for (const std::string& rest :
         {""s, ".5"s, ".999999"s, ".5Z"s, ".1234567Z"s, " Z"s, "J"s, "z"s, "\0Z"s, "+00:00"s,
          "-07:00"s, "+05:30"s, ".25+02:00"s, ".123456-05:00"s, ".1234567+09:30"s, "+01:00Z"s})
    {
        expectSeconds(dateAndTime + rest, seconds);
    }
}

void expectLocalTimes(const std::string& name, const std::vector<LocalTime>& times)
{
    const TimeZone zone(name);
    for (const LocalTime& one : times)
    {
        for (const std::string& separator : {"T"s, " "s})
        {
            const std::string dateAndTime = one.date + separator + one.time;
            SCOPED_TRACE(name + ' ' + dateAndTime);
            for (const std::string& rest : {"Z"s, "A"s, "Z+02:00"s})
            {
                expectSeconds(dateAndTime + rest, one.behindALetter);
            }
            expectStandardTime(dateAndTime, one.otherwise);
        }
    }
}

} // namespace

TEST(TomlUtilsDateTimeZones, utc)
{
    expectLocalTimes("UTC", {
                                {"1979-05-27", "07:32:00", 296638320, 296638320},
                                {"1979-05-27", "00:32:00", 296613120, 296613120},
                                {"2024-07-01", "12:00:00", 1719835200, 1719835200},
                                {"1969-12-31", "23:59:59", -1, -1},
                            });
}

TEST(TomlUtilsDateTimeZones, eastWithDaylightSaving)
{
    expectLocalTimes("Europe/Berlin",
                     {
                         {"2024-01-15", "12:00:00", 1705316400, 1705316400},
                         {"2024-07-15", "12:00:00", 1721037600, 1721041200},
                         {"2024-03-31", "01:59:59", 1711846799, 1711846799},
                         {"2024-03-31", "03:00:00", 1711846800, 1711850400},
                         {"2024-10-27", "01:59:59", 1729987199, 1729990799},
                         {"2024-10-27", "03:00:00", 1729994400, 1729994400},
                         {"1979-05-27", "07:32:00", 296634720, 296634720}, // one year before it
                     });
}

TEST(TomlUtilsDateTimeZones, eastWithoutDaylightSaving)
{
    expectLocalTimes("Asia/Tokyo", {
                                       {"2024-01-15", "12:00:00", 1705287600, 1705287600},
                                       {"2024-07-15", "12:00:00", 1721012400, 1721012400},
                                       {"1979-05-27", "07:32:00", 296605920, 296605920},
                                   });
}

TEST(TomlUtilsDateTimeZones, westWithDaylightSaving)
{
    expectLocalTimes("America/New_York", {
                                             {"2024-01-15", "12:00:00", 1705338000, 1705338000},
                                             {"2024-07-15", "12:00:00", 1721059200, 1721062800},
                                             {"2024-03-10", "01:59:59", 1710053999, 1710053999},
                                             {"2024-03-10", "03:00:00", 1710054000, 1710057600},
                                             {"2024-11-03", "00:59:59", 1730609999, 1730613599},
                                             {"2024-11-03", "02:00:00", 1730617200, 1730617200},
                                             {"1979-05-27", "07:32:00", 296652720, 296656320},
                                             {"1979-05-27", "00:32:00", 296627520, 296631120},
                                         });
}

TEST(TomlUtilsDateTimeZones, halfAnHourOffWithoutDaylightSaving)
{
    expectLocalTimes("Asia/Kolkata", {
                                         {"2024-01-15", "12:00:00", 1705300200, 1705300200},
                                         {"2024-07-15", "12:00:00", 1721025000, 1721025000},
                                         {"2000-01-01", "00:00:00", 946665000, 946665000},
                                         {"1979-05-27", "07:32:00", 296618520, 296618520},
                                     });
}

TEST(TomlUtilsDateTimeZones, halfAnHourOffWithDaylightSavingInJanuary)
{
    expectLocalTimes("Australia/Adelaide", {
                                               {"2024-01-15", "12:00:00", 1705282200, 1705285800},
                                               {"2024-07-15", "12:00:00", 1721010600, 1721010600},
                                               {"2024-04-07", "01:59:59", 1712417399, 1712420999},
                                               {"2024-04-07", "03:00:00", 1712424600, 1712424600},
                                               {"2024-10-06", "01:59:59", 1728145799, 1728145799},
                                               {"2024-10-06", "03:00:00", 1728145800, 1728149400},
                                               {"1979-05-27", "07:32:00", 296604120, 296604120},
                                           });
}

// The clock is one hour on: half past two is half past three with daylight saving time.
TEST(TomlUtilsDateTimeZones, anHourThatDoesNotExistIsReadWithTheOffsetBeforeIt)
{
    expectLocalTimes("Europe/Berlin", {{"2024-03-31", "02:30:00", 1711848600, 1711848600}});
    expectLocalTimes("America/New_York", {{"2024-03-10", "02:30:00", 1710055800, 1710055800}});
    expectLocalTimes("Australia/Adelaide", {{"2024-10-06", "02:30:00", 1728147600, 1728147600}});
}

TEST(TomlUtilsDateTimeZones, anHourThatExistsTwiceIsTheSecondOneUnlessALetterLeavesItOpen)
{
    struct Case
    {
        std::string zone;
        std::string dateAndTime;
        long long first;
        long long second;
    };
    for (const Case& one :
         std::vector<Case>{{"Europe/Berlin", "2024-10-27T02:30:00", 1729989000, 1729992600},
                           {"America/New_York", "2024-11-03T01:30:00", 1730611800, 1730615400},
                           {"Australia/Adelaide", "2024-04-07T02:30:00", 1712419200, 1712422800}})
    {
        SCOPED_TRACE(one.zone);
        const TimeZone zone(one.zone);
        expectStandardTime(one.dateAndTime, one.second);
        // The C library chooses.
        const timeval result = parseDateTime(one.dateAndTime + 'Z');
        EXPECT_TRUE(result.tv_sec == one.first || result.tv_sec == one.second) << result.tv_sec;
        EXPECT_EQ(result.tv_usec, 0);
    }
}

TEST(TomlUtilsDateTimeZones, zoneLettersAreUpperCaseAndNotJ)
{
    const TimeZone zone("Europe/Berlin");
    const long long daylightSaving = 1721037600;
    const long long standard = 1721041200;
    for (int code = 1; code <= 255; ++code)
    {
        const bool isLetter = code >= 'A' && code <= 'Z' && code != 'J';
        const std::string after(1, static_cast<char>(code));
        expectSeconds("2024-07-15T12:00:00" + after, isLetter ? daylightSaving : standard);
        expectSeconds("2024-07-15T12:00:00.5" + after, standard);
        expectSeconds("2024-07-15T12:00:00 " + after, standard);
    }
}

TEST(TomlUtilsDateTimeZones, aLetterCountsWhereverTheDateAndTimeBeforeItStand)
{
    const TimeZone zone("Europe/Berlin");
    expectSeconds("2024-07-15t12:00:00 2001-02-03T04:05:06", 1721041200);
    expectSeconds("2024-07-15t12:00:00 2001-02-03T04:05:06Z", 1721037600);
    expectSeconds("2024-07-15T12:00:00-07:00 2001-02-03 04:05:06A", 1721037600);
    expectSeconds("2024-07-15T12:00:00Z 2001-02-03 04:05:06-07:00", 1721037600);
}

TEST(TomlUtilsDateTimeZones, whereNothingIsReadTheTimeIsLocalToo)
{
    const TimeZone zone("America/New_York");
    expectSeconds("x1979-05-27T07:32:00", -2209057200LL);
    expectSeconds("x1979-05-27T07:32:00Z", -2209057200LL);
}

TEST(TomlUtilsDateTimeZones, textsThatAreNoDateTimesYieldZeroInEveryZone)
{
    for (const std::string& name :
         {"UTC"s, "Europe/Berlin"s, "Asia/Tokyo"s, "America/New_York"s, "Asia/Kolkata"s})
    {
        SCOPED_TRACE(name);
        const TimeZone zone(name);
        expectNoDateTime("1979-05-27t07:32:00Z");
        expectNoDateTime("1979-05-27");
        expectNoDateTime("07:32:00");
    }
}
