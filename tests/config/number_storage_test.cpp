#include "config/number_storage.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

namespace
{

using namespace vorn::parsers::toml;
using config::Entry;
using config::Number;
using config::typeOf;
using std::chrono::milliseconds;
using std::chrono::nanoseconds;
using std::chrono::seconds;

constexpr auto maxInteger = std::numeric_limits<std::int64_t>::max();
constexpr auto minInteger = std::numeric_limits<std::int64_t>::min();

Number numberOf(const std::string& text)
{
    const auto integer = config::integerOf(text);
    return integer ? *integer : config::floatOf(text).value();
}

template <typename Value>
bool isWithin(const std::string& text, Range<Value> range)
{
    Entry entry;
    config::apply<Value>(entry, range);
    return config::isWithin(numberOf(text), config::typeOf<Value>, entry);
}

// An entry of a duration, whose number counts this unit.
template <typename Member, typename Duration>
Entry entryOf()
{
    Entry entry;
    config::apply<Member>(entry, unit<Duration>());
    return entry;
}

template <typename Member>
bool isHeld(const std::string& text, const Entry& entry = {})
{
    return config::canStore(numberOf(text), typeOf<Member>, entry);
}

// What a number becomes in a member.
template <typename Member>
Member stored(const std::string& text, const Entry& entry = {})
{
    Member member{};
    EXPECT_TRUE(isHeld<Member>(text, entry)) << text;
    EXPECT_TRUE(config::store(numberOf(text), typeOf<Member>, entry, &member)) << text;
    return member;
}

// Whether a member can hold a number, but not all of it, and stays as it is.
template <typename Member>
bool isCut(const std::string& text, const Entry& entry)
{
    Member member(7);
    EXPECT_TRUE(isHeld<Member>(text, entry)) << text;
    const bool isStored = config::store(numberOf(text), typeOf<Member>, entry, &member);
    EXPECT_TRUE(isStored || member == Member(7)) << text;
    return !isStored;
}

} // namespace

TEST(NumberStorage, readsNumbers)
{
    const Number integer = config::integerOf("-0x10").value_or(config::integerOf("0x10").value());
    EXPECT_TRUE(integer.isInteger);
    EXPECT_EQ(integer.integer, 16);
    EXPECT_EQ(integer.floating, 16.0);
    const Number floating = config::floatOf("1.5").value();
    EXPECT_FALSE(floating.isInteger);
    EXPECT_EQ(floating.floating, 1.5);
    EXPECT_FALSE(config::integerOf("9223372036854775808").has_value());
    EXPECT_FALSE(config::floatOf("1e400").has_value());
}

TEST(NumberStorage, knowsRanges)
{
    EXPECT_TRUE(config::isWithin(numberOf("nan"), config::typeOf<double>, Entry{}));
    EXPECT_FALSE(isWithin("0", range(1, 5)));
    EXPECT_TRUE(isWithin("1", range(1, 5)));
    EXPECT_TRUE(isWithin("5", range(1, 5)));
    EXPECT_FALSE(isWithin("6", range(1, 5)));
    EXPECT_FALSE(isWithin("0.9", range(1.0, 5.5)));
    EXPECT_TRUE(isWithin("1", range(1.0, 5.5)));
    EXPECT_TRUE(isWithin("5.5", range(1.0, 5.5)));
    EXPECT_FALSE(isWithin("6", range(1.0, 5.5)));
    EXPECT_FALSE(isWithin("nan", range(1.0, 5.5)));
    EXPECT_FALSE(isWithin("inf", range(1.0, 5.5)));
    // Numbers that are the same as doubles.
    constexpr std::int64_t large = 9007199254740992;
    EXPECT_FALSE(isWithin("9007199254740993", range(large - 1, large)));
    EXPECT_FALSE(isWithin("9007199254740992", range(large + 1, large + 2)));
}

TEST(NumberStorage, holdsIntegersOfAllSizes)
{
    EXPECT_EQ(stored<std::int8_t>("-128"), -128);
    EXPECT_EQ(stored<std::uint8_t>("255"), 255);
    EXPECT_EQ(stored<std::int16_t>("-32768"), -32768);
    EXPECT_EQ(stored<std::uint32_t>("4294967295"), 4294967295U);
    EXPECT_EQ(stored<std::int64_t>("-9223372036854775808"), minInteger);
    EXPECT_EQ(stored<std::uint64_t>("9223372036854775807"), std::uint64_t{maxInteger});
    EXPECT_FALSE(isHeld<std::int8_t>("-129"));
    EXPECT_FALSE(isHeld<std::int8_t>("128"));
    EXPECT_FALSE(isHeld<std::uint64_t>("-1"));
}

TEST(NumberStorage, holdsFloats)
{
    EXPECT_EQ(stored<float>("0.5"), 0.5F);
    EXPECT_EQ(stored<double>("-1e300"), -1e300);
    EXPECT_EQ(stored<double>("3"), 3.0);
    EXPECT_EQ(stored<float>("-inf"), -std::numeric_limits<float>::infinity());
    EXPECT_TRUE(std::isnan(stored<double>("nan")));
    EXPECT_EQ(stored<float>("3.4028234663852886e38"), std::numeric_limits<float>::max());
    EXPECT_FALSE(isHeld<float>("3.5e38"));
}

TEST(NumberStorage, holdsDurations)
{
    const Entry entry = entryOf<milliseconds, seconds>();
    EXPECT_EQ(stored<milliseconds>("2", entry), milliseconds(2000));
    EXPECT_EQ(stored<milliseconds>("-0.25", entry), milliseconds(-250));
    // 0.001 is none in binary.
    EXPECT_EQ(stored<milliseconds>("4.035", entry), milliseconds(4035));
    EXPECT_TRUE(isCut<milliseconds>("0.0005", entry));
    EXPECT_TRUE(isCut<seconds>("1500", (entryOf<seconds, milliseconds>())));
    EXPECT_EQ(stored<seconds>("2000", (entryOf<seconds, milliseconds>())), seconds(2));
    using Minutes = std::chrono::duration<float, std::ratio<60>>;
    EXPECT_EQ(stored<Minutes>("90", (entryOf<Minutes, seconds>())).count(), 1.5F);
}

TEST(NumberStorage, keepsAllOfALongDuration)
{
    EXPECT_TRUE(isCut<milliseconds>("1000000.0005", (entryOf<milliseconds, seconds>())));
    EXPECT_TRUE(isCut<nanoseconds>("2000000000.5", (entryOf<nanoseconds, nanoseconds>())));
    EXPECT_TRUE(isCut<seconds>("1e-10", (entryOf<seconds, seconds>())));
    EXPECT_EQ(stored<nanoseconds>("1000000.1", (entryOf<nanoseconds, seconds>())),
              nanoseconds(1000000100000000));
}

TEST(NumberStorage, holdsNoDurationThatIsTooLong)
{
    using Tiny = std::chrono::duration<std::uint8_t>;
    const Entry seconds8 = entryOf<Tiny, seconds>();
    EXPECT_EQ(stored<Tiny>("255", seconds8).count(), 255);
    EXPECT_EQ(stored<Tiny>("2.0", seconds8).count(), 2);
    EXPECT_FALSE(isHeld<Tiny>("256", seconds8));
    EXPECT_FALSE(isHeld<Tiny>("255.5", seconds8));
    EXPECT_FALSE(isHeld<Tiny>("-1", seconds8));
    EXPECT_FALSE(isHeld<Tiny>("nan", seconds8));
    EXPECT_FALSE(isHeld<Tiny>("inf", seconds8));
    const Entry wide = entryOf<nanoseconds, seconds>();
    EXPECT_FALSE(isHeld<nanoseconds>("9223372037", wide));
    EXPECT_FALSE(isHeld<nanoseconds>("9.3e9", wide));
    EXPECT_EQ(stored<nanoseconds>("9223372036", wide).count(), 9223372036000000000);
    using Short = std::chrono::duration<float, std::milli>;
    EXPECT_FALSE(isHeld<Short>("1e36", (entryOf<Short, seconds>())));
    EXPECT_FALSE(isHeld<Short>("nan", (entryOf<Short, seconds>())));
    EXPECT_TRUE(isHeld<Short>("1e35", (entryOf<Short, seconds>())));
}

// The double that is nearest to it is one too many.
TEST(NumberStorage, holdsTheLongestDuration)
{
    const Entry entry = entryOf<nanoseconds, nanoseconds>();
    EXPECT_EQ(stored<nanoseconds>("9223372036854775807", entry), nanoseconds::max());
    EXPECT_EQ(stored<nanoseconds>("-9223372036854775808", entry), nanoseconds::min());
    EXPECT_EQ(stored<nanoseconds>("-9223372036854775808.0", entry), nanoseconds::min());
    EXPECT_FALSE(isHeld<nanoseconds>("9223372036854775808.0", entry));
}
