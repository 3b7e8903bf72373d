// Statements that count, and those that do not.
#include "diagnosis/strict_sink.h"

#include <gtest/gtest.h>

#include <string>

#include "strict_mistakes_of.h"

using namespace test;

namespace
{

// Of a document with statements that cannot be read.
std::string found(const std::string& text)
{
    EXPECT_FALSE(isRead(text));
    return shown(text, strictMistakes(text));
}

} // namespace

TEST(StrictSink, mistakesAreInOrder)
{
    expectStrict({
        {"a = 1\n\"a\" = {b = \"\\'\", b = 24:00:00, \"\\ud800\".c = 0}\n",
         "duplicate-key at 6 \"a\", first at 0 a\n"
         "unknown-escape at 18 \\'\n"
         "duplicate-key at 23 b, first at 13 b\n"
         "time-does-not-exist at 27 24\n"
         "escape-of-no-character at 38 \\ud800\n"},
    });
}

TEST(StrictSink, theFirstMistakesAreKept)
{
    const std::string text = "a = 1\na = [9999-99-99, 9999-99-99]\nb = 25:00:00\n";
    EXPECT_EQ(shown(text, strictMistakes(text, 2)),
              "duplicate-key at 6 a, first at 0 a\ndate-does-not-exist at 16 99\n");
    EXPECT_EQ(strictMistakes(text, 3).size(), 3U);
    EXPECT_EQ(strictMistakes(text, 0).size(), 4U);
    EXPECT_EQ(strictMistakes(text, 1).size(), 1U);
}

TEST(StrictSink, invalidStatementsDoNotCount)
{
    EXPECT_EQ(found("a = 25:00:00 b\na = 1\n"), "");
    EXPECT_EQ(found("a = {b = 1, b = 2\n"), "");
    EXPECT_EQ(found("a = \"\\'\" x\nb = 24:00:00\n"), "time-does-not-exist at 15 24\n");
    EXPECT_EQ(found("a = 24:00:00\nb = [25:00:00,, 1]\n"), "time-does-not-exist at 4 24\n");
    // At the end, too.
    EXPECT_EQ(found("a = 1\na = 24:00:00"), "");
}

TEST(StrictSink, whatIsBeforeAnInvalidPairIsKnownAfterIt)
{
    EXPECT_EQ(found("a = 1\nb = \na = 2\n"), "duplicate-key at 11 a, first at 0 a\n");
    EXPECT_EQ(found("a = 1\nb.c = 1 2\na = 2\n"), "duplicate-key at 16 a, first at 0 a\n");
    EXPECT_EQ(found("a = 1\nb = [{c = [1]}] 2\na = 2\n"), "duplicate-key at 24 a, first at 0 a\n");
    EXPECT_EQ(found("[a]\nb = {c = 1} d\n[a]\n"), "duplicate-table at 19 a, first at 1 a\n");
}

TEST(StrictSink, afterWhatMayBeAHeaderTheTableIsNotKnown)
{
    for (const std::string damaged : {"[b", "[[b]", "b]", "a.b]", "@", "b c", "{", "b"})
    {
        EXPECT_EQ(found("a = 1\n" + damaged + "\na = 2\na = 3\n"), "") << damaged;
        // Values are looked at all the same, and what is in inline tables.
        EXPECT_EQ(strictMistakes("a = 1\n" + damaged + "\na = {b = 24:00:00, b = 1}\n").size(), 2U);
        // The next header is known.
        EXPECT_EQ(strictMistakes("a = 1\n" + damaged + "\na = 2\n[c]\nd = 1\nd = 2\n").size(), 1U);
    }
}

TEST(StrictSink, afterAnInvalidHeaderTablesMayComeAgain)
{
    EXPECT_EQ(found("[[a]\n[a.b]\n[[a]\n[a.b]\n"), "");
    EXPECT_EQ(found("[a]]\n[a.b]\n[a.b]\n"), "duplicate-table at 14 b, first at 8 b\n");
}

TEST(StrictSink, afterAnOpenBracketTheTableIsNotKnown)
{
    EXPECT_EQ(found("x = 1\na = {\nx = 2\nx = 3\n}\n"), "");
    EXPECT_EQ(found("x = 1\na = [1\n{x = 3}\nx = 1\n"), "");
    EXPECT_EQ(found("x = 1\na = [{x = 1\nx = 1\n"), "");
}

TEST(StrictSink, inlineTablesThatAreNotClosedLeaveNothing)
{
    EXPECT_EQ(found("a = {b = 1, c = {d = 1\n[a]\nb = {b = 1}\nc = {d = 1}\n"), "");
    EXPECT_EQ(found("a = {b = {c = 1\n[t]\na = {b = {c = 1, c = 2}}\n"),
              "duplicate-key at 37 c, first at 30 c\n");
}

TEST(StrictSink, isFullWithTheLastMistakeThatItKeeps)
{
    const std::string text = "a = 24:00:00\n";
    vorn::parsers::toml::diagnosis::StrictSink sink(text, 1);
    using vorn::parsers::toml::Event;
    sink.keyOfPair(Event::visitBareKey, std::string_view(text).substr(0, 1));
    sink.valueOfPair(Event::visitLocalTime, std::string_view(text).substr(4, 8));
    EXPECT_FALSE(sink.isFull());
    sink.lineEnd(text.data() + text.size());
    EXPECT_TRUE(sink.isFull());
    EXPECT_EQ(sink.takeMistakes().size(), 1U);
    EXPECT_FALSE(sink.isFull());
}

TEST(StrictSink, aByteOrderMarkIsNoPartOfAKey)
{
    expectStrict({{"\xEF\xBB\xBF"
                   "a = 1\na = 2\n",
                   "duplicate-key at 9 a, first at 3 a\n"}});
}
