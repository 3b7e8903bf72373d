#include "config/assignment.h"

#include "every_member.h"

#include "config/table.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace
{

namespace toml = vorn::parsers::toml;
using namespace toml::config;
using toml::DateTime;

const Entry& entryOf(const std::string& path)
{
    const Table& table = *test::everySchema().internals();
    return *table.entryOf(table.find(path));
}

// Assigns a scalar, as if it were the value of an entry.
template <typename Member>
Complaint assigned(Member& member, ScalarKind kind, const std::string& text,
                   const std::string& path = "text")
{
    return assign({kind, text, 0}, typeOf<Member>, entryOf(path), &member);
}

// What is wrong with the kind of a value.
template <typename Member>
std::string wrongKind(ScalarKind kind, const std::string& text, const std::string& path = "text")
{
    Member member{};
    const Complaint complaint = assigned(member, kind, text, path);
    EXPECT_FALSE(complaint.isNoValue);
    EXPECT_EQ(complaint.hint, "");
    return complaint.message;
}

} // namespace

TEST(Assignment, storesBooleans)
{
    bool isOn = false;
    EXPECT_EQ(assigned(isOn, ScalarKind::boolean, "true").message, "");
    EXPECT_TRUE(isOn);
    EXPECT_EQ(assigned(isOn, ScalarKind::boolean, "false").message, "");
    EXPECT_FALSE(isOn);
    EXPECT_EQ(wrongKind<bool>(ScalarKind::string, "'true'"), "should be a boolean, is a string");
}

TEST(Assignment, storesTheLastBooleanOfAList)
{
    std::vector<bool> flags{false, false};
    const Scalar scalar{ScalarKind::boolean, "true", 0};
    const Type& list = typeOf<std::vector<bool>>;
    EXPECT_EQ(assign(scalar, *list.element, entryOf("flags"), &flags).message, "");
    EXPECT_EQ(flags, (std::vector<bool>{false, true}));
}

TEST(Assignment, storesNumbers)
{
    int number = 0;
    EXPECT_EQ(assigned(number, ScalarKind::integer, "0x1F").message, "");
    EXPECT_EQ(number, 31);
    double exact = 0;
    EXPECT_EQ(assigned(exact, ScalarKind::floating, "2.5").message, "");
    EXPECT_EQ(exact, 2.5);
    EXPECT_EQ(assigned(exact, ScalarKind::integer, "3").message, "");
    EXPECT_EQ(exact, 3.0);
    EXPECT_EQ(wrongKind<int>(ScalarKind::floating, "1.0"), "should be an integer, is a float");
    EXPECT_EQ(wrongKind<int>(ScalarKind::string, "'1'"), "should be an integer, is a string");
    EXPECT_EQ(wrongKind<double>(ScalarKind::date, "1979-05-27"), "should be a number, is a date");
}

TEST(Assignment, leavesNumbersAloneThatAreOutOfRange)
{
    int number = 7;
    EXPECT_EQ(assigned(number, ScalarKind::integer, "10", "limit").message, "10 is not in 1 to 9");
    EXPECT_EQ(assigned(number, ScalarKind::integer, "9223372036854775808").message,
              "9223372036854775808 is not in -2147483648 to 2147483647");
    EXPECT_EQ(number, 7);
    double exact = 7;
    EXPECT_EQ(assigned(exact, ScalarKind::floating, "1e400").message, "1e400 is out of range");
    EXPECT_EQ(exact, 7.0);
}

TEST(Assignment, storesDurations)
{
    std::chrono::milliseconds interval{7};
    EXPECT_EQ(assigned(interval, ScalarKind::floating, "0.0005", "interval").message,
              "0.0005 seconds cannot be held exactly");
    EXPECT_EQ(assigned(interval, ScalarKind::time, "07:32:00", "interval").message,
              "should be a number of seconds, is a time");
    EXPECT_EQ(interval.count(), 7);
    EXPECT_EQ(assigned(interval, ScalarKind::floating, "0.5", "interval").message, "");
    EXPECT_EQ(interval.count(), 500);
}

TEST(Assignment, storesStrings)
{
    std::string text = "before";
    const Complaint complaint = assigned(text, ScalarKind::string, R"("a\uD800")");
    EXPECT_TRUE(complaint.isNoValue);
    EXPECT_EQ(complaint.message, R"("a\uD800" has no value)");
    EXPECT_EQ(text, "before");
    EXPECT_EQ(assigned(text, ScalarKind::string, R"("a\tb")").message, "");
    EXPECT_EQ(text, "a\tb");
    EXPECT_EQ(wrongKind<std::string>(ScalarKind::integer, "1"),
              "should be a string, is an integer");
}

TEST(Assignment, storesDatesAndTimes)
{
    DateTime time;
    EXPECT_EQ(assigned(time, ScalarKind::date, "1979-05-27").message, "");
    EXPECT_EQ(time.date, (toml::Date{1979, 5, 27}));
    EXPECT_EQ(assigned(time, ScalarKind::time, "07:32:00").message, "");
    EXPECT_FALSE(time.date.has_value());
    EXPECT_EQ(time.time, (toml::Time{7, 32, 0, 0}));
    EXPECT_EQ(assigned(time, ScalarKind::dateTime, "1979-05-27T07:32:00Z").message, "");
    EXPECT_EQ(time.offset, 0);
    EXPECT_TRUE(assigned(time, ScalarKind::date, "1979-02-30").isNoValue);
    EXPECT_EQ(wrongKind<DateTime>(ScalarKind::string, "'1979-05-27'"),
              "should be a date or time, is a string");
}

TEST(Assignment, storesChoices)
{
    test::Color color = test::Color::red;
    EXPECT_EQ(assigned(color, ScalarKind::string, "'green'", "color").message, "");
    EXPECT_EQ(color, test::Color::green);
    const Complaint complaint = assigned(color, ScalarKind::string, "'gren'", "color");
    EXPECT_EQ(complaint.message, R"('gren' is not one of "red", "green")");
    EXPECT_EQ(complaint.hint, "did you mean green?");
    EXPECT_TRUE(assigned(color, ScalarKind::string, R"("\uD800")", "color").isNoValue);
    EXPECT_EQ(color, test::Color::green);
    EXPECT_EQ(wrongKind<test::Color>(ScalarKind::boolean, "true", "color"),
              "should be a string, is a boolean");
}

TEST(Assignment, storesNoScalarInAnythingElse)
{
    EXPECT_EQ(wrongKind<std::vector<int>>(ScalarKind::integer, "1"),
              "should be an array of integers, is an integer");
    EXPECT_EQ(wrongKind<test::Point>(ScalarKind::dateTime, "1979-05-27T07:32:00Z"),
              "should be a table, is a date with a time");
}
