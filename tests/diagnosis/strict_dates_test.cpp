// Dates and times that do not exist.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "diagnosis/strict_mistakes.h"
#include "strict_mistakes_of.h"

using namespace test;

namespace
{

std::string digits(unsigned number, int count)
{
    char text[16] = {};
    std::snprintf(text, sizeof(text), "%0*u", count, number);
    return text;
}

std::string codesIn(const std::string& value)
{
    std::string codes;
    for (const auto& mistake : strictMistakes("a = " + value + '\n'))
    {
        codes += mistake.code;
    }
    return codes;
}

unsigned daysOf(unsigned month, unsigned year)
{
    const bool isLeapYear = year % 400 == 0 || (year % 4 == 0 && year % 100 != 0);
    constexpr unsigned days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 0 || month > 12 ? 0 : days[month - 1] + (month == 2 && isLeapYear ? 1 : 0);
}

} // namespace

TEST(StrictDates, eachDayOfSomeYears)
{
    for (const unsigned year : {0U, 1U, 4U, 100U, 1900U, 2000U, 2023U, 2024U, 2100U, 9999U})
    {
        for (unsigned month = 0; month < 100; ++month)
        {
            for (unsigned day = 0; day < 100; ++day)
            {
                const std::string date =
                    digits(year, 4) + '-' + digits(month, 2) + '-' + digits(day, 2);
                const bool exists = day >= 1 && day <= daysOf(month, year);
                ASSERT_EQ(codesIn(date), exists ? "" : "date-does-not-exist") << date;
            }
        }
    }
}

TEST(StrictDates, eachPartOfATime)
{
    for (unsigned number = 0; number < 100; ++number)
    {
        const std::string two = digits(number, 2);
        const std::string missing = "time-does-not-exist";
        const std::string wrong = "offset-out-of-range";
        for (const std::string date : {"", "2024-02-29T", "0000-02-29t", "1979-05-27 "})
        {
            EXPECT_EQ(codesIn(date + two + ":59:00"), number < 24 ? "" : missing);
            EXPECT_EQ(codesIn(date + "23:" + two + ":00.5"), number < 60 ? "" : missing);
            EXPECT_EQ(codesIn(date + "00:00:" + two + ".123456789012"), number < 61 ? "" : missing);
        }
        for (const std::string start : {"2024-02-29T00:00:00+", "2024-02-29T23:59:60.25-"})
        {
            EXPECT_EQ(codesIn(start + two + ":59"), number < 24 ? "" : wrong);
            EXPECT_EQ(codesIn(start + "23:" + two), number < 60 ? "" : wrong);
        }
    }
}

TEST(StrictDates, placesOfTheFirstMistake)
{
    expectStrict({
        {"a = 2024-13-32\n", "date-does-not-exist at 9 13\n"},
        {"a = 2023-02-29T25:00:00Z\n", "date-does-not-exist at 12 29\n"},
        {"a = 2024-02-29T24:60:61Z\n", "time-does-not-exist at 15 24\n"},
        {"a = 2024-02-29 23:60:61\n", "time-does-not-exist at 18 60\n"},
        {"a = 23:59:61.5\n", "time-does-not-exist at 10 61\n"},
        {"a = 2024-02-29T23:59:60.5+24:00\n", "offset-out-of-range at 25 +24:00\n"},
        {"a = [1, {b = [00:60:00]}, 2024-00-01]\n",
         "time-does-not-exist at 17 60\ndate-does-not-exist at 31 00\n"},
        {"\"2024-13-32\" = '25:00:00'\n", ""},
    });
}

TEST(StrictDates, words)
{
    const auto month = strictMistakes("a = 2024-13-32\n").at(0);
    EXPECT_EQ(month.message, "the month 13 does not exist");
    EXPECT_EQ(month.hint, "Months are 01 to 12.");
    const auto day = strictMistakes("a = 2023-02-29\n").at(0);
    EXPECT_EQ(day.message, "the day 29 does not exist");
    EXPECT_EQ(day.hint, "This month has the days 01 to 28.");
    const auto offset = strictMistakes("a = 2024-02-29T00:00:00-24:00\n").at(0);
    EXPECT_EQ(offset.message, "the offset -24:00 is out of range");
}
