// What the tool says about dates, numbers and words.
#include "diagnosis/explained.h"

#include <gtest/gtest.h>

using namespace test;

namespace
{

// What is said, and hints that are given, more than once.
const Said blankAfterDate = {
    "error: expected a time after the date and the space",
    "A date followed by a space starts a date-time. Remove the space, or write a tab instead."};
const std::string timeForm = "A time is written 07:32:00 or 07:32:00.25, with seconds.";
const Said incompleteTime = {"error: the time is incomplete", timeForm};
const Said incompleteOffset = {"error: the offset of the date-time is incomplete",
                               "An offset is written Z or +01:00."};
const std::string plusSign = "A plus sign may only start a number: +1, +1.5 or +inf.";
const std::string quotesHello = "Strings need quotes: \"hello\".";

} // namespace

TEST(DiagnosisOfValues, datesAndTimes)
{
    expectSaid({
        {"a = 2024-01-31 # c\n", {at("1:15", blankAfterDate)}},
        {"a = 2024-01-31 \n", {at("1:15", blankAfterDate)}},
        {"a = 2024-01-31 7\n",
         {{"1:5 error: '2024-01-31 7' is not a value",
           "A date is written 2024-01-31, a date-time 2024-01-31T07:32:00."}}},
        {"a = [2024-01-31 ]\n", {at("1:16", blankAfterDate)}},
        {"a = 07:32\n",
         {{"1:5 error: '07:32' is not a value", "A time is written with seconds: 07:32:00."}}},
        {"a = 2024-01-31T07:32\n",
         {{"1:5 error: '2024-01-31T07:32' is not a value",
           "A date-time is written with seconds: 2024-01-31T07:32:00."}}},
        {"a = 2024-01-31 07:32Z\n",
         {{"1:5 error: '2024-01-31 07:32Z' is not a value",
           "A date-time is written with seconds: 2024-01-31 07:32:00Z."}}},
        {"a = 07:32:00.\n", {{"1:5 error: expected digits after the dot of the time", timeForm}}},
        {"a = 2024-01-31T07:32:00.x\n", {at("1:5", incompleteTime)}},
        {"a = 2024-01-31T07:32:00+1\n", {at("1:5", incompleteOffset)}},
        {"a = 2024-01-31T07:32:00+01\n",
         {{"1:5 error: '2024-01-31T07:32:00+01' is not a value",
           "An offset is written Z or +01:00: 2024-01-31T07:32:00+01:00."}}},
        {"a = 2024-1-31\n",
         {{"1:5 error: '2024-1-31' is not a value", "A date is written 2024-01-31."}}},
        {"a = 2024-01-31T\n",
         {{"1:5 error: '2024-01-31T' is not a value",
           "A date is written 2024-01-31, a date-time 2024-01-31T07:32:00."}}},
        {"a = 2024-01-31T07:3x:00\n",
         {{"1:5 error: '2024-01-31T07:3x:00' is not a value",
           "A date is written 2024-01-31, a date-time 2024-01-31T07:32:00."}}},
    });
}

TEST(DiagnosisOfValues, numbers)
{
    expectSaid({
        {"a = 1.\n",
         {{"1:5 error: '1.' is not a value", "A float has digits on both sides of the dot: 1.0."}}},
        {"a = 1.e5\n",
         {{"1:5 error: '1.e5' is not a value",
           "A float has digits on both sides of the dot: 1.0e5."}}},
        {"a = 1.5e\n",
         {{"1:5 error: '1.5e' is not a value", "Digits must follow the e, as in 1e6."}}},
        {"a = 1e+\n",
         {{"1:5 error: '1e+' is not a value", "Digits must follow the e, as in 1e6."}}},
        {"a = .5\n",
         {{"1:5 error: '.5' is not a value", "A float has digits on both sides of the dot: 0.5."}}},
        {"a = +\n", {{"1:5 error: expected a number after '+'", plusSign}}},
        {"a = +b\n", {{"1:5 error: '+b' is not a value", "Strings need quotes: \"+b\"."}}},
        {"a = +in\n", {{"1:5 error: '+in' is not a value", "Strings need quotes: \"+in\"."}}},
        {"a = +1_\n",
         {{"1:5 error: '+1_' is not a value", "An underscore must be between two digits: +1."}}},
        {"a = 1_\n",
         {{"1:5 error: '1_' is not a value", "An underscore must be between two digits: 1."}}},
        {"a = 1__0\n",
         {{"1:5 error: '1__0' is not a value", "An underscore must be between two digits: 1_0."}}},
        {"a = 0755\n",
         {{"1:5 error: '0755' is not a value",
           "An integer must not start with 0: 755. Octal integers are written 0o755."}}},
        {"a = 0x\n",
         {{"1:5 error: '0x' is not a value", "After 0x come digits, 0-9 and a-f: 0x1F."}}},
        {"a = 12kB\n",
         {{"1:5 error: '12kB' is not a value",
           "Strings need quotes: \"12kB\". A number has no unit."}}},
        {"a = 1.2.3\n", {{"1:5 error: '1.2.3' is not a value", "Strings need quotes: \"1.2.3\"."}}},
        {"a = 1,5\n",
         {{"1:5 error: '1,5' is not a value", "A float is written 1.5, an array [1, 5]."}}},
        {"a = 1.5_\n",
         {{"1:5 error: '1.5_' is not a value", "An underscore must be between two digits: 1.5."}}},
    });
}

TEST(DiagnosisOfValues, words)
{
    expectSaid({
        {"a = hello\n", {{"1:5 error: 'hello' is not a value", quotesHello}}},
        {"a = True\n", {{"1:5 error: 'True' is not a value", "Write it in lower case: true."}}},
        {"a = NaN\n", {{"1:5 error: 'NaN' is not a value", "Write it as nan."}}},
        {"a = yes\n",
         {{"1:5 error: 'yes' is not a value", "Write true, or \"yes\" for a string."}}},
        {"a = off\n",
         {{"1:5 error: 'off' is not a value", "Write false, or \"off\" for a string."}}},
        {"a = null\n",
         {{"1:5 error: 'null' is not a value", "TOML has no such value. Leave the key out."}}},
        {"a = hello world\n",
         {{"1:5 error: 'hello world' is not a value", "Strings need quotes: \"hello world\"."}}},
        {"a = b.c\n", {{"1:5 error: 'b.c' is not a value", "Strings need quotes: \"b.c\"."}}},
        {"a = b-c_0123456789012345678901234567890\n",
         {{"1:5 error: 'b-c_01234567890123456789012345...' is not a value",
           "Strings need quotes: \"b-c_0123456789012345678901234567890\"."}}},
    });
}
