// Which texts are date-times, and how much of them is read, with the time zone UTC.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/date_times.h"
#include "support/time_zone.h"

using namespace std::string_literals;
using namespace test;

namespace
{

class TomlUtilsDateTime : public testing::Test
{
private:
    const TimeZone zone_{"UTC"};
};

struct Case
{
    std::string text;
    long long seconds;
};

constexpr long long moment = 296638320;          // 1979-05-27 07:32:00
constexpr long long midnight = 296611200;        // 1979-05-27 00:00:00
constexpr long long nothingRead = -2209075200LL; // 1899-12-31 00:00:00

void expectSeconds(const std::vector<Case>& cases)
{
    for (const Case& one : cases)
    {
        test::expectSeconds(one.text, one.seconds);
    }
}

void expectEach(long long seconds, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        test::expectSeconds(text, seconds);
    }
}

} // namespace

TEST_F(TomlUtilsDateTime, theExamplesOfTheHeader)
{
    expectSeconds({
        {"1979-05-27T07:32:00Z", 296638320},
        {"1979-05-27T07:32:00-07:00", 296638320},
        {"1979-05-27 07:32:00.999999", 296638320},
        {"1979-02-30T07:32:00Z", 289207920}, // March 2
        {"1979-05-27T25:00:00Z", 296611200}, // the day's midnight
        {"1979-13-01T07:32:00Z", -2209075200LL},
    });
}

TEST_F(TomlUtilsDateTime, isReadFromTheEpochsSecondsInBothDirections)
{
    expectSeconds({
        {"1970-01-01T00:00:00Z", 0},
        {"1970-01-01 00:00:01", 1},
        {"1969-12-31T23:59:59Z", -1},
        {"1969-12-31T23:59:58+00:00", -2},
        {"2001-02-03T04:05:06Z", 981173106},
        {"2024-02-29T23:59:59", 1709251199},
        {"2040-01-01T00:00:00Z", 2208988800LL},
        {"9999-12-31T23:59:59Z", 253402300799LL},
        {"0000-01-01T00:00:00Z", -62167219200LL},
    });
}

TEST_F(TomlUtilsDateTime, separatorsAreAnUpperCaseTAndABlank)
{
    for (int code = 1; code <= 255; ++code)
    {
        const std::string dateAndTime = "1979-05-27"s + static_cast<char>(code) + "07:32:00";
        for (const std::string& rest : {"Z"s, "-07:00"s, ""s})
        {
            if (code == 'T' || code == ' ')
            {
                test::expectSeconds(dateAndTime + rest, moment);
            }
            else
            {
                expectNoDateTime(dateAndTime + rest);
            }
        }
    }
}

TEST_F(TomlUtilsDateTime, aDateAndTimeHasNoCharacterLessAndNoOtherCharacter)
{
    const std::string dateAndTime = "1979-05-27T07:32:00";
    for (std::size_t index = 0; index < dateAndTime.size(); ++index)
    {
        const std::string shorter = std::string(dateAndTime).erase(index, 1);
        const std::string other = std::string(dateAndTime).replace(index, 1, "/");
        for (const std::string& rest : {"Z"s, "-07:00"s, ""s})
        {
            expectNoDateTime(shorter + rest);
            expectNoDateTime(other + rest);
        }
    }
}

TEST_F(TomlUtilsDateTime, textsWithoutADateAndATimeYieldZero)
{
    for (const char* text : {"", " ", "T", "true", "\xc3\xa9\xff"})
    {
        expectNoDateTime(text);
    }
    for (const char* text :
         {"1979-05-27", "07:32:00", "00:32:00.999999", "1979-05-27T", "1979-05-27T07:32",
          "1979-05-27T07:32Z", "1979-05-27T07:32:0Z", "1979-05-27t07:32:00Z",
          "1979-05-27t00:32:00.999999+07:00", "1979-05-27 T07:32:00", "1979-05-27  07:32:00",
          "1979-05-27\n07:32:00", "1979-5-27T07:32:00Z", "19790527T073200Z", "27.05.1979 07:32:00"})
    {
        expectNoDateTime(text);
    }
}

TEST_F(TomlUtilsDateTime, aTextThatIsNotReadIsLoggedAsItIs)
{
    expectNoDateTime("%s%n%d %c %%");
    expectNoDateTime("two\nlines\r\n");
    expectNoDateTime("'\"\\");
    expectNoDateTime(std::string(100'000, 'x'));
}

TEST_F(TomlUtilsDateTime, theFractionIsLeftOut)
{
    for (const std::string& digits :
         {"5"s, "50"s, "999"s, "0000"s, "12345"s, "999999"s, "9999999"s, "99999999999999999999"s})
    {
        for (const std::string& rest : {""s, "Z"s, "z"s, "+07:00"s, "-07:00"s})
        {
            test::expectSeconds("1979-05-27T07:32:00." + digits + rest, moment);
        }
    }
    for (const std::string& fraction : {"."s, ",5"s, "x5"s, "+5"s, "55"s, "\xff"s + "5"s})
    {
        for (const std::string& rest : {""s, "Z"s, "-07:00"s})
        {
            test::expectSeconds("1979-05-27 07:32:00" + fraction + rest, moment);
        }
    }
}

TEST_F(TomlUtilsDateTime, theOffsetIsLeftOut)
{
    for (const std::string& offset :
         {"+00:00"s, "-00:00"s, "+07:00"s, "-07:00"s, "+14:00"s, "-12:59"s, "+24:00"s, "-99:99"s,
          "+0100"s, "+1:00"s, "+01"s, "-"s, "+"s, " +01:00"s, "Z+01:00"s, "+01:00Z"s})
    {
        test::expectSeconds("1979-05-27T07:32:00" + offset, moment);
        test::expectSeconds("1979-05-27 07:32:00" + offset, moment);
    }
}

TEST_F(TomlUtilsDateTime, whatStandsBehindIsLeftOut)
{
    for (const std::string& rest :
         {"Zulu"s, " # comment"s, "\n"s, "Z\n1980-01-01T00:00:00Z"s, " 1980-01-01T00:00:00-07:00"s,
          "%"s, "\xff"s, "0"s, ":00"s, std::string(10'000, 'x')})
    {
        test::expectSeconds("1979-05-27T07:32:00" + rest, moment);
    }
}

// The fields are read from the start of the text, with its eleventh character between the
// date and the time.
TEST_F(TomlUtilsDateTime, behindOtherCharactersOnlyWhatFitsIsRead)
{
    // Blanks before a year are passed over, but the eleventh character is a digit then.
    expectEach(midnight, {" 1979-05-27T07:32:00", "\n\t1979-05-27 07:32:00Z",
                          "          1979-05-27T07:32:00"});
    expectEach(nothingRead,
               {"x1979-05-27T07:32:00Z", "+1979-05-27T07:32:00-07:00", "\"1979-05-27T07:32:00\"",
                "01979-05-27T07:32:00", "11979-05-27T07:32:00Z", "\xff\xff 1979-05-27T07:32:00",
                "date-time: 1979-05-27T07:32:00", "1979-05-xx 2001-02-03T04:05:06Z"});
}

TEST_F(TomlUtilsDateTime, theEleventhCharacterSeparatesWhateverItIs)
{
    expectSeconds({
        // What is read is not what made the text a date-time.
        {"1979-05-27x07:32:00 2001-02-03T04:05:06", moment},
        {"1979-05-27t07:32:00Z 2001-02-03T04:05:06Z", moment},
        {"1979-05-27t07:32:00-07:00 2001-02-03T04:05:06-07:00", moment},
        {"1979-05-27\t07:32:00 2001-02-03T04:05:06", moment},
        {"1979-05-27  07:32:00 2001-02-03T04:05:06", moment}, // a blank stands for many
        {"1979-05-27\xff"
         "07:32:00 2001-02-03T04:05:06",
         moment},
        {"1979-05-2702:30:00 2001-02-03T04:05:06", 296620200}, // 1979-05-27 02:30:00
        {"1979-5-7 - 2001-02-03T04:05:06", 294883200},         // 1979-05-07 00:00:00
        {"1979-05-27 2001-02-03T04:05:06", midnight},
        {"1979-05-27 # 2001-02-03 04:05:06Z", midnight},
        {"1979-05-27T07:32 2001-02-03T04:05:06Z", midnight},
        // A percent sign makes a percent sign of the next one, and no time is read.
        {"1979-05-27%07:32:00 2001-02-03T04:05:06", midnight},
        {"1979-05-27%07:32:00Z 2001-02-03T04:05:06Z", midnight},
        {"1979-05-27%T 2001-02-03T04:05:06+01:00", midnight},
        {"0123456789%1979-05-27T07:32:00Z", nothingRead},
    });
}

TEST_F(TomlUtilsDateTime, aTextEndsAtANulByte)
{
    expectSeconds({
        {"1979-05-27T07:32:00\0Z"s, moment},
        {"1979-05-27T07:32:00Z\0 rest"s, moment},
        {"1979-05-27 07:32:00\0\0"s, moment},
    });
    expectNoDateTime("\0"s, "");
    expectNoDateTime("\0001979-05-27T07:32:00Z"s, "");
    expectNoDateTime("1979-05-27\00007:32:00Z"s, "1979-05-27");
    expectNoDateTime("1979-05-27T07:32:0\0000Z"s, "1979-05-27T07:32:0");
    expectNoDateTime("x\0 1979-05-27T07:32:00Z"s, "x");
}

TEST_F(TomlUtilsDateTime, daysThatAMonthHasNotAndLeapSecondsAreCarriedOver)
{
    expectSeconds({
        {"1979-02-31T07:32:00Z", 289294320},      // 1979-03-03 07:32:00
        {"2023-02-29 07:32:00", 1677655920},      // 2023-03-01 07:32:00
        {"2024-02-29 07:32:00", 1709191920},      // no other day
        {"1979-06-31T07:32:00+01:00", 299662320}, // 1979-07-01 07:32:00
        {"1979-05-27T07:32:60Z", 296638380},      // 1979-05-27 07:33:00
        {"1979-05-27T07:32:61.5", 296638381},     // 1979-05-27 07:33:01
        {"2024-12-31T23:59:60-07:00", 1735689600},
        {"2024-12-31T23:59:61Z", 1735689601},
    });
}

TEST_F(TomlUtilsDateTime, otherFieldsOutOfRangeEndTheReading)
{
    for (const std::string& rest : {"Z"s, "-07:00"s, ""s})
    {
        // Without a date the day is the one before the first of 1900.
        expectEach(nothingRead, {"1979-00-27T07:32:00" + rest, "1979-13-27T07:32:00" + rest,
                                 "1979-99-27T07:32:00" + rest, "1979-05-00T07:32:00" + rest,
                                 "1979-05-32T07:32:00" + rest, "1979-05-39T07:32:00" + rest,
                                 "1979-13-45T25:61:61" + rest});
        expectEach(midnight, {"1979-05-27T24:32:00" + rest, "1979-05-27T25:32:00" + rest,
                              "1979-05-27T99:32:00" + rest, "1979-05-27T07:60:00" + rest,
                              "1979-05-27T07:99:00" + rest, "1979-05-27T07:32:62" + rest,
                              "1979-05-27T07:32:69" + rest});
        expectSeconds({
            // Where two digits can only be too many, the first alone is the field's.
            {"1979-05-40T07:32:00" + rest, 294624000}, // 1979-05-04 00:00:00
            {"1979-05-99T07:32:00" + rest, 295056000}, // 1979-05-09 00:00:00
            {"1979-05-27T07:32:70" + rest, 296638327}, // 1979-05-27 07:32:07
            {"1979-05-27T07:32:99" + rest, 296638329}, // 1979-05-27 07:32:09
        });
    }
}

TEST_F(TomlUtilsDateTime, everyCallStartsFromZero)
{
    for (int round = 0; round < 3; ++round)
    {
        test::expectSeconds("1979-05-27T07:32:00Z", moment);
        expectNoDateTime("1979-05-27");
        test::expectSeconds("x1979-05-27T07:32:00", nothingRead);
        test::expectSeconds("1979-05-27 25:00:00-07:00", midnight);
    }
}
