// What values and keys of documents become, however they are written.
#include "every_member.h"
#include "told_problems.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

namespace toml = vorn::parsers::toml;
using test::EveryMember;

std::string toldOf(const std::string& text)
{
    EveryMember config;
    return test::told(toml::readConfig(text, test::everySchema(), config));
}

EveryMember readOf(const std::string& text)
{
    EveryMember config;
    EXPECT_EQ(test::told(toml::readConfig(text, test::everySchema(), config)), "") << text;
    return config;
}

} // namespace

TEST(Reader, takesStringsOfAllKinds)
{
    EXPECT_EQ(readOf("text = \"a\\tb\"\n").text, "a\tb");
    EXPECT_EQ(readOf("text = 'a\\tb'\n").text, "a\\tb");
    EXPECT_EQ(readOf("text = \"\"\"\na\\\n  b\"\"\"\n").text, "ab");
    EXPECT_EQ(readOf("text = '''\na\nb'''\n").text, "a\nb");
}

TEST(Reader, takesDatesAndTimesOfAllKinds)
{
    EXPECT_EQ(readOf("time = 1979-05-27T07:32:00Z\n").time.offset, 0);
    const toml::DateTime local = readOf("time = 1979-05-27T07:32:00\n").time;
    EXPECT_EQ(local.date, (toml::Date{1979, 5, 27}));
    EXPECT_EQ(local.time, (toml::Time{7, 32, 0, 0}));
    EXPECT_FALSE(local.offset.has_value());
    EXPECT_FALSE(readOf("time = 1979-05-27\n").time.time.has_value());
    EXPECT_FALSE(readOf("time = 07:32:00\n").time.date.has_value());
}

TEST(Reader, tellsValuesThatAreNoneInItsOwnWordsToo)
{
    const std::string date = "time = 1979-02-30\n";
    EXPECT_EQ(toldOf(date),
              "1:16: time: the day 30 does not exist (This month has the days 01 to 28.)\n");
    // The diagnosis ends before it.
    std::string names = "names = ['\x80'";
    for (int i = 0; i < 1000; ++i)
    {
        names += ", '\x80'";
    }
    const std::string told = toldOf(names + "]\n" + date);
    EXPECT_EQ(told.substr(told.find('\n') + 1),
              "2:8: time: 1979-02-30 has no value\n"
              "3:1: has more than 1,000 mistakes by TOML 1.0, so that not all are looked for\n");
}

TEST(Reader, takesKeysOfAllKinds)
{
    const EveryMember config =
        readOf("features.\"a.b\" = true\nfeatures.'c d' = true\n\"features\".e = true\n");
    EXPECT_EQ(config.features,
              (std::map<std::string, bool>{{"a.b", true}, {"c d", true}, {"e", true}}));
    EXPECT_EQ(readOf("point = {\"x\" = 1, 'y' = 2}\n").center->y, 2.0);
    EXPECT_EQ(readOf("[\"named\".'a b']\nend = 20\n").named.at("a b").end, 20);
}

TEST(Reader, tellsKeysThatAreNone)
{
    const std::string complaint =
        ": the escape \\uD800 stands for no character (D800 to DFFF are halves of pairs in UTF-16. "
        "Write one \\U with the number of the whole character.)\n";
    EXPECT_EQ(toldOf("\"\\uD800\" = 1\n"), "1:2" + complaint);
    EXPECT_EQ(toldOf("features.\"a\\uD800\" = true\n"), "1:12: features" + complaint);
    EXPECT_EQ(toldOf("[\"\\uD800\".a]\nb = 1\n"), "1:3" + complaint);
    // Below an unknown key nothing is looked at.
    EXPECT_EQ(toldOf("unknown.\"\\uD800\" = 1\n"), "1:1: unknown: unknown key\n");
    EXPECT_EQ(toldOf("unknown = {\"\\uD800\" = 1}\n"), "1:1: unknown: unknown key\n");
}

TEST(Reader, passesOverWhatAnUnknownKeyHas)
{
    EXPECT_EQ(toldOf("a = [[1], {b = [2]}]\nnumber = 'x'\n"),
              "1:1: a: unknown key\n2:10: number: should be an integer, is a string\n");
    EXPECT_EQ(toldOf("[a]\nnumber = 'x'\n[point]\nx = 'x'\n"),
              "1:2: a: unknown key\n4:5: point.x: should be a number, is a string\n");
}
