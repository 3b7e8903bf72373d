// Keys and tables that are defined twice.
#include <gtest/gtest.h>

#include <string>

#include "diagnosis/strict_mistakes.h"
#include "diagnosis/strict_tables.h"
#include "strict_mistakes_of.h"

using namespace test;

namespace
{

std::string repeated(std::size_t count, const std::string& text)
{
    std::string all;
    for (; count > 0; --count)
    {
        all += text;
    }
    return all;
}

} // namespace

TEST(StrictTables, validDocuments)
{
    for (const std::string text : {
             "a = 1\nb = 2\n[c]\na = 1\n[d]\na = 1\n",
             "a.b = 1\na.c = 2\n[b]\na.b = 1\na.c.d = 2\na.c.e = 3\n",
             // A table that has been implied may have its header later, and more tables.
             "[a.b.c]\n[a]\nd = 1\n[a.b]\nd = 1\n[a.b.e]\n",
             "[[a.b]]\n[a]\nc = 1\n[[a.b]]\n",
             // Elements are apart.
             "[[a]]\nb = 1\n[a.c]\n[[a]]\nb = "
             "1\n[a.c]\n[[a.d]]\n[[a.d]]\n[[a]]\n[[a.d]]\n[a.d.e]\n",
             // A dotted key opens no table for good before the next header.
             "[a]\nb.c = 1\nd = 1\nb.e = 1\n[a.b.f]\n[a.g.h]\n",
             "[a.b.c]\n[a]\nb.d = 1\nb.e = 1\n",
             "a = {b = 1, c.d = 1, c.e = {d = 1}}\nb = [{b = 1}, {b = 1}, [{b = 1}]]\n",
             "a = 1\nA = 2\n\" a\" = 3\n\"\" = 4\n\"a.b\" = 5\na1.b = 6\n",
             "\"\\u00e9\" = 1\n'e' = 2\n\"\\U0001F600\" = 3\n\"\\t\" = 4\n'\\t' = 5\n",
         })
    {
        expectStrict({{text, ""}});
    }
}

TEST(StrictTables, keysTwice)
{
    expectStrict({
        {"a = 1\nb = 2\na = 3\na = 4\n",
         "duplicate-key at 12 a, first at 0 a\nduplicate-key at 18 a, first at 0 a\n"},
        {"[t]\na = 1\n[u]\na = 1\na = [1]\n", "duplicate-key at 20 a, first at 14 a\n"},
        {"a.b.c = 1\na . b . c = {d = 1}\n", "duplicate-key at 18 c, first at 4 c\n"},
        {"a = {b = 1, b = 2}\n", "duplicate-key at 12 b, first at 5 b\n"},
        {"a = [1, [{b.c = {d = 1, d = 2}, b.c = 2}]]\n",
         "duplicate-key at 24 d, first at 17 d\nduplicate-key at 34 c, first at 12 c\n"},
        {"a = {b = 1}\na = [1]\n", "duplicate-key at 12 a, first at 0 a\n"},
        {"[[t]]\na = 1\na = 2\n", "duplicate-key at 12 a, first at 6 a\n"},
    });
}

TEST(StrictTables, keysAreComparedByWhatTheyStandFor)
{
    const std::string forms[] = {"a", "\"a\"", "'a'", R"("\u0061")", R"("\U00000061")"};
    for (const std::string& first : forms)
    {
        for (const std::string& second : forms)
        {
            const std::string pairs = first + " = 1\n" + second + " = 2\n";
            expectStrict({{pairs, "duplicate-key at " + std::to_string(first.size() + 5) + ' ' +
                                      second + ", first at 0 " + first + '\n'}});
        }
    }
    expectStrict({
        {"\"\" = 1\n'' = 2\n", "duplicate-key at 7 '', first at 0 \"\"\n"},
        {"\"\\u00E9\" = 1\n\"\xC3\xA9\" = 2\n",
         "duplicate-key at 13 \"\xC3\xA9\", first at 0 \"\\u00E9\"\n"},
        {"\"\\\\\" = 1\n'\\' = 2\n", "duplicate-key at 9 '\\', first at 0 \"\\\\\"\n"},
        {"[\"a\"]\n['a']\n", "duplicate-table at 7 'a', first at 1 \"a\"\n"},
    });
}

TEST(StrictTables, tablesTwice)
{
    expectStrict({
        {"[a]\n[b]\n[a]\n", "duplicate-table at 9 a, first at 1 a\n"},
        {"[a.b]\n[a.b]\n", "duplicate-table at 9 b, first at 3 b\n"},
        // The first definition is its header, not that of a table in it.
        {"[a.b]\n[a]\n[a]\n", "duplicate-table at 11 a, first at 7 a\n"},
        {"a.b = 1\n[a]\n", "duplicate-table at 9 a, first at 0 a\n"},
        {"[a]\nb.c.d = 1\n[a.b.c]\n", "duplicate-table at 19 c, first at 6 c\n"},
        {"[a.b.c]\n[a]\nb.d = 1\n[a.b]\n", "duplicate-table at 23 b, first at 12 b\n"},
        {"[[a]]\n[a.b]\n[a.b]\n", "duplicate-table at 15 b, first at 9 b\n"},
    });
}

TEST(StrictTables, tablesOverValues)
{
    expectStrict({
        {"a = 1\n[a]\n", "table-over-value at 7 a, first at 0 a\n"},
        {"a = 1\n[a.b]\n", "table-over-value at 7 a, first at 0 a\n"},
        {"a = 1\n[[a]]\n", "table-over-value at 8 a, first at 0 a\n"},
        {"a = 1\n[[a.b]]\n", "table-over-value at 8 a, first at 0 a\n"},
        {"a = 1\na.b = 2\n", "table-over-value at 6 a, first at 0 a\n"},
        {"a = {b = 1, b.c = 2}\n", "table-over-value at 12 b, first at 5 b\n"},
        {"[a]\nb = 1\n[a.b.c]\n", "table-over-value at 13 b, first at 4 b\n"},
    });
}

TEST(StrictTables, valuesOverTables)
{
    expectStrict({
        {"[a.b]\n[a]\nb = 1\n", "value-over-table at 10 b, first at 3 b\n"},
        {"[a.b.c]\n[a]\nb = 1\n", "value-over-table at 12 b, first at 3 b\n"},
        {"[[a.b]]\n[a]\nb = 1\n", "value-over-table at 12 b, first at 4 b\n"},
        {"a.b = 1\na = {c = 1}\n", "value-over-table at 8 a, first at 0 a\n"},
        {"a = {b.c = 1, b = 2}\n", "value-over-table at 14 b, first at 5 b\n"},
    });
}

TEST(StrictTables, arraysOfTablesAndTables)
{
    expectStrict({
        {"[a]\n[[a]]\n", "array-of-tables-over-table at 6 a, first at 1 a\n"},
        {"[a.b]\n[[a]]\n", "array-of-tables-over-table at 8 a, first at 1 a\n"},
        {"a.b = 1\n[[a]]\n", "array-of-tables-over-table at 10 a, first at 0 a\n"},
        {"[[a]]\n[a]\n", "table-over-array-of-tables at 7 a, first at 2 a\n"},
        {"[[a]]\n[[a]]\n[a]\n", "table-over-array-of-tables at 13 a, first at 2 a\n"},
        {"[[a.b]]\n[a.b]\n", "table-over-array-of-tables at 11 b, first at 4 b\n"},
    });
}

TEST(StrictTables, whatIsClosedIsNotExtended)
{
    expectStrict({
        {"a = {b = 1}\na.c = 1\n", "inline-table-extended at 12 a, first at 0 a\n"},
        {"a = {b = 1}\n[a]\n", "inline-table-extended at 13 a, first at 0 a\n"},
        {"a = {b = 1}\n[a.c]\n", "inline-table-extended at 13 a, first at 0 a\n"},
        {"a = {b = 1}\n[[a]]\n", "inline-table-extended at 14 a, first at 0 a\n"},
        {"a.b = {c = 1}\na.b.d = 1\n", "inline-table-extended at 16 b, first at 2 b\n"},
        {"a = {b = {c = 1}, b.d = 2}\n", "inline-table-extended at 18 b, first at 5 b\n"},
        {"a = [1]\n[[a]]\n", "array-extended at 10 a, first at 0 a\n"},
        {"a = [{b = 1}]\n[a]\n", "array-extended at 15 a, first at 0 a\n"},
        {"a = [{b = 1}]\n[a.c]\n", "array-extended at 15 a, first at 0 a\n"},
        {"a = [{b = 1}]\na.c = 1\n", "array-extended at 14 a, first at 0 a\n"},
        {"a = {b = [1], b.d = 2}\n", "array-extended at 14 b, first at 5 b\n"},
    });
}

TEST(StrictTables, dottedKeysExtendNoTablesWithHeaders)
{
    expectStrict({
        {"[a.b]\nc = 1\n[a]\nb.d = 1\n", "dotted-key-over-table at 16 b, first at 3 b\n"},
        {"[a.b.c]\n[a]\nb.c.d = 1\n", "dotted-key-over-table at 14 c, first at 5 c\n"},
        {"[[a.b]]\n[a]\nb.d = 1\n", "dotted-key-over-table at 12 b, first at 4 b\n"},
        {"[a.b]\nc.d = 1\n[a]\nb.c.e = 1\n", "dotted-key-over-table at 18 b, first at 3 b\n"},
    });
}

TEST(StrictTables, oneConfusionIsOneMistake)
{
    expectStrict({
        {"[a]\nb = 1\n[a.c]\n[a]\nb = 2\n[a.c]\n[a]\nb = 1\n",
         "duplicate-table at 17 a, first at 1 a\nduplicate-table at 33 a, first at 17 a\n"},
        {"a = 1\n[[a]]\nb = 1\n[a.c]\n[[a]]\nb = 1\n", "table-over-value at 8 a, first at 0 a\n"},
        {"[a]\nb = 1\n[[a]]\nb = 1\n[[a]]\nb = 1\n",
         "array-of-tables-over-table at 12 a, first at 1 a\n"},
        {"a = {b = 1}\na.c = 1\na.d = 1\n[a.e]\n", "inline-table-extended at 12 a, first at 0 a\n"},
        {"[[a]]\nb = 1\n[a]\nb = 2\n", "table-over-array-of-tables at 13 a, first at 2 a\n"},
        {"a.b = 1\na = 2\na.c = 3\n", "value-over-table at 8 a, first at 0 a\n"},
        {"[a.b]\n[a]\nb.d = 1\nb.e = 1\n", "dotted-key-over-table at 10 b, first at 3 b\n"},
    });
}

TEST(StrictTables, inlineTablesLeaveNothingBehind)
{
    using namespace vorn::parsers::toml::diagnosis;
    const std::string document = "a.b";
    StrictMistakes mistakes(document, 0);
    StrictTables tables(document.data() + document.size(), mistakes);
    const StrictTables::InlineTable first = tables.beginInlineTable();
    EXPECT_NE(tables.definePair(first, document), nullptr);
    tables.endInlineTable(first);
    const StrictTables::InlineTable second = tables.beginInlineTable();
    EXPECT_EQ(second.before.count, first.before.count);
    EXPECT_EQ(second.members, first.members);
}

TEST(StrictTables, words)
{
    const auto mistakes = strictMistakes("[a.'b c']\n[a]\n'b c' = 1\n");
    ASSERT_EQ(mistakes.size(), 1U);
    EXPECT_EQ(mistakes[0].message, "the key 'b c' is a table already, so it cannot have a value");
    EXPECT_EQ(mistakes[0].hint, "Rename the value or the table.");
    EXPECT_EQ(strictMistakes("\"\t\" = 1\n'\t' = 1\n").at(0).message, "the key is defined twice");
    EXPECT_EQ(strictMistakes("a = 1\na = 2\n").at(0).hint,
              "A table has each key only once. Remove or rename one of the two.");
    EXPECT_EQ(strictMistakes("[[a]]\n[a]\n").at(0).message,
              "the key 'a' is an array of tables already, so it cannot be a table");
}

// The time for these would be hours if it grew with the square.
TEST(StrictTables, large)
{
    std::string text;
    for (int number = 0; number < 200000; ++number)
    {
        text += "key" + std::to_string(number) + " = 1\n";
    }
    expectStrict({{text, ""}});
    text.clear();
    for (int number = 0; number < 100000; ++number)
    {
        text += "[table" + std::to_string(number) + "]\na.b.c = 1\n";
    }
    expectStrict({{text, ""}});
    expectStrict({{repeated(100000, "[[a]]\nb = 1\n[a.c]\n"), ""}});
    const std::string longKey = "a" + repeated(100000, ".a");
    expectStrict({{longKey + ".b = 1\n" + longKey + ".c = 2\n[b]\n", ""}});
    expectStrict({{'[' + longKey + "]\n[" + longKey + ".b]\n", ""}});
    expectStrict({{"a = [{b = 1}" + repeated(200000, ", {b = 1}") + "]\n", ""}});
}

TEST(StrictTables, anyDepth)
{
    constexpr std::size_t depth = 300000;
    expectStrict({{"a = " + repeated(depth, "{a = ") + '1' + repeated(depth, "}") + '\n', ""},
                  {"a = " + repeated(depth, "[") + '1' + repeated(depth, "]") + '\n', ""}});
    expectStrict(
        {{"a = " + repeated(depth, "[{a = ") + "{b = 1, b = 2}" + repeated(depth, "}]") + '\n',
          "duplicate-key at 1800012 b, first at 1800005 b\n"}});
}
