// Dates and times.
#include <gtest/gtest.h>

#include <string>

#include "support/lexer_run.h"

using namespace test;

TEST(OffsetDateTime, endsInZOrASignedOffset)
{
    expectOneToken("OFFSET_DATE_TIME", {
                                           "1979-05-27T07:32:00Z",
                                           "1979-05-27T00:32:00-07:00",
                                           "1979-05-27t00:32:00.999999+07:00",
                                           "1979-05-27 07:32:00Z",
                                           "1979-05-27 07:32:00.5-00:00",
                                           "1979-05-27T07:32:00.0123456789012345678901234Z",
                                           "0000-00-00T00:00:00Z",
                                       });
}

TEST(LocalDateTime, hasNoOffset)
{
    expectOneToken("LOCAL_DATE_TIME", {
                                          "1979-05-27T07:32:00",
                                          "1979-05-27t07:32:00",
                                          "1979-05-27 07:32:00",
                                          "1979-05-27T00:32:00.999999",
                                          "1979-05-27 00:32:00.9",
                                          "1979-05-27t00:32:00.0123456789012345678901234",
                                      });
}

TEST(LocalDate, isAloneOnItsLineOrBeforeAnythingButABlank)
{
    expectOneToken("LOCAL_DATE", {"1979-05-27", "0000-00-00", "2024-02-29"});
    const std::string date = "1979-05-27";
    const std::pair<std::string, std::string> token{"LOCAL_DATE", date};
    expectLexed({
        {date + "\t# birthday", {token}},
        {date + "\t07:32:00", {token, {"LOCAL_TIME", "07:32:00"}}},
        {date + "\r\n", {token, {"NL", "\r\n"}}},
        {date + "#", {token}},
        {date + ",", {token, {"','", ","}}},
        {date + "]", {token, {"']'", "]"}}},
        {date + ".1", {token, {"'.'", "."}, {"DEC_INT", "1"}}},
        {date + "=", {token, {"'='", "="}}},
        {date + "+1", {token, {"DEC_INT", "+1"}}},
        {date + ":", {token}, {"no token 1:10"}},
    });
}

TEST(LocalTime, hasSecondsAndAnOptionalFraction)
{
    expectOneToken("LOCAL_TIME", {
                                     "07:32:00",
                                     "00:32:00.999999",
                                     "00:00:00.0",
                                     "07:32:00.0123456789012345678901234",
                                 });
}

TEST(DateTime, rangesAreNotChecked)
{
    expectOneToken("OFFSET_DATE_TIME", {"1979-13-45T25:61:61Z", "9999-99-99T99:99:99+99:99"});
    expectOneToken("LOCAL_DATE_TIME", {"2023-02-31 24:60:60"});
    expectOneToken("LOCAL_DATE", {"9999-99-99", "2023-02-31"});
    expectOneToken("LOCAL_TIME", {"99:99:99.9"});
}

TEST(LocalDate, isAKeyWithMoreOrFewerKeyCharacters)
{
    expectOneToken("BARE_KEY",
                   {
                       "1979-05-27T",   "1979-05-27t",    "1979-05-27Z",      "1979-05-27x",
                       "1979-05-27-",   "1979-05-27_",    "1979-05-270",      "1979-05-27T0",
                       "1979-05-27T07", "1979-05-27T07x", "1979-05-27T07-32", "1979-05-2",
                       "1979-05-",      "1979-5-27",      "979-05-27",        "19790-05-27",
                       "-1979-05-27",   "1979-05-2x",     "1979_05-27",
                   });
    expectLexed({
        {"1979/05/27",
         {{"DEC_INT", "1979"}, {"BARE_KEY", "05"}, {"DEC_INT", "27"}},
         {"no token 1:4", "no token 1:7"}},
        {"+1979-05-27", {{"DEC_INT", "+1979"}, {"BARE_KEY", "-05-27"}}},
        {"1979-05-27T07 ", {{"BARE_KEY", "1979-05-27T07"}}},
        {"1979-05-27T.5", {{"BARE_KEY", "1979-05-27T"}, {"'.'", "."}, {"DEC_INT", "5"}}},
    });
}

TEST(LocalDate, beforeABlankNeedsATime)
{
    // The first digit goes with the recovery; what is left of the date is a key.
    const std::pair<std::string, std::string> rest{"BARE_KEY", "979-05-27"};
    expectLexed({
        {"1979-05-27 ", {rest}, {"no token 1:11"}},
        {"1979-05-27 \n", {rest, {"NL", "\n"}}, {"no token 1:11"}},
        {"1979-05-27  ", {rest}, {"no token 1:11"}},
        {"1979-05-27 # note", {rest}, {"no token 1:11"}},
        {"1979-05-27 \t", {rest}, {"no token 1:11"}},
        {"1979-05-27 ,", {rest, {"','", ","}}, {"no token 1:11"}},
        {"1979-05-27 T07:32:00",
         {rest, {"BARE_KEY", "T07"}},
         {"no token 1:11", "no token 1:14", "mismatched character 1:20"}},
        {"2024-01-01 x", {{"BARE_KEY", "024-01-01"}, {"BARE_KEY", "x"}}, {"no token 1:11"}},
        {"x = 1979-05-27 # birthday\n",
         {{"BARE_KEY", "x"}, {"'='", "="}, rest, {"NL", "\n"}},
         {"no token 1:15"}},
        {"1979-05-27 1", {rest, {"DEC_INT", "1"}}, {"no token 1:12"}},
        {"1979-05-27 12", {rest, {"DEC_INT", "12"}}, {"no token 1:13"}},
        {"1979-05-27 1979-05-27", {rest, {"LOCAL_DATE", "1979-05-27"}}, {"no token 1:13"}},
    });
}

TEST(DateTime, fitsNoTokenAtACharacterOutOfPlace)
{
    const std::pair<std::string, std::string> rest{"BARE_KEY", "979-05-27T07"};
    expectLexed({
        {"1979-05-27T07:", {rest}, {"no token 1:14", "no token 1:13"}},
        {"1979-05-27T07:x", {rest, {"BARE_KEY", "x"}}, {"no token 1:14", "no token 1:13"}},
        {"1979-05-27T07:32", {rest, {"DEC_INT", "32"}}, {"no token 1:16", "no token 1:13"}},
        {"1979-05-27T07:32:", {rest}, {"no token 1:17", "no token 1:13", "mismatched set 1:17"}},
        {"1979-05-27T07:32:0", {rest}, {"no token 1:18", "no token 1:13", "mismatched set 1:18"}},
        {"1979-05-27 07:32:0x,",
         {{"BARE_KEY", "979-05-27"}},
         {"no token 1:18", "mismatched set 1:18"}},
        {"1979-05-27T07:32:00.",
         {rest},
         {"no token 1:20", "no token 1:13", "mismatched character 1:19"}},
        {"1979-05-27 07:32:00.x y",
         {{"BARE_KEY", "979-05-27"}, {"BARE_KEY", "y"}},
         {"no token 1:20", "early exit 1:20"}},
    });
}

TEST(DateTime, endsWhereItCannotGoOn)
{
    const std::pair<std::string, std::string> local{"LOCAL_DATE_TIME", "1979-05-27T07:32:00"};
    expectLexed({
        {"1979-05-27T07:32:00z", {local, {"BARE_KEY", "z"}}},
        {"1979-05-27T07:32:00x", {local, {"BARE_KEY", "x"}}},
        {"1979-05-27T07:32:000", {local, {"DEC_INT", "0"}}},
        {"1979-05-27T07:32:00 Z", {local, {"BARE_KEY", "Z"}}},
        {"1979-05-27T07:32:00 # note", {local}},
        {"1979-05-27T07:32:00.5z",
         {{"LOCAL_DATE_TIME", "1979-05-27T07:32:00.5"}, {"BARE_KEY", "z"}}},
        {"1979-05-27T07:32:00.5.5",
         {{"LOCAL_DATE_TIME", "1979-05-27T07:32:00.5"}, {"'.'", "."}, {"DEC_INT", "5"}}},
        {"1979-05-27T07:32:00Zx",
         {{"OFFSET_DATE_TIME", "1979-05-27T07:32:00Z"}, {"BARE_KEY", "x"}}},
        {"1979-05-27T07:32:00+07:000",
         {{"OFFSET_DATE_TIME", "1979-05-27T07:32:00+07:00"}, {"DEC_INT", "0"}}},
    });
}

TEST(OffsetDateTime, failsAtABrokenOffset)
{
    // The sign decides.
    expectLexed({
        {"1979-05-27T07:32:00+", {}, {"mismatched set 1:20"}},
        {"1979-05-27T07:32:00-x y", {{"BARE_KEY", "y"}}, {"mismatched set 1:20"}},
        {"1979-05-27T07:32:00+7", {}, {"mismatched set 1:21"}},
        {"1979-05-27T07:32:00+07", {}, {"mismatched character 1:22"}},
        {"1979-05-27T07:32:00+0100,", {{"','", ","}}, {"mismatched character 1:22"}},
        {"1979-05-27 07:32:00-01x y", {{"BARE_KEY", "y"}}, {"mismatched character 1:22"}},
        {"1979-05-27T07:32:00.5+07:", {}, {"mismatched set 1:25"}},
        {"1979-05-27T07:32:00.5+07:0x y", {{"BARE_KEY", "y"}}, {"mismatched set 1:26"}},
    });
}

TEST(LocalTime, isDecidedByItsFirstThreeCharacters)
{
    expectLexed({
        {"07:", {}, {"mismatched set 1:3"}},
        {"07:x y", {{"BARE_KEY", "y"}}, {"mismatched set 1:3"}},
        {"07:3", {}, {"mismatched set 1:4"}},
        {"07:32", {}, {"mismatched character 1:5"}},
        {"07:32\n\na", {{"BARE_KEY", "a"}}, {"mismatched character 1:5"}},
        {"07:32x y", {{"BARE_KEY", "y"}}, {"mismatched character 1:5"}},
        {"07:32:", {}, {"mismatched set 1:6"}},
        {"07:32:0", {}, {"mismatched set 1:7"}},
        {"07:32:0x y", {{"BARE_KEY", "y"}}, {"mismatched set 1:7"}},
        {"07::32", {{"DEC_INT", "2"}}, {"mismatched set 1:3"}},
    });
}

TEST(LocalTime, failsAtAPointWithoutDigits)
{
    // Nothing goes with this failure, one character with the recovery.
    expectLexed({
        {"07:32:00.", {}, {"early exit 1:9"}},
        {"07:32:00.xy", {{"BARE_KEY", "y"}}, {"early exit 1:9"}},
        {"07:32:00.\na", {{"BARE_KEY", "a"}}, {"early exit 1:9"}},
        {"07:32:00..5", {{"DEC_INT", "5"}}, {"early exit 1:9"}},
    });
}

TEST(LocalTime, beginsWithTwoDigitsAndColon)
{
    expectLexed({
        {"1:", {{"DEC_INT", "1"}}, {"no token 1:1"}},
        {"123:45", {{"DEC_INT", "123"}, {"DEC_INT", "45"}}, {"no token 1:3"}},
        {"7:32:00", {{"DEC_INT", "7"}}, {"no token 1:1", "mismatched character 1:7"}},
        {"-07:1", {{"BARE_KEY", "-07"}, {"DEC_INT", "1"}}, {"no token 1:3"}},
        {"+07:1", {{"DEC_INT", "+0"}, {"DEC_INT", "7"}, {"DEC_INT", "1"}}, {"no token 1:3"}},
        {"a07:1", {{"BARE_KEY", "a07"}, {"DEC_INT", "1"}}, {"no token 1:3"}},
        {"1_2:3", {{"DEC_INT", "1_2"}, {"DEC_INT", "3"}}, {"no token 1:3"}},
    });
}

TEST(LocalTime, endsWhereItCannotGoOn)
{
    expectLexed({
        {"07:32:00x", {{"LOCAL_TIME", "07:32:00"}, {"BARE_KEY", "x"}}},
        {"07:32:00Z", {{"LOCAL_TIME", "07:32:00"}, {"BARE_KEY", "Z"}}},
        {"07:32:001", {{"LOCAL_TIME", "07:32:00"}, {"DEC_INT", "1"}}},
        {"07:32:00 # note", {{"LOCAL_TIME", "07:32:00"}}},
        {"07:32:00.5.5", {{"LOCAL_TIME", "07:32:00.5"}, {"'.'", "."}, {"DEC_INT", "5"}}},
        {"07:32:00.5_5", {{"LOCAL_TIME", "07:32:00.5"}, {"BARE_KEY", "_5"}}},
        {"07:32:00+07:00",
         {{"LOCAL_TIME", "07:32:00"}, {"DEC_INT", "+0"}, {"DEC_INT", "7"}, {"BARE_KEY", "00"}},
         {"no token 1:11"}},
    });
}
