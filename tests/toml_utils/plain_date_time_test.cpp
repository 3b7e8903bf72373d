// Which date-times take the short way, and what it reads of them.
#include <gtest/gtest.h>

#include "plain_date_time.h"

#include <vorn/parsers/toml.h>

#include <regex.h>

#include <clocale>
#include <cstring>
#include <ctime>
#include <locale>
#include <string>
#include <thread>

#include "stated_conversions.h"
#include "support/log_recorder.h"
#include "support/time_zone.h"
#include "support/variable.h"

using namespace vorn::parsers::toml;

namespace
{

int compilations = 0; // that the C library has been asked for

bool isPlain(const std::string& text)
{
    std::tm time = {};
    return readPlainDateTime(text, time);
}

void expectPlain(const std::string& text, int isdst)
{
    SCOPED_TRACE(text);
    std::tm time = {};
    EXPECT_TRUE(readPlainDateTime(text, time));
    EXPECT_EQ(time.tm_year, 79);
    EXPECT_EQ(time.tm_mon, 4);
    EXPECT_EQ(time.tm_mday, 27);
    EXPECT_EQ(time.tm_hour, 7);
    EXPECT_EQ(time.tm_min, 32);
    EXPECT_EQ(time.tm_sec, 1);
    EXPECT_EQ(time.tm_isdst, isdst);
}

void expectBothWays(const std::string& text)
{
    SCOPED_TRACE(text);
    EXPECT_TRUE(isPlain(text));
    EXPECT_EQ(parseDateTime(text).tv_sec, stated::parseDateTime(text).tv_sec);
}

// A locale of the C library, of the process or of this thread, while it lives.
class ProcessLocale
{
public:
    ProcessLocale(int category, const char* name)
    {
        EXPECT_NE(std::setlocale(category, name), nullptr) << name << ", see LOCPATH";
    }
    ProcessLocale(const ProcessLocale&) = delete;
    ProcessLocale& operator=(const ProcessLocale&) = delete;
    ~ProcessLocale() { std::setlocale(LC_ALL, "C"); }
};

class ThreadLocale
{
public:
    explicit ThreadLocale(const char* name) : own_(newlocale(LC_ALL_MASK, name, nullptr))
    {
        EXPECT_NE(own_, nullptr) << name << ", see LOCPATH";
        uselocale(own_);
    }
    ThreadLocale(const ThreadLocale&) = delete;
    ThreadLocale& operator=(const ThreadLocale&) = delete;
    ~ThreadLocale()
    {
        uselocale(LC_GLOBAL_LOCALE);
        freelocale(own_);
    }

private:
    locale_t own_;
};

constexpr const char* german = "de_DE.UTF-8";
const std::string moment = "1979-05-27T07:32:01Z";

} // namespace

extern "C"
{
    int __real_regcomp(regex_t* regex, const char* pattern, int flags);
    int __wrap_regcomp(regex_t* regex, const char* pattern, int flags)
    {
        ++compilations;
        return __real_regcomp(regex, pattern, flags);
    }
}

TEST(PlainDateTime, areTheFormsOfTheGrammar)
{
    for (const std::string separator : {"T", " "})
    {
        const std::string dateAndTime = "1979-05-27" + separator + "07:32:01";
        expectPlain(dateAndTime + "Z", -1);
        for (const char* rest : {"", ".5", ".123456789", ".5Z", "+00:00", "-07:00", "+99:99",
                                 ".5-07:00", ".123456789+07:00"})
        {
            expectPlain(dateAndTime + rest, 0);
        }
    }
}

TEST(PlainDateTime, otherTextsAreNot)
{
    for (const char* text :
         {"", "1979-05-27", "07:32:01", "1979-05-27t07:32:01Z", "1979-05-27T07:32:01z",
          "1979-05-27T07:32:01A", "1979-05-27T07:32:01.", "1979-05-27T07:32:01.Z",
          "1979-05-27T07:32:01+0700", "1979-05-27T07:32:01+07:00Z", "1979-05-27T07:32:01 ",
          " 1979-05-27T07:32:01", "1979-05-27  07:32:01", "1979-05-27T07:32",
          "11979-05-27T07:32:01", "1979-05-27x07:32:01", "1979-05-27-07:32:01", "true"})
    {
        EXPECT_FALSE(isPlain(text)) << text;
    }
    EXPECT_FALSE(isPlain(std::string("1979-05-27T07:32:01Z\0", 21)));
}

TEST(PlainDateTime, fieldsOutOfRangeAreLeftToTheCLibrary)
{
    const test::TimeZone zone("Europe/Berlin");
    for (const char* text : {"0000-01-01T00:00:00Z", "9999-12-31T23:59:61Z", "1979-02-31T07:32:60"})
    {
        expectBothWays(text);
    }
    for (const char* text : {"1979-00-27T07:32:01Z", "1979-13-27T07:32:01Z", "1979-05-00T07:32:01Z",
                             "1979-05-32T07:32:01Z", "1979-05-27T24:32:01Z", "1979-05-27T07:60:01Z",
                             "1979-05-27T07:32:62Z"})
    {
        EXPECT_FALSE(isPlain(text)) << text;
        EXPECT_EQ(parseDateTime(text).tv_sec, stated::parseDateTime(text).tv_sec) << text;
    }
}

TEST(PlainDateTime, takeNoRegularExpression)
{
    const test::TimeZone zone("UTC");
    compilations = 0;
    EXPECT_EQ(parseDateTime("1979-05-27T07:32:00Z").tv_sec, 296638320);
    EXPECT_EQ(parseDateTime("1979-05-27 07:32:00.5+07:00").tv_sec, 296638320);
    EXPECT_EQ(compilations, 0);
    EXPECT_EQ(parseDateTime("1979-05-27T07:32:00A").tv_sec, 296638320);
    EXPECT_EQ(compilations, 1);
}

TEST(PlainDateTime, theStatedWayLogsWhatIsNone)
{
    for (const auto parse : {parseDateTime, stated::parseDateTime})
    {
        const test::LogRecorder log;
        EXPECT_EQ(parse("1979-05-27t07:32:01Z").tv_sec, 0);
        ASSERT_EQ(log.lines().size(), 1U);
        EXPECT_EQ(log.lines()[0].function, "parseDateTime");
        EXPECT_EQ(log.lines()[0].sourceFile, "src/toml_utils.cpp");
        EXPECT_EQ(log.lines()[0].message, "Failed to parse date-time: 1979-05-27t07:32:01Z");
    }
}

TEST(PlainDateTime, noTextIsPlainWhereCharactersHaveAnotherOrder)
{
    EXPECT_TRUE(isPlain(moment));
    {
        const ProcessLocale locale(LC_COLLATE, german);
        EXPECT_FALSE(isPlain(moment));
    }
    {
        const ProcessLocale locale(LC_ALL, german);
        EXPECT_FALSE(isPlain(moment));
    }
    EXPECT_TRUE(isPlain(moment));
}

TEST(PlainDateTime, otherPartsOfALocaleDoNotMatter)
{
    const test::TimeZone zone("Europe/Berlin");
    for (const int category : {LC_CTYPE, LC_NUMERIC, LC_TIME, LC_MONETARY, LC_MESSAGES})
    {
        const ProcessLocale locale(category, german);
        expectBothWays(moment);
        expectBothWays("2024-07-15 12:00:00.25+02:00");
    }
}

TEST(PlainDateTime, aLocaleOfTheThreadCounts)
{
    {
        const ThreadLocale locale(german);
        EXPECT_FALSE(isPlain(moment));
        bool isPlainThere = false;
        std::thread([&isPlainThere] { isPlainThere = isPlain(moment); }).join();
        EXPECT_TRUE(isPlainThere);
    }
    EXPECT_TRUE(isPlain(moment));
    const ProcessLocale locale(LC_ALL, german);
    const ThreadLocale classic("C");
    EXPECT_TRUE(isPlain(moment));
}

TEST(PlainDateTime, theLocaleOfTheProcessMayBeSetOnAnotherThread)
{
    std::thread([] { std::setlocale(LC_ALL, german); }).join();
    EXPECT_FALSE(isPlain(moment));
    std::thread([] { std::setlocale(LC_ALL, "C"); }).join();
    EXPECT_TRUE(isPlain(moment));
}

TEST(PlainDateTime, aGlobalLocaleOfCPlusPlusCountsIfItHasAName)
{
    std::locale::global(std::locale(german));
    EXPECT_FALSE(isPlain(moment));
    std::locale::global(std::locale::classic());
    EXPECT_TRUE(isPlain(moment));
}

// As mktime() sees it, without a call of tzset().
TEST(PlainDateTime, theTimeZoneMayChangeBetweenCalls)
{
    const std::string text = "2024-07-15T12:00:00Z";
    for (int round = 0; round < 2; ++round)
    {
        {
            const test::Variable zone("TZ", "CET-1CEST,M3.5.0,M10.5.0");
            EXPECT_EQ(parseDateTime(text).tv_sec, 1721037600);
            EXPECT_EQ(parseDateTime("2024-07-15T12:00:00").tv_sec, 1721041200);
        }
        const test::Variable zone("TZ", "UTC0");
        EXPECT_EQ(parseDateTime(text).tv_sec, 1721044800);
    }
}
