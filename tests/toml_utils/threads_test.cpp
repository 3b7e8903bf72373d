// Two threads make the first call of parseDateTime() in the process.  Everything here is
// built with the thread sanitizer, which ends the program at a race.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "support/time_zone.h"

using vorn::parsers::toml::parseDateTime;

TEST(TomlUtilsThreads, theFirstCallOfTheProcessIsMadeByTwoThreadsAtOnce)
{
    const test::TimeZone zone("UTC");
    std::atomic<int> waiting{2};
    const auto parse = [&waiting](const std::string& text, std::vector<timeval>& results)
    {
        --waiting;
        while (waiting > 0)
        {
            std::this_thread::yield();
        }
        for (int round = 0; round < 20; ++round)
        {
            // Every other one is a text for the regular expressions.
            results.push_back(parseDateTime(round % 2 == 0 ? text : text + '#'));
        }
    };
    std::vector<timeval> mine;
    std::vector<timeval> others;
    std::thread other([&parse, &others] { parse("1979-05-27T07:32:00-07:00", others); });
    parse("2001-02-03 04:05:06", mine);
    other.join();

    ASSERT_EQ(mine.size(), 20U);
    ASSERT_EQ(others.size(), 20U);
    for (std::size_t round = 0; round < mine.size(); ++round)
    {
        SCOPED_TRACE(round);
        EXPECT_EQ(mine[round].tv_sec, 981173106);
        EXPECT_EQ(mine[round].tv_usec, 0);
        EXPECT_EQ(others[round].tv_sec, 296638320);
        EXPECT_EQ(others[round].tv_usec, 0);
    }
}
