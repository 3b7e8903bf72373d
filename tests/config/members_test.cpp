// Members of every kind, and what they do not take.
#include "every_member.h"
#include "told_problems.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace
{

namespace toml = vorn::parsers::toml;
using test::Color;
using test::EveryMember;

EveryMember readOf(const std::string& text)
{
    EveryMember config;
    EXPECT_EQ(test::told(toml::readConfig(text, test::everySchema(), config)), "") << text;
    return config;
}

std::string toldOf(const std::string& text)
{
    EveryMember config;
    return test::told(toml::readConfig(text, test::everySchema(), config));
}

} // namespace

TEST(Members, areIntegersOfAllSizes)
{
    const EveryMember config =
        readOf("tiny = -128\nbyte = 255\nsmall = -32_768\nport = 65535\nnumber = -2147483648\n"
               "count = 4294967295\nwide = -9223372036854775808\nsize = 0x7fffffffffffffff\n");
    EXPECT_EQ(config.tiny, -128);
    EXPECT_EQ(config.byte, 255);
    EXPECT_EQ(config.small, -32768);
    EXPECT_EQ(config.port, 65535);
    EXPECT_EQ(config.number, std::numeric_limits<int>::min());
    EXPECT_EQ(config.count, 4294967295U);
    EXPECT_EQ(config.wide, std::numeric_limits<long long>::min());
    EXPECT_EQ(config.size, 0x7fffffffffffffffU);
    EXPECT_EQ(toldOf("tiny = 128\nbyte = -1\nsmall = 32768\nport = 65536\nnumber = 2147483648\n"
                     "count = 4294967296\nwide = 9223372036854775808\nsize = -1\n"),
              "1:8: tiny: 128 is not in -128 to 127\n"
              "2:8: byte: -1 is not in 0 to 255\n"
              "3:9: small: 32768 is not in -32768 to 32767\n"
              "4:8: port: 65536 is not in 0 to 65535\n"
              "5:10: number: 2147483648 is not in -2147483648 to 2147483647\n"
              "6:9: count: 4294967296 is not in 0 to 4294967295\n"
              "7:8: wide: 9223372036854775808 is not in -9223372036854775808 to "
              "9223372036854775807\n"
              "8:8: size: -1 is not in 0 to 9223372036854775807\n");
    EXPECT_EQ(toldOf("number = 1.0\n"), "1:10: number: should be an integer, is a float\n");
}

TEST(Members, areFloats)
{
    const EveryMember config = readOf("ratio = 0.5\nexact = 3\n");
    EXPECT_EQ(config.ratio, 0.5F);
    EXPECT_EQ(config.exact, 3.0);
    EXPECT_EQ(readOf("exact = -inf\n").exact, -std::numeric_limits<double>::infinity());
    // The shortest text of the last float.
    EXPECT_EQ(readOf("ratio = 3.4028235e38\n").ratio, std::numeric_limits<float>::max());
    EXPECT_EQ(readOf("ratio = inf\n").ratio, std::numeric_limits<float>::infinity());
    EXPECT_EQ(toldOf("ratio = 1e39\nexact = 1e400\n"),
              "1:9: ratio: 1e39 is out of range\n2:9: exact: 1e400 is out of range\n");
}

TEST(Members, areBooleansAndStringsAndTimes)
{
    const EveryMember config =
        readOf("on = true\ntext = \"a\\tb\\u00e9\"\ntime = 1979-05-27T07:32:00.5Z\n");
    EXPECT_TRUE(config.isOn);
    EXPECT_EQ(config.text, "a\tb\xc3\xa9");
    EXPECT_EQ(config.time.date, (toml::Date{1979, 5, 27}));
    EXPECT_EQ(config.time.offset, 0);
    const std::string nul("text = \"a\0b\"\n", 13);
    EXPECT_EQ(readOf(nul).text, std::string("a\0b", 3));
    EXPECT_EQ(toldOf("on = 1\ntext = 1979-05-27\ntime = \"x\"\n"),
              "1:6: on: should be a boolean, is an integer\n"
              "2:8: text: should be a string, is a date\n"
              "3:8: time: should be a date or time, is a string\n");
    EXPECT_EQ(toldOf("time = 1979-02-30\n"),
              "1:16: time: the day 30 does not exist (This month has the days 01 to 28.)\n");
}

TEST(Members, areDurations)
{
    const EveryMember config = readOf("pause = 2\ninterval = 0.25\nexact-pause = 1.5\n");
    EXPECT_EQ(config.pause, std::chrono::seconds(120));
    EXPECT_EQ(config.interval, std::chrono::milliseconds(250));
    EXPECT_DOUBLE_EQ(config.exactPause.count(), 0.0015);
    EXPECT_EQ(readOf("pause = 1.5\n").pause, std::chrono::seconds(90));
    EXPECT_EQ(readOf("interval = 0.1\n").interval, std::chrono::milliseconds(100));
    EXPECT_EQ(toldOf("interval = 0.0005\npause = 61\n"),
              "1:12: interval: 0.0005 seconds cannot be held exactly\n"
              "2:9: pause: 61 is not in 1 to 60\n");
    EXPECT_EQ(toldOf("interval = 1e300\n"), "1:12: interval: 1e300 is out of range\n");
    EXPECT_EQ(toldOf("interval = 9223372036854775807\n"),
              "1:12: interval: 9223372036854775807 is out of range\n");
    EXPECT_EQ(toldOf("interval = nan\nexact-pause = inf\n"),
              "1:12: interval: nan is out of range\n2:15: exact-pause: inf is out of range\n");
    EXPECT_EQ(toldOf("interval = '1s'\n"),
              "1:12: interval: should be a number of seconds, is a string\n");
}

TEST(Members, areChoices)
{
    EXPECT_EQ(readOf("color = 'green'\n").color, Color::green);
    const EveryMember config = readOf("colors = ['red', 'green']\npalette.dark.sky = 'red'\n");
    EXPECT_EQ(config.colors, (std::vector<Color>{Color::red, Color::green}));
    EXPECT_EQ(config.palette.at("dark").at("sky"), Color::red);
    EXPECT_EQ(toldOf("colors = ['blue']\npalette = {dark = {sky = 1}}\n"),
              "1:11: colors[0]: 'blue' is not one of \"red\", \"green\"\n"
              "2:26: palette.dark.sky: should be a string, is an integer\n");
}

TEST(Members, areOptional)
{
    EXPECT_EQ(readOf("").limit, std::nullopt);
    EXPECT_EQ(readOf("limit = 5\n").limit, 5);
    EXPECT_EQ(readOf("names = ['a']\n").names, std::vector<std::string>{"a"});
    EXPECT_EQ(toldOf("limit = 4\n"), "1:9: limit: is not lucky\n");
    EXPECT_EQ(toldOf("limit = 10\nnames = 1\n"),
              "1:9: limit: 10 is not in 1 to 9\n"
              "2:9: names: should be an array of strings, is an integer\n");
}

TEST(Members, areListsAndMaps)
{
    const EveryMember config =
        readOf("flags = [true, false, true]\nrows = [[1, 2], [3]]\n"
               "triple = [1, 2, 3]\n[features]\na = true\n\"b c\" = false\n");
    EXPECT_EQ(config.flags, (std::vector<bool>{true, false, true}));
    EXPECT_EQ(config.rows, (std::vector<std::vector<int>>{{1, 2}, {3}}));
    EXPECT_EQ(config.triple, (std::array<int, 3>{1, 2, 3}));
    EXPECT_EQ(config.features, (std::map<std::string, bool>{{"a", true}, {"b c", false}}));
    EXPECT_EQ(toldOf("flags = [1]\nrows = [[1, 100], 2]\ntriple = [1, 2]\nfeatures.\"b c\" = 1\n"),
              "1:10: flags[0]: should be a boolean, is an integer\n"
              "2:13: rows[0][1]: 100 is not in 0 to 99\n"
              "2:19: rows[1]: should be an array of integers, is an integer\n"
              "3:1: triple: should have 3 elements, has 2\n"
              "4:18: features.\"b c\": should be a boolean, is an integer\n");
    EXPECT_EQ(toldOf("triple = [1, 2, 3, 4]\n"), "1:1: triple: should have 3 elements, has 4\n");
}

TEST(Members, areStructs)
{
    EXPECT_FALSE(readOf("").center.has_value());
    EXPECT_EQ(readOf("point.x = 1\n").center->x, 1.0);
    EXPECT_EQ(readOf("[point]\nx = 2\ny = 3\n").center->y, 3.0);
    EXPECT_EQ(toldOf("[point]\ny = 3\n"), "1:2: point.x: is missing\n");
    const EveryMember config = readOf("corner = [{x = 1}, {x = 2}]\n[[window]]\nbegin = 5\n"
                                      "[window.origin]\nx = 4\n[[window]]\n[named.a]\nend = 7\n");
    EXPECT_EQ(config.corners[1].x, 2.0);
    EXPECT_EQ(config.windows.size(), 2U);
    EXPECT_EQ(config.windows[0].origin->x, 4.0);
    EXPECT_EQ(config.named.at("a").end, 7);
    EXPECT_EQ(toldOf("corner = [{x = 1}]\n[[window]]\n[window.origin]\n[named.a.origin]\n"),
              "1:1: corner: should have 2 elements, has 1\n"
              "3:9: window[0].origin.x: is missing\n"
              "4:10: named.a.origin.x: is missing\n");
}
