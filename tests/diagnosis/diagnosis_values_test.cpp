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
const std::string dateForm = "A date is written 2024-01-31, a date-time 2024-01-31T07:32:00, with "
                             "seconds. Strings need quotes.";
const std::string floatForm =
    "A float is written 1.5, 1e6 or 1.5e-6, with digits on both sides of the dot and after the e.";
const std::string plusSign = "A plus sign may only start a number: +1, +1.5 or +inf.";
const std::string betweenDigits = "An underscore must be between two digits.";
const std::string underscores = "In a number, an underscore must be between two digits.";
const std::string numberForms = "Integers are written 42, 0xFF, 0o755 or 0b101, floats 1.5 or 1e6. "
                                "Anything with a unit is a string: it needs quotes.";
const std::string quotesHello = "Strings need quotes: \"hello\".";
const std::string booleans = "The booleans are true and false. Strings need quotes.";

} // namespace

TEST(DiagnosisOfValues, datesAndTimes)
{
    expectSaid({
        {"a = 2024-01-31 # c\n", {at("1:15", blankAfterDate)}},
        {"a = 2024-01-31 \n", {at("1:15", blankAfterDate)}},
        {"a = 2024-01-31 7\n", {at("1:5", incompleteTime)}},
        {"a = [2024-01-31 ]\n", {at("1:16", blankAfterDate)}},
        {"a = 07:32\n", {at("1:5", incompleteTime)}},
        {"a = 2024-01-31T07:32\n", {at("1:5", incompleteTime)}},
        {"a = 2024-01-31 07:32Z\n", {at("1:5", incompleteTime)}},
        {"a = 07:32:00.\n", {{"1:5 error: expected digits after the dot of the time", timeForm}}},
        {"a = 2024-01-31T07:32:00.x\n", {at("1:5", incompleteTime)}},
        {"a = 2024-01-31T07:32:00+1\n", {at("1:5", incompleteOffset)}},
        {"a = 2024-01-31T07:32:00+01\n", {at("1:5", incompleteOffset)}},
        {"a = 2024-1-31\n", {{"1:5 error: '2024-1-31' is not a value", dateForm}}},
        {"a = 2024-01-31T\n", {{"1:5 error: '2024-01-31T' is not a value", dateForm}}},
        {"a = 2024-01-31T07:3x:00\n", {at("1:5", incompleteTime)}},
    });
}

TEST(DiagnosisOfValues, numbers)
{
    expectSaid({
        {"a = 1.\n", {{"1:5 error: the number is missing a digit", floatForm}}},
        {"a = 1.e5\n", {{"1:5 error: the number is missing a digit", floatForm}}},
        {"a = 1.5e\n", {{"1:5 error: the number is missing a digit", floatForm}}},
        {"a = 1e+\n", {{"1:5 error: the number is missing a digit", floatForm}}},
        {"a = .5\n",
         {{"1:5 error: expected a value, found '.'", "A number starts with a digit: 0.5."}}},
        {"a = +\n", {{"1:5 error: expected a number after '+'", plusSign}}},
        {"a = +b\n", {{"1:5 error: expected a number after '+'", plusSign}}},
        {"a = +in\n",
         {{"1:5 error: expected a number after '+'",
           "The only words that may follow are inf and nan."}}},
        {"a = +1_\n", {{"1:7 error: expected a digit after '_'", betweenDigits}}},
        {"a = 1_\n", {{"1:5 error: '1_' is not a value", underscores}}},
        {"a = 1__0\n", {{"1:5 error: '1__0' is not a value", underscores}}},
        {"a = 0755\n",
         {{"1:5 error: '0755' is not a value",
           "An integer must not start with 0. Octal integers are written 0o755."}}},
        {"a = 0x\n", {{"1:5 error: '0x' is not a value", numberForms}}},
        {"a = 12kB\n", {{"1:5 error: '12kB' is not a value", numberForms}}},
        {"a = 1.2.3\n",
         {{"1:8 error: expected the end of the line, found '.'",
           "A float has one dot. Versions and addresses are strings: they need quotes."}}},
        {"a = 1,5\n",
         {{"1:6 error: expected the end of the line, found ','",
           "A float is written 1.5, an array [1, 5]."}}},
        {"a = 1.5_\n", {{"1:8 error: expected a digit after '_'", betweenDigits}}},
    });
}

TEST(DiagnosisOfValues, words)
{
    expectSaid({
        {"a = hello\n", {{"1:5 error: 'hello' is not a value", quotesHello}}},
        {"a = True\n", {{"1:5 error: 'True' is not a value", "Write it in lower case: true."}}},
        {"a = NaN\n", {{"1:5 error: 'NaN' is not a value", "Write it in lower case: nan."}}},
        {"a = yes\n", {{"1:5 error: 'yes' is not a value", booleans}}},
        {"a = off\n", {{"1:5 error: 'off' is not a value", booleans}}},
        {"a = null\n",
         {{"1:5 error: 'null' is not a value", "TOML has no such value. Leave the key out."}}},
        {"a = hello world\n", {{"1:5 error: 'hello' is not a value", quotesHello}}},
        {"a = b.c\n", {{"1:5 error: 'b' is not a value", "Strings need quotes: \"b\"."}}},
        {"a = b-c_0123456789012345678901234567890\n",
         {{"1:5 error: 'b-c_01234567890123456789012345...' is not a value",
           "Strings need quotes: \"b-c_01234567890123456789012345...\"."}}},
    });
}
