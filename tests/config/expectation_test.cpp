#include "config/expectation.h"

#include "every_member.h"

#include "config/scalar.h"
#include "config/table.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace
{

namespace toml = vorn::parsers::toml;
using namespace toml::config;

const Entry& entryOf(const std::string& path)
{
    const Table& table = *test::everySchema().internals();
    return *table.entryOf(table.find(path));
}

std::string wordsOf(const std::string& path)
{
    const Entry& entry = entryOf(path);
    return expectationOf(*entry.type, entry);
}

std::string limitsAt(const std::string& path)
{
    const Entry& entry = entryOf(path);
    return limitsOf(*entry.type, entry);
}

} // namespace

TEST(Expectation, namesScalarsOfDocuments)
{
    EXPECT_STREQ(nameOf(ScalarKind::string), "a string");
    EXPECT_STREQ(nameOf(ScalarKind::integer), "an integer");
    EXPECT_STREQ(nameOf(ScalarKind::floating), "a float");
    EXPECT_STREQ(nameOf(ScalarKind::boolean), "a boolean");
    EXPECT_STREQ(nameOf(ScalarKind::dateTime), "a date with a time");
    EXPECT_STREQ(nameOf(ScalarKind::date), "a date");
    EXPECT_STREQ(nameOf(ScalarKind::time), "a time");
}

TEST(Expectation, hasWordsForAllKinds)
{
    EXPECT_EQ(wordsOf("on"), "a boolean");
    EXPECT_EQ(wordsOf("tiny"), "an integer");
    EXPECT_EQ(wordsOf("ratio"), "a number");
    EXPECT_EQ(wordsOf("text"), "a string");
    EXPECT_EQ(wordsOf("color"), "a string");
    EXPECT_EQ(wordsOf("time"), "a date or time");
    EXPECT_EQ(wordsOf("pause"), "a number of minutes");
    EXPECT_EQ(wordsOf("limit"), "an integer");
    EXPECT_EQ(wordsOf("point"), "a table");
}

TEST(Expectation, hasWordsForManyOfAKind)
{
    EXPECT_EQ(wordsOf("names"), "an array of strings");
    EXPECT_EQ(wordsOf("flags"), "an array of booleans");
    EXPECT_EQ(wordsOf("rows"), "an array of arrays of integers");
    EXPECT_EQ(wordsOf("window"), "an array of tables");
    EXPECT_EQ(wordsOf("features"), "a table of booleans");
    EXPECT_EQ(wordsOf("palette"), "a table of tables of strings");
    Entry entry;
    entry.unitName = "hours";
    EXPECT_EQ(expectationOf(typeOf<std::vector<std::chrono::seconds>>, entry),
              "an array of numbers of hours");
    EXPECT_EQ(expectationOf(typeOf<std::vector<toml::DateTime>>, entry),
              "an array of dates or times");
    EXPECT_EQ(expectationOf(typeOf<std::vector<std::optional<double>>>, entry),
              "an array of numbers");
}

TEST(Expectation, hasLimits)
{
    EXPECT_EQ(limitsAt("limit"), "1 to 9");
    EXPECT_EQ(limitsAt("pause"), "1 to 60");
    EXPECT_EQ(limitsAt("tiny"), "-128 to 127");
    EXPECT_EQ(limitsAt("size"), "0 to 9223372036854775807");
    EXPECT_EQ(limitsAt("exact"), "");
    EXPECT_EQ(limitsAt("interval"), "");
    Entry entry;
    apply<double>(entry, toml::range(0.1, 1e300));
    EXPECT_EQ(limitsOf(typeOf<double>, entry), "0.1 to 1e+300");
}

TEST(Expectation, listsChoices)
{
    EXPECT_EQ(choicesOf(entryOf("color")), R"("red", "green")");
    EXPECT_EQ(choicesOf(entryOf("text")), "");
}

TEST(Expectation, writesNumbersLikeDocuments)
{
    EXPECT_EQ(textOf(0.1), "0.1");
    EXPECT_EQ(textOf(-2.5), "-2.5");
    EXPECT_EQ(textOf(60.0), "60");
    EXPECT_EQ(textOf(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(textOf(-std::numeric_limits<double>::infinity()), "-inf");
    EXPECT_EQ(textOf(std::numeric_limits<double>::quiet_NaN()), "nan");
    // The longest ones.
    EXPECT_EQ(textOf(-std::numeric_limits<double>::max()), "-1.7976931348623157e+308");
    EXPECT_EQ(textOf(-std::numeric_limits<double>::denorm_min()), "-5e-324");
    EXPECT_EQ(limitText({true, -7, 0}), "-7");
    EXPECT_EQ(limitText({false, 0, 0.5}), "0.5");
}

TEST(Expectation, namesUnits)
{
    EXPECT_EQ(nameOfUnit(1, 1000000000), "nanoseconds");
    EXPECT_EQ(nameOfUnit(1, 1000000), "microseconds");
    EXPECT_EQ(nameOfUnit(1, 1000), "milliseconds");
    EXPECT_EQ(nameOfUnit(1, 1), "seconds");
    EXPECT_EQ(nameOfUnit(60, 1), "minutes");
    EXPECT_EQ(nameOfUnit(3600, 1), "hours");
    EXPECT_EQ(nameOfUnit(86400, 1), "days");
    EXPECT_EQ(nameOfUnit(604800, 1), "604800 seconds");
    EXPECT_EQ(nameOfUnit(1, 60), "1/60 seconds");
}
