// The texts of scalars, which are read as the same values.
#include "every_member.h"

#include "config/value_text.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

namespace
{

namespace toml = vorn::parsers::toml;
using namespace toml::config;

// The text of a value, after a '!' if it is not exact.
template <typename Member>
std::string scalarText(const Member& member, const Entry& entry = {}, Syntax syntax = Syntax::toml)
{
    Text text;
    const bool isExact = addScalar(text, typeOf<Member>, entry, &member, syntax);
    return (isExact ? "" : "!") + text.text;
}

template <typename Member, typename Unit>
std::string durationText(const Member& member)
{
    Entry entry;
    apply<Member>(entry, toml::unit<Unit>());
    return scalarText(member, entry);
}

toml::DateTime moment(const toml::Date& date, const toml::Time& time, int offset)
{
    toml::DateTime value;
    value.date = date;
    value.time = time;
    value.offset = offset;
    return value;
}

} // namespace

TEST(ScalarText, isOfBooleansAndIntegers)
{
    EXPECT_EQ(scalarText(true), "true");
    EXPECT_EQ(scalarText(false), "false");
    EXPECT_EQ(scalarText(std::int8_t{-128}), "-128");
    EXPECT_EQ(scalarText(std::uint32_t{4294967295}), "4294967295");
    EXPECT_EQ(scalarText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    // TOML has no larger one than 2^63-1.
    EXPECT_EQ(scalarText(std::numeric_limits<std::uint64_t>::max())[0], '!');
}

TEST(ScalarText, isOfFloats)
{
    EXPECT_EQ(scalarText(0.1), "0.1");
    EXPECT_EQ(scalarText(0.1F), "0.1");
    EXPECT_EQ(scalarText(-0.0), "-0.0");
    EXPECT_EQ(scalarText(60.0), "60.0");
    EXPECT_EQ(scalarText(1e300), "1e+300");
    EXPECT_EQ(scalarText(-std::numeric_limits<float>::infinity()), "-inf");
    EXPECT_EQ(scalarText(std::nan("5")), "nan");
    EXPECT_EQ(scalarText(std::numeric_limits<float>::max()), "3.4028235e+38");
}

TEST(ScalarText, isOfDurations)
{
    using namespace std::chrono;
    EXPECT_EQ((durationText<milliseconds, seconds>(milliseconds(2000))), "2");
    EXPECT_EQ((durationText<milliseconds, seconds>(milliseconds(1500))), "1.5");
    EXPECT_EQ((durationText<hours, minutes>(hours(2))), "120");
    EXPECT_EQ((durationText<nanoseconds, nanoseconds>(nanoseconds::max())), "9223372036854775807");
    // More units than an integer can be, and a double cannot say all of its digits.
    using Wide = duration<std::int64_t>;
    EXPECT_EQ((durationText<Wide, nanoseconds>(Wide((std::int64_t{1} << 62) + 1)))[0], '!');
    EXPECT_EQ((durationText<nanoseconds, seconds>(nanoseconds((std::int64_t{1} << 60) + 1)))[0],
              '!');
}

TEST(ScalarText, isNotExactIfAUnitLosesDigits)
{
    using Seconds = std::chrono::duration<double>;
    using Sevens = std::chrono::duration<int, std::ratio<7>>;
    EXPECT_EQ((durationText<Seconds, Sevens>(Seconds(28))), "4.0");
    EXPECT_EQ((durationText<Seconds, Sevens>(Seconds(29)))[0], '!');
}

TEST(ScalarText, isOfDatesAndTimes)
{
    EXPECT_EQ(scalarText(moment({1979, 5, 27}, {7, 32, 0, 0}, 0)), "1979-05-27T07:32:00+00:00");
    EXPECT_EQ(scalarText(moment({1, 2, 3}, {4, 5, 6, 120000000}, -90)),
              "0001-02-03T04:05:06.12-01:30");
    EXPECT_EQ(scalarText(moment({9999, 12, 31}, {23, 59, 60, 7}, 23 * 60 + 59)),
              "9999-12-31T23:59:60.000000007+23:59");
    toml::DateTime value;
    EXPECT_EQ(scalarText(value), "!");
    value.date = toml::Date{1979, 5, 27};
    EXPECT_EQ(scalarText(value), "1979-05-27");
    EXPECT_EQ(scalarText(value, {}, Syntax::json), "\"1979-05-27\"");
    value.date->day = 32;
    EXPECT_EQ(scalarText(value)[0], '!');
}

TEST(ScalarText, isOfStringsAndChoices)
{
    EXPECT_EQ(scalarText(std::string("a\"\n\xf0\x9f\x98\x80")), R"("a\"\n\U0001F600")");
    EXPECT_EQ(scalarText(std::string("a\xf0\x9f\x98\x80"), {}, Syntax::json), R"("a\uD83D\uDE00")");
    EXPECT_EQ(scalarText(std::string("\xff"))[0], '!');
    Entry entry;
    apply<test::Color>(entry, toml::oneOf({{"red", test::Color::red}}));
    EXPECT_EQ(scalarText(test::Color::red, entry), "\"red\"");
    EXPECT_EQ(scalarText(test::Color::green, entry)[0], '!');
}
