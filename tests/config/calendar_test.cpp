#include "config/calendar.h"

#include <gtest/gtest.h>

namespace
{

using namespace vorn::parsers::toml;
using config::exists;
using config::isOffset;

// The last day of a month.
int lastDay(int year, int month)
{
    int day = 1;
    while (exists(Date{year, month, day + 1}))
    {
        ++day;
    }
    return day;
}

} // namespace

TEST(Calendar, hasTheDaysOfEachMonth)
{
    constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int month = 1; month <= 12; ++month)
    {
        EXPECT_EQ(lastDay(2023, month), days[month - 1]) << month;
        EXPECT_FALSE(exists(Date{2023, month, 0})) << month;
        EXPECT_FALSE(exists(Date{2023, month, -1})) << month;
    }
}

TEST(Calendar, hasLeapYears)
{
    EXPECT_EQ(lastDay(2024, 2), 29);
    EXPECT_EQ(lastDay(1900, 2), 28);
    EXPECT_EQ(lastDay(2000, 2), 29);
    EXPECT_EQ(lastDay(0, 2), 29);
}

TEST(Calendar, hasTwelveMonthsAndFourDigitsOfYears)
{
    EXPECT_FALSE(exists(Date{2023, 0, 1}));
    EXPECT_FALSE(exists(Date{2023, 13, 1}));
    EXPECT_TRUE(exists(Date{0, 1, 1}));
    EXPECT_TRUE(exists(Date{9999, 12, 31}));
    EXPECT_FALSE(exists(Date{-1, 12, 31}));
    EXPECT_FALSE(exists(Date{10000, 1, 1}));
}

TEST(Calendar, hasTimes)
{
    EXPECT_TRUE(exists(Time{}));
    EXPECT_TRUE(exists(Time{23, 59, 60, 999999999}));
    for (const Time& time :
         {Time{24, 0, 0, 0}, Time{-1, 0, 0, 0}, Time{0, 60, 0, 0}, Time{0, -1, 0, 0},
          Time{0, 0, 61, 0}, Time{0, 0, -1, 0}, Time{0, 0, 0, 1000000000}, Time{0, 0, 0, -1}})
    {
        EXPECT_FALSE(exists(time))
            << time.hour << ' ' << time.minute << ' ' << time.second << ' ' << time.nanosecond;
    }
}

TEST(Calendar, hasOffsetsBelowADay)
{
    EXPECT_TRUE(isOffset(0));
    EXPECT_TRUE(isOffset(23 * 60 + 59));
    EXPECT_TRUE(isOffset(-23 * 60 - 59));
    EXPECT_FALSE(isOffset(24 * 60));
    EXPECT_FALSE(isOffset(-24 * 60));
}
