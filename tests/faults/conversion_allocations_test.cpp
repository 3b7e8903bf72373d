// Conversions of which the first, the second, ... request for memory fails.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>

#include <regex.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <new>
#include <string>
#include <vector>

#include "failing_memory.h"
#include "quiet_log.h"

using namespace vorn::parsers::toml;
using test::Failing;
using test::FailingMemory;

namespace
{

const std::string longText(100, 'x');
const std::string quotes = "\"\"\"";

// A conversion that returns whether its value is the right one.  The texts do not fit where
// strings keep short ones.
struct Conversion
{
    const char* name;
    bool (*isRight)();
};

const std::vector<Conversion> conversions = {
    {"unquote",
     []
     {
         static const std::string text = '"' + longText + '"';
         return unquote(text) == longText;
     }},
    {"unquote with a delimiter",
     []
     {
         static const std::string text = quotes + longText + quotes;
         return unquote(text, quotes) == longText;
     }},
    {"enquote",
     []
     {
         static const std::string value = quotes + longText + quotes;
         return enquote(longText, quotes) == value;
     }},
    {"processMultilineString",
     []
     {
         static const std::string text = quotes + "\n" + longText + "\\\n  " + longText + quotes;
         static const std::string value = longText + longText;
         return processMultilineString(text) == value;
     }},
    {"processMultilineLiteralString",
     []
     {
         static const std::string text = "'''\n" + longText + "'''";
         return processMultilineLiteralString(text) == longText;
     }},
    {"parseBoolean",
     []
     {
         static const std::string text = std::string(50, ' ') + "true";
         return parseBoolean(text);
     }},
    {"parseInteger, decimal",
     []
     {
         static const std::string text = "-1_2_3_4_5_6_7_8_9_0_1_2_3_4_5_6";
         return parseInteger(text) == -1234567890123456;
     }},
    {"parseInteger, hexadecimal",
     []
     {
         static const std::string text = "0x0000_0000_0000_0000_DEAD_beef";
         return parseInteger(text) == 0xDEADBEEF;
     }},
    {"parseInteger, octal",
     []
     {
         static const std::string text = "0o0000_0000_0000_0000_0000_755";
         return parseInteger(text) == 0755;
     }},
    {"parseInteger, binary",
     []
     {
         static const std::string text = "0b0000_0000_0000_0000_1101_0101";
         return parseInteger(text) == 0xD5;
     }},
    {"parseFloat",
     []
     {
         static const std::string text = "1_000.500_000_000_000_000_000_000_000_000_000_0";
         return parseFloat(text) == 1000.5;
     }},
};

struct Outcome
{
    bool hasFailed = false; // a request for memory
    bool hasThrown = false; // std::bad_alloc
    bool isRight = false;
    long blocks = 0; // that were not given back
};

template <typename IsRight>
Outcome convert(IsRight isRight, long number, Failing failing)
{
    test::clearLog();
    Outcome outcome;
    const FailingMemory memory(number, failing);
    try
    {
        outcome.isRight = isRight();
    }
    catch (const std::bad_alloc&)
    {
        outcome.hasThrown = true;
    }
    outcome.hasFailed = memory.hasFailed();
    outcome.blocks = memory.blocks();
    return outcome;
}

// Converts with ever later failures, up to the first that none reaches, and hands the
// outcomes of the others to `check`.  Returns how many there are.
template <typename IsRight, typename Check>
int expectWord(IsRight isRight, Check check)
{
    int failures = 0;
    // What is made at the first use stays.
    EXPECT_TRUE(isRight());
    for (const Failing failing : {Failing::once, Failing::fromThere})
    {
        for (long number = 1;; ++number)
        {
            SCOPED_TRACE("request " + std::to_string(number) +
                         (failing == Failing::once ? "" : " and all after it"));
            const Outcome outcome = convert(isRight, number, failing);
            if (!outcome.hasFailed)
            {
                EXPECT_EQ(outcome.blocks, 0);
                EXPECT_TRUE(outcome.isRight);
                break;
            }
            check(outcome);
            ++failures;
        }
    }
    return failures;
}

int compilations = 0; // that the C library has been asked for

const std::vector<std::string> dateTimes = {
    "1979-05-27T07:32:00Z", "1979-05-27 07:32:00.999999-07:00", "1979-05-27T07:32:00"};

// Of these only the patterns can say what they are.
const std::string dateTimeAndMore = "1979-05-27T07:32:00Z#";
const std::vector<std::string> otherTexts = {dateTimeAndMore, "1979-05-27 07:32:00.999999-07:00#",
                                             "1979-05-27T07:32:00#",
                                             "x" + std::string(100, ' ') + "1979-05-27"};

bool isRead()
{
    return parseDateTime(dateTimeAndMore).tv_sec != 0;
}

// A form that cannot be compiled is left out, which shows in the log.
int expectExceptionOrLogLine(const std::string& text)
{
    SCOPED_TRACE(text);
    const time_t seconds = parseDateTime(text).tv_sec;
    return expectWord([&] { return parseDateTime(text).tv_sec == seconds; },
                      [](const Outcome& outcome)
                      {
                          EXPECT_TRUE(outcome.hasThrown || outcome.isRight ||
                                      test::loggedLines() > 0);
                          EXPECT_EQ(outcome.blocks, 0);
                      });
}

class ConversionAllocations : public testing::Test
{
protected:
    // A zone in which any other form than the right one is an hour off.
    ConversionAllocations() { setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0", 1); }
    ~ConversionAllocations() override { unsetenv("TZ"); }
};

} // namespace

// glibc's regcomp() loses memory, or frees pointers that it has never set, where a request
// within it fails.  So it fails as a whole.
extern "C"
{
    int __real_regcomp(regex_t* regex, const char* pattern, int flags);

    int __wrap_regcomp(regex_t* regex, const char* pattern, int flags)
    {
        ++compilations;
        if (test::hasToFail())
        {
            return REG_ESPACE;
        }
        const test::SparedMemory spared;
        return __real_regcomp(regex, pattern, flags);
    }
}

TEST_F(ConversionAllocations, failWithAnExceptionWhereTheyFail)
{
    for (const auto& [name, isRight] : conversions)
    {
        SCOPED_TRACE(name);
        EXPECT_GT(expectWord(isRight,
                             [](const Outcome& outcome)
                             {
                                 EXPECT_TRUE(outcome.hasThrown);
                                 EXPECT_EQ(outcome.blocks, 0);
                             }),
                  0);
    }
}

// A date-time as the grammar has it may be read without any memory.
TEST_F(ConversionAllocations, ofADateTimeFailWithAnExceptionOrALogLine)
{
    for (const std::string& text : dateTimes)
    {
        expectExceptionOrLogLine(text);
    }
    for (const std::string& text : otherTexts)
    {
        EXPECT_GT(expectExceptionOrLogLine(text), 0);
    }
}

// Guards against crashes within regcomp(), see above.
TEST_F(ConversionAllocations, ofADateTimeAreMadeSureOfBeforeTheCLibraryCompilesAForm)
{
    compilations = 0;
    EXPECT_TRUE(convert(isRead, 1, Failing::once).hasThrown);
    EXPECT_EQ(compilations, 0);
    EXPECT_TRUE(isRead());
    EXPECT_GT(compilations, 0);
}
