// The patterns of parseDateTime(): what they match, and what becomes of a text and of memory
// where the C library fails.  The texts are not exactly a date-time, so that only the patterns
// can say what they are.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>
#include <vorn/utils/format.h>

#include <regex.h>

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstdio>
#include <ctime>
#include <new>
#include <set>
#include <string>
#include <vector>

#include "support/date_times.h"
#include "support/time_zone.h"

using namespace std::string_literals;
using namespace test;
using vorn::parsers::toml::parseDateTime;

namespace
{

// In the order in which they are tried.
const std::string letter = "[0-9]{4}-[0-9]{2}-[0-9]{2}[ T][0-9]{2}:[0-9]{2}:[0-9]{2}[A-IK-Z]";
const std::string offset = "[0-9]{4}-[0-9]{2}-[0-9]{2}[ T][0-9]{2}:[0-9]{2}:[0-9]{2}"
                           "(.[0-9]{1,6})?[+-][0-9]{2}:[0-9]{2}";
const std::string neither =
    "[0-9]{4}-[0-9]{2}-[0-9]{2}[ T][0-9]{2}:[0-9]{2}:[0-9]{2}(.[0-9]{1,6})?";
const std::vector<std::string> patterns = {letter, offset, neither};

// How the C library fails.
struct Failures
{
    std::vector<std::string> patterns; // these do not compile
    bool leaveThePattern = false;      // which is there all the same then
    bool mktime = false;
    bool format = false; // which is the utility library's
};

Failures failures;
std::set<const void*> compiled; // what has not been freed

class TomlUtilsDateTimePatterns : public testing::Test
{
protected:
    TomlUtilsDateTimePatterns() { failures = {}; }
    ~TomlUtilsDateTimePatterns() override
    {
        failures = {};
        EXPECT_TRUE(compiled.empty()) << compiled.size() << " patterns have not been freed";
    }
};

std::vector<std::string> allBut(const std::string& pattern)
{
    std::vector<std::string> others = patterns;
    others.erase(std::find(others.begin(), others.end(), pattern));
    return others;
}

// The messages of a text that only `pattern` is there for.
std::vector<DateTimeMessage> messagesWith(const std::string& pattern, bool matches,
                                          const std::string& text)
{
    std::vector<DateTimeMessage> messages;
    for (const std::string& one : patterns)
    {
        if (one != pattern)
        {
            messages.push_back(failedToCompile(one));
        }
        else if (matches)
        {
            return messages;
        }
    }
    messages.push_back(failedToParse(text.c_str())); // up to its first NUL byte
    return messages;
}

void expectMatch(const std::string& text, const std::string& pattern, bool matches)
{
    SCOPED_TRACE(testing::PrintToString(text) + " by " + pattern);
    failures = {};
    const timeval whole = parseDateTime(text);
    failures.patterns = allBut(pattern);
    const LogRecorder log;
    const timeval result = parseDateTime(text);
    EXPECT_EQ(result.tv_sec, matches ? whole.tv_sec : 0);
    EXPECT_EQ(result.tv_usec, 0);
    expectDateTimeLog(log.lines(), messagesWith(pattern, matches, text));
}

constexpr long long moment = 296638320; // 1979-05-27 07:32:00

// A time of which only a zone letter says that it is daylight saving time.
const std::string summer = "2024-07-15T12:00:00Z";
constexpr long long daylightSaving = 1721037600;
constexpr long long standard = 1721041200;

void expectWithoutLetter(const std::string& text, long long seconds)
{
    failures.patterns = {letter};
    const LogRecorder log;
    EXPECT_EQ(parseDateTime(text).tv_sec, seconds);
    expectDateTimeLog(log.lines(), {failedToCompile(letter)});
}

} // namespace

// Takes the place of the utility library's.
std::string vorn::utils::format(const char* format, ...)
{
    if (failures.format)
    {
        throw std::bad_alloc();
    }
    std::array<char, 64> text{};
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(text.data(), text.size(), format, arguments);
    va_end(arguments);
    return {text.data(), static_cast<std::size_t>(length)};
}

// What the library's calls reach (--wrap of the linker).
extern "C"
{
    int __real_regcomp(regex_t* regex, const char* pattern, int flags);
    int __wrap_regcomp(regex_t* regex, const char* pattern, int flags)
    {
        EXPECT_EQ(flags, REG_EXTENDED | REG_NOSUB);
        const bool fails =
            std::count(failures.patterns.begin(), failures.patterns.end(), pattern) != 0;
        if (fails && !failures.leaveThePattern)
        {
            return REG_ESPACE;
        }
        const int result = __real_regcomp(regex, pattern, flags);
        EXPECT_EQ(result, 0);
        compiled.insert(regex->buffer);
        return fails ? REG_BADPAT : result;
    }

    void __real_regfree(regex_t* regex);
    void __wrap_regfree(regex_t* regex)
    {
        if (regex->buffer != nullptr && compiled.erase(regex->buffer) == 0)
        {
            ADD_FAILURE() << "a pattern is freed that is not there";
            return;
        }
        __real_regfree(regex);
    }

    std::time_t __real_mktime(std::tm* time);
    std::time_t __wrap_mktime(std::tm* time)
    {
        return failures.mktime ? -1 : __real_mktime(time);
    }
}

TEST_F(TomlUtilsDateTimePatterns, matchAnywhereInATextUpToItsFirstNulByte)
{
    const TimeZone zone("UTC");
    struct Case
    {
        std::string text;
        bool letter;
        bool offset;
        bool neither;
    };
    for (const Case& one : std::vector<Case>{
             {"1979-05-27T07:32:00Z#", true, false, true},
             {"1979-05-27 07:32:00A#", true, false, true},
             {"1979-05-27T07:32:00I#", true, false, true},
             {"1979-05-27T07:32:00J#", false, false, true},
             {"1979-05-27T07:32:00K#", true, false, true},
             {"1979-05-27T07:32:00a#", false, false, true},
             {"1979-05-27T07:32:00z#", false, false, true},
             {"1979-05-27T07:32:00.5Z#", false, false, true},
             {"1979-05-27T07:32:00Z+01:00#", true, false, true},
             {"1979-05-27T07:32:00+01:00Z#", false, true, true},
             {"1979-05-27T07:32:00-07:00#", false, true, true},
             {"1979-05-27 07:32:00+01:00#", false, true, true},
             {"1979-05-27T07:32:00.5+01:00#", false, true, true},
             {"1979-05-27T07:32:00.123456+01:00#", false, true, true},
             {"1979-05-27T07:32:00.1234567+01:00#", false, false, true},
             {"1979-05-27T07:32:00.+01:00#", false, false, true},
             {"1979-05-27T07:32:00x5+01:00#", false, true, true}, // the point is any character
             {"1979-05-27T07:32:00Z5+01:00#", true, true, true},
             {"1979-05-27T07:32:00+5+01:00#", false, true, true},
             {"1979-05-27T07:32:001234567+01:00#", false, true, true},
             {"1979-05-27T07:32:0012345678+01:00#", false, false, true},
             {"1979-05-27T07:32:00+0100#", false, false, true},
             {"1979-05-27T07:32:00+01#", false, false, true},
             {"1979-05-27T07:32:00 +01:00#", false, false, true},
             {"1979-05-27T07:32:00#", false, false, true},
             {"1979-05-27 07:32:00.999999#", false, false, true},
             {"1979-05-27T07:32:00\0Z"s, false, false, true},
             {"1979-05-27T07:32:00Z\0rest"s, true, false, true},
             {" 1979-05-27T07:32:00Z", true, false, true},
             {"x1979-05-27T07:32:00-07:00", false, true, true},
             {"1979-05-27t07:32:00 2001-02-03T04:05:06Z", true, false, true},
             {"1979-05-27t07:32:00 2001-02-03T04:05:06+01:00", false, true, true},
             {"1979-05-27T07:32:00-07:00 2001-02-03T04:05:06Z", true, true, true},
             {"1979-05-27%07:32:00 2001-02-03T04:05:06", false, false, true},
             {"1979-05-27#", false, false, false},
             {"07:32:00#", false, false, false},
             {"1979-05-27t07:32:00Z#", false, false, false},
             {"1979-05-27\0"
              "07:32:00Z"s,
              false, false, false},
         })
    {
        expectMatch(one.text, letter, one.letter);
        expectMatch(one.text, offset, one.offset);
        expectMatch(one.text, neither, one.neither);
    }
}

TEST_F(TomlUtilsDateTimePatterns, thatFailedAndAreThereAllTheSameAreTried)
{
    const TimeZone zone("Europe/Berlin");
    failures.leaveThePattern = true;
    expectWithoutLetter(summer + '#', daylightSaving);
    failures.leaveThePattern = false;
    expectWithoutLetter(summer + '#', standard);
}

TEST_F(TomlUtilsDateTimePatterns, thatFailedFailOnlyForTheTextInHand)
{
    const TimeZone zone("UTC");
    const std::string text = "1979-05-27T07:32:00Z#";
    for (int round = 0; round < 2; ++round)
    {
        failures.patterns = patterns;
        const LogRecorder log;
        EXPECT_EQ(parseDateTime(text).tv_sec, 0);
        expectDateTimeLog(log.lines(), {failedToCompile(letter), failedToCompile(offset),
                                        failedToCompile(neither), failedToParse(text)});
        failures = {};
        expectSeconds(text, moment);
    }
}

// The exception, where the library formats anything, is the caller's.
TEST_F(TomlUtilsDateTimePatterns, areFreedWhereAnExceptionPasses)
{
    const TimeZone zone("UTC");
    for (const std::string rest : {"Z", "-07:00", "", "Z#", "-07:00#", "#"})
    {
        SCOPED_TRACE(rest);
        failures.format = true;
        bool thrown = false;
        timeval result = {};
        try
        {
            result = parseDateTime("1979-05-27T07:32:00" + rest);
        }
        catch (const std::bad_alloc&)
        {
            thrown = true;
        }
        EXPECT_TRUE(thrown || result.tv_sec == moment);
        EXPECT_TRUE(compiled.empty());
    }
}

TEST_F(TomlUtilsDateTimePatterns, leaveTheFailureOfMktimeAsTheResult)
{
    for (const std::string rest : {"Z", "-07:00", "", "Z#", "-07:00#", "#"})
    {
        failures.mktime = true;
        expectSeconds("1979-05-27T07:32:00" + rest, -1);
    }
}
