// The calls that parseDateTime() makes: one pattern after the other, then the conversion.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>

#include <new>

#include "date_time_spy.h"
#include "support/date_times.h"
#include "support/time_zone.h"

using namespace std::string_literals;
using namespace test;
using vorn::parsers::toml::parseDateTime;

namespace
{

class TomlUtilsDateTimeCalls : public testing::Test
{
private:
    const TimeZone zone_{"UTC"};
};

struct Form
{
    std::string pattern;
    std::string formatTemplate;
    std::string behindSeparator; // of the format
    std::string daylightSaving;  // tm_isdst
};

const std::vector<Form>& forms()
{
    static const std::vector<Form> table = {
        {"[0-9]{4}-[0-9]{2}-[0-9]{2}[ T][0-9]{2}:[0-9]{2}:[0-9]{2}[A-IK-Z]", "%%F%c%%TZ", "%TZ",
         "-1"},
        {"[0-9]{4}-[0-9]{2}-[0-9]{2}[ T][0-9]{2}:[0-9]{2}:[0-9]{2}(.[0-9]{1,6})?"
         "[+-][0-9]{2}:[0-9]{2}",
         "%%F%c%%T%%z", "%T%z", "0"},
        {"[0-9]{4}-[0-9]{2}-[0-9]{2}[ T][0-9]{2}:[0-9]{2}:[0-9]{2}(.[0-9]{1,6})?", "%%F%c%%T", "%T",
         "0"},
    };
    return table;
}

constexpr std::size_t letter = 0;
constexpr std::size_t offset = 1;
constexpr std::size_t neither = 2;
constexpr std::size_t none = 3;

const std::string& pattern(std::size_t form)
{
    return forms()[form].pattern;
}

Calls operator+(Calls calls, const Calls& more)
{
    calls.insert(calls.end(), more.begin(), more.end());
    return calls;
}

Calls compiled(std::size_t form)
{
    return {"regcomp 9 " + pattern(form)};
}

Calls compiledInVain(std::size_t form)
{
    return compiled(form) + Calls{"log Failed to compile regex: '" + pattern(form) + "'"};
}

Calls tried(const std::string& text)
{
    return {"regexec 0 0 "s + text.c_str()};
}

Calls converted(std::size_t form, const std::string& text)
{
    const Form& one = forms()[form];
    return {
        "format " + one.formatTemplate,
        "strptime "s + text.c_str() + " | %F" + text[10] + one.behindSeparator,
        "mktime " + one.daylightSaving,
    };
}

const Calls freed = {"regfree"};

// The calls for a form that a text has not.
Calls left(std::size_t form, const std::string& text)
{
    return compiled(form) + tried(text) + freed;
}

// The calls for a text of this form.
Calls taken(std::size_t form, const std::string& text)
{
    return compiled(form) + tried(text) + converted(form, text) + freed;
}

Calls matchedByNone(const std::string& text)
{
    return {"log Failed to parse date-time: "s + text.c_str()};
}

Calls callsFor(const std::string& text, std::size_t form)
{
    Calls calls;
    for (std::size_t before = 0; before < form; ++before)
    {
        calls = calls + left(before, text);
    }
    return calls + (form == none ? matchedByNone(text) : taken(form, text));
}

constexpr long long moment = 296638320; // 1979-05-27 07:32:00

void expectResult(const timeval& result, long long seconds)
{
    EXPECT_EQ(result.tv_sec, seconds);
    EXPECT_EQ(result.tv_usec, 0);
}

} // namespace

TEST_F(TomlUtilsDateTimeCalls, theFormsAreTriedInOrderUpToTheFirstThatATextHas)
{
    struct Case
    {
        std::string text;
        std::size_t form;
    };
    for (const auto& [text, form] : std::vector<Case>{
             {"1979-05-27T07:32:00Z", letter},
             {"1979-05-27 07:32:00A", letter},
             {"1979-05-27T07:32:00I", letter},
             {"1979-05-27T07:32:00J", neither},
             {"1979-05-27T07:32:00K", letter},
             {"1979-05-27T07:32:00a", neither},
             {"1979-05-27T07:32:00z", neither},
             {"1979-05-27T07:32:00.5Z", neither},
             {"1979-05-27T07:32:00Z+01:00", letter},
             {"1979-05-27T07:32:00+01:00Z", offset},
             {"1979-05-27T07:32:00-07:00", offset},
             {"1979-05-27 07:32:00+01:00", offset},
             {"1979-05-27T07:32:00.5+01:00", offset},
             {"1979-05-27T07:32:00.123456+01:00", offset},
             {"1979-05-27T07:32:00.1234567+01:00", neither},
             {"1979-05-27T07:32:00.+01:00", neither},
             {"1979-05-27T07:32:00x5+01:00", offset}, // the point stands for any character
             {"1979-05-27T07:32:00\xff"
              "5+01:00",
              offset},
             {"1979-05-27T07:32:00+5+01:00", offset},
             {"1979-05-27T07:32:001234567+01:00", offset},
             {"1979-05-27T07:32:0012345678+01:00", neither},
             {"1979-05-27T07:32:00+0100", neither},
             {"1979-05-27T07:32:00+01", neither},
             {"1979-05-27T07:32:00 +01:00", neither},
             {"1979-05-27T07:32:00", neither},
             {"1979-05-27 07:32:00", neither},
             {"1979-05-27 07:32:00.999999", neither},
             {"1979-05-27T07:32:00\0Z"s, neither},
             {"1979-05-27T07:32:00Z\0rest"s, letter},
             {" 1979-05-27T07:32:00Z", letter},
             {"x1979-05-27T07:32:00-07:00", offset},
             {"1979-05-27t07:32:00 2001-02-03T04:05:06Z", letter},
             {"1979-05-27T07:32:00 2001-02-03T04:05:06+01:00", offset},
             {"1979-05-27%07:32:00 2001-02-03T04:05:06", neither},
             {"1979-05-27%07:32:00 2001-02-03T04:05:06Z", letter},
             {"1979-05-27%07:32:00 2001-02-03T04:05:06-07:00", offset},
             {"1979-05-27", none},
             {"07:32:00", none},
             {"1979-05-27t07:32:00Z", none},
             {"1979-05-27\0"
              "07:32:00Z"s,
              none},
             {"", none},
         })
    {
        SCOPED_TRACE(testing::PrintToString(text));
        DateTimeSpy spy;
        const timeval result = parseDateTime(text);
        EXPECT_EQ(spy.calls(), callsFor(text, form));
        EXPECT_EQ(result.tv_usec, 0);
    }
}

TEST_F(TomlUtilsDateTimeCalls, aPatternIsCompiledAnewForEveryText)
{
    DateTimeSpy spy;
    const std::string text = "1979-05-27 07:32:00";
    expectResult(parseDateTime(text), moment);
    expectResult(parseDateTime(text), moment);
    EXPECT_EQ(spy.calls(), callsFor(text, neither) + callsFor(text, neither));
}

TEST_F(TomlUtilsDateTimeCalls, aFailedPatternThatIsThereAllTheSameIsTried)
{
    const std::string text = "1979-05-27T07:32:00-07:00";
    DateTimeSpy spy;
    spy.failing = {pattern(letter), pattern(offset)};
    spy.leaving = Leaving::thePattern;
    expectResult(parseDateTime(text), moment);
    EXPECT_EQ(spy.calls(), compiledInVain(letter) + tried(text) + freed + compiledInVain(offset) +
                               tried(text) + converted(offset, text) + freed);
    expectDateTimeLog(spy.logLines(),
                      {failedToCompile(pattern(letter)), failedToCompile(pattern(offset))});
}

TEST_F(TomlUtilsDateTimeCalls, aFailedPatternThatIsNotThereMatchesNothing)
{
    const std::string text = "1979-05-27T07:32:00Z";
    DateTimeSpy spy;
    spy.failing = {pattern(letter)};
    expectResult(parseDateTime(text), moment);
    EXPECT_EQ(spy.calls(),
              compiledInVain(letter) + freed + left(offset, text) + taken(neither, text));
    expectDateTimeLog(spy.logLines(), {failedToCompile(pattern(letter))});
}

TEST_F(TomlUtilsDateTimeCalls, withoutAnyPatternNoTextIsADateTime)
{
    const std::string text = "1979-05-27T07:32:00Z";
    DateTimeSpy spy;
    spy.failing = {pattern(letter), pattern(offset), pattern(neither)};
    expectResult(parseDateTime(text), 0);
    EXPECT_EQ(spy.calls(), compiledInVain(letter) + freed + compiledInVain(offset) + freed +
                               compiledInVain(neither) + freed + matchedByNone(text));
    expectDateTimeLog(spy.logLines(),
                      {failedToCompile(pattern(letter)), failedToCompile(pattern(offset)),
                       failedToCompile(pattern(neither)), failedToParse(text)});
}

TEST_F(TomlUtilsDateTimeCalls, anExceptionFreesThePattern)
{
    const std::string text = "1979-05-27T07:32:00-07:00";
    DateTimeSpy spy;
    spy.formatThrows = true;
    EXPECT_THROW(parseDateTime(text), std::bad_alloc);
    EXPECT_EQ(spy.calls(), left(letter, text) + compiled(offset) + tried(text) +
                               Calls{"format %%F%c%%T%%z"} + freed);
}

TEST_F(TomlUtilsDateTimeCalls, theFailureOfMktimeIsTheResult)
{
    for (const std::string& text :
         {"1979-05-27T07:32:00Z"s, "1979-05-27T07:32:00-07:00"s, "1979-05-27T07:32:00"s})
    {
        SCOPED_TRACE(text);
        DateTimeSpy spy;
        spy.mktimeFails = true;
        expectResult(parseDateTime(text), -1);
        expectDateTimeLog(spy.logLines(), {});
    }
}
