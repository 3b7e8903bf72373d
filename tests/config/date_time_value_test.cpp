#include <gtest/gtest.h>
#include <vorn/parsers/toml_values.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

using namespace vorn::parsers::toml;

namespace
{

constexpr std::nullopt_t none = std::nullopt;

} // namespace

TEST(DateTimeValue, IsThatOfTheText)
{
    const Date date = {1979, 5, 27};
    const Time time = {7, 32, 0, 0};
    const std::vector<std::pair<std::string, DateTime>> cases = {
        {"1979-05-27", {date, none, none}},
        {"07:32:00", {none, time, none}},
        {"1979-05-27T07:32:00", {date, time, none}},
        {"1979-05-27t07:32:00", {date, time, none}},
        {"1979-05-27 07:32:00", {date, time, none}},
        {"1979-05-27T07:32:00Z", {date, time, 0}},
        {"1979-05-27 07:32:00-07:00", {date, time, -420}},
        {"1979-05-27t07:32:00+07:30", {date, time, 450}},
        {"1979-05-27T07:32:00-00:00", {date, time, 0}},
        {"1979-05-27T07:32:00+23:59", {date, time, 1439}},
        {"1979-05-27T07:32:00-23:59", {date, time, -1439}},
        {"1979-05-27T07:32:00.25Z", {date, Time{7, 32, 0, 250000000}, 0}},
        {"0000-01-01T00:00:00", {Date{0, 1, 1}, Time{}, none}},
        {"9999-12-31T23:59:59.999999999", {Date{9999, 12, 31}, Time{23, 59, 59, 999999999}, none}},
    };
    for (const auto& [text, value] : cases)
    {
        EXPECT_EQ(dateTimeValue(text), value) << text;
    }
}

TEST(DateTimeValue, HasNineDigitsOfTheFraction)
{
    const std::vector<std::pair<std::string, int>> cases = {
        {"5", 500000000},          {"000000001", 1},  {"123456789", 123456789},
        {"1234567899", 123456789}, {"0000000009", 0}, {std::string(1000, '9'), 999999999},
        {"10", 100000000},
    };
    for (const auto& [fraction, nanosecond] : cases)
    {
        const DateTime value = {none, Time{7, 32, 0, nanosecond}, none};
        EXPECT_EQ(dateTimeValue("07:32:00." + fraction), value) << fraction;
    }
}

TEST(DateTimeValue, IsAnyThatExists)
{
    for (const std::string text :
         {"2000-02-29", "2024-02-29", "0000-02-29", "2023-02-28", "2023-04-30", "2023-12-31",
          "23:59:60", "00:00:60", "12:34:60.5"})
    {
        EXPECT_NE(dateTimeValue(text), none) << text;
    }
    for (const std::string text : {"1979-02-30",
                                   "1900-02-29",
                                   "2023-02-29",
                                   "2023-04-31",
                                   "2023-06-31",
                                   "2023-09-31",
                                   "2023-11-31",
                                   "2023-01-32",
                                   "2023-01-00",
                                   "2023-00-01",
                                   "2023-13-01",
                                   "2023-99-01",
                                   "24:00:00",
                                   "99:00:00",
                                   "23:60:00",
                                   "23:59:61",
                                   "23:59:99",
                                   "2023-02-29T00:00:00Z",
                                   "2023-01-01T24:00:00",
                                   "2023-01-01T00:00:00+24:00",
                                   "2023-01-01T00:00:00-24:00",
                                   "2023-01-01T00:00:00+25:00",
                                   "2023-01-01T00:00:00+00:60",
                                   "2023-01-01T00:00:00+99:99"})
    {
        EXPECT_EQ(dateTimeValue(text), none) << text;
    }
}

TEST(DateTimeValue, OtherTextsHaveNone)
{
    const std::string whole = "1979-05-27T07:32:00.5+07:00";
    for (std::size_t size = 0; size < whole.size(); ++size)
    {
        const bool isValue = size == 10 || size == 19 || size == 21;
        EXPECT_EQ(dateTimeValue(whole.substr(0, size)) != none, isValue) << size;
    }
    for (std::size_t at = 0; at < whole.size(); ++at)
    {
        for (const char other : {'x', ' ', '\0', '/', ';', '\xFF'})
        {
            std::string text = whole;
            text[at] = other;
            EXPECT_EQ(dateTimeValue(text) != none, at == 10 && other == ' ') << text;
        }
    }
    for (const std::string text : {"1979-05-27T07:32:00z",
                                   "1979-05-27T07:32:00+0700",
                                   "1979-05-27T07:32:00Z ",
                                   "1979-05-27T07:32:00ZZ",
                                   "1979-05-27 ",
                                   " 1979-05-27",
                                   "1979-05-27\t07:32:00",
                                   "1979-05-27  07:32:00",
                                   "1979-05-2707:32:00",
                                   "07:32",
                                   "07:32:00.",
                                   "07:32:00Z",
                                   "07:32:00+01:00",
                                   "07:32:00.5.5",
                                   "1979-5-27",
                                   "79-05-27",
                                   "01979-05-27",
                                   "+979-05-27",
                                   "-979-05-27",
                                   "1979-05-27Z",
                                   "1979-05-27+01:00",
                                   "7:32:00",
                                   "1979"})
    {
        EXPECT_EQ(dateTimeValue(text), none) << text;
    }
}

TEST(DateTimeValue, IsEqualToItsLike)
{
    const DateTime value = {Date{2001, 2, 3}, Time{4, 5, 6, 7}, 8};
    EXPECT_TRUE(value == value);
    EXPECT_FALSE(value != value);
    const std::vector<DateTime> others = {
        {Date{2002, 2, 3}, Time{4, 5, 6, 7}, 8},
        {Date{2001, 3, 3}, Time{4, 5, 6, 7}, 8},
        {Date{2001, 2, 4}, Time{4, 5, 6, 7}, 8},
        {Date{2001, 2, 3}, Time{5, 5, 6, 7}, 8},
        {Date{2001, 2, 3}, Time{4, 6, 6, 7}, 8},
        {Date{2001, 2, 3}, Time{4, 5, 7, 7}, 8},
        {Date{2001, 2, 3}, Time{4, 5, 6, 8}, 8},
        {Date{2001, 2, 3}, Time{4, 5, 6, 7}, 9},
        {none, Time{4, 5, 6, 7}, 8},
        {Date{2001, 2, 3}, none, 8},
        {Date{2001, 2, 3}, Time{4, 5, 6, 7}, none},
    };
    for (const DateTime& other : others)
    {
        EXPECT_FALSE(value == other);
        EXPECT_TRUE(value != other);
    }
}
