// What the tool says about dates, numbers and words.
#include "tools/explained.h"

#include <gtest/gtest.h>

using test::expectSaid;

namespace
{

// Hints that are given more than once.
const std::string blankAfterDate =
    "A blank after a date begins the time of a date-time. Put nothing or a tab after the date.";
const std::string timeForm = "A time is written 07:32:00 or 07:32:00.25, with seconds.";
const std::string offsetForm = "An offset is Z or written +01:00.";
const std::string dateForm = "A date is written 2024-01-31, a date-time 2024-01-31T07:32:00, with "
                             "seconds. Strings have quotes.";
const std::string floatForm = "A float is written 1.5, 1e6 or 1.5e-6: digits stand on both sides "
                              "of the dot and after the exponent's e.";
const std::string plusSign = "A plus sign begins numbers only, as +1, +1.5 and +inf.";
const std::string betweenDigits = "Underscores stand between two digits.";
const std::string underscores = "In a number underscores stand between two digits.";
const std::string numberForms = "Integers are written 42, 0xFF, 0o755 or 0b101, floats 1.5 or 1e6. "
                                "What has a unit or is a text is a string, with quotes.";
const std::string quotesHello = "Strings have quotes: \"hello\".";
const std::string booleans = "Booleans are true and false. Strings have quotes.";

} // namespace

TEST(DiagnosisOfValues, datesAndTimes)
{
    expectSaid({
        {"a = 2024-01-31 # c\n",
         false,
         {{"1:15 error: a time is missing: the date goes on with a blank", blankAfterDate}}},
        {"a = 2024-01-31 \n",
         false,
         {{"1:15 error: a time is missing: the date goes on with a blank", blankAfterDate}}},
        {"a = 2024-01-31 7\n", false, {{"1:5 error: the time is not complete", timeForm}}},
        {"a = [2024-01-31 ]\n",
         false,
         {{"1:16 error: a time is missing: the date goes on with a blank", blankAfterDate}}},
        {"a = 07:32\n", false, {{"1:5 error: the time is not complete", timeForm}}},
        {"a = 2024-01-31T07:32\n", false, {{"1:5 error: the time is not complete", timeForm}}},
        {"a = 2024-01-31 07:32Z\n", false, {{"1:5 error: the time is not complete", timeForm}}},
        {"a = 07:32:00.\n",
         false,
         {{"1:5 error: digits are missing after the dot of the time", timeForm}}},
        {"a = 2024-01-31T07:32:00.x\n", false, {{"1:5 error: the time is not complete", timeForm}}},
        {"a = 2024-01-31T07:32:00+1\n",
         false,
         {{"1:5 error: the offset of the date-time is not complete", offsetForm}}},
        {"a = 2024-01-31T07:32:00+01\n",
         false,
         {{"1:5 error: the offset of the date-time is not complete", offsetForm}}},
        {"a = 2024-1-31\n", false, {{"1:5 error: '2024-1-31' is not a value", dateForm}}},
        {"a = 2024-01-31T\n", false, {{"1:5 error: '2024-01-31T' is not a value", dateForm}}},
        {"a = 2024-01-31T07:3x:00\n", false, {{"1:5 error: the time is not complete", timeForm}}},
    });
}

TEST(DiagnosisOfValues, numbers)
{
    expectSaid({
        {"a = 1.\n", false, {{"1:5 error: a digit is missing in the number", floatForm}}},
        {"a = 1.e5\n", false, {{"1:5 error: a digit is missing in the number", floatForm}}},
        {"a = 1.5e\n", false, {{"1:5 error: a digit is missing in the number", floatForm}}},
        {"a = 1e+\n", false, {{"1:5 error: a digit is missing in the number", floatForm}}},
        {"a = .5\n",
         false,
         {{"1:5 error: expected a value, found '.'", "A number begins with a digit: 0.5."}}},
        {"a = +\n", false, {{"1:5 error: a number is missing after '+'", plusSign}}},
        {"a = +b\n", false, {{"1:5 error: a number is missing after '+'", plusSign}}},
        {"a = +in\n",
         false,
         {{"1:5 error: a number is missing after '+'",
           "The words that may follow are +inf and +nan."}}},
        {"a = +1_\n", false, {{"1:7 error: a digit is missing after '_'", betweenDigits}}},
        {"a = 1_\n", false, {{"1:5 error: '1_' is not a value", underscores}}},
        {"a = 1__0\n", false, {{"1:5 error: '1__0' is not a value", underscores}}},
        {"a = 0755\n",
         false,
         {{"1:5 error: '0755' is not a value",
           "An integer does not begin with 0. An octal one is written 0o755."}}},
        {"a = 0x\n", false, {{"1:5 error: '0x' is not a value", numberForms}}},
        {"a = 12kB\n", false, {{"1:5 error: '12kB' is not a value", numberForms}}},
        {"a = 1.2.3\n",
         false,
         {{"1:8 error: expected the end of the line, found '.'",
           "A float has one dot. Versions and addresses are strings, with quotes."}}},
        {"a = 1,5\n",
         false,
         {{"1:6 error: expected the end of the line, found ','",
           "A float is written 1.5, an array [1, 5]."}}},
        {"a = 1.5_\n", false, {{"1:8 error: a digit is missing after '_'", betweenDigits}}},
    });
}

TEST(DiagnosisOfValues, words)
{
    expectSaid({
        {"a = hello\n", false, {{"1:5 error: 'hello' is not a value", quotesHello}}},
        {"a = True\n",
         false,
         {{"1:5 error: 'True' is not a value", "It is written in small letters: true."}}},
        {"a = NaN\n",
         false,
         {{"1:5 error: 'NaN' is not a value", "It is written in small letters: nan."}}},
        {"a = yes\n", false, {{"1:5 error: 'yes' is not a value", booleans}}},
        {"a = off\n", false, {{"1:5 error: 'off' is not a value", booleans}}},
        {"a = null\n",
         false,
         {{"1:5 error: 'null' is not a value", "There is no such value. Leave the key out."}}},
        {"a = hello world\n", false, {{"1:5 error: 'hello' is not a value", quotesHello}}},
        {"a = b.c\n", false, {{"1:5 error: 'b' is not a value", "Strings have quotes: \"b\"."}}},
        {"a = b-c_0123456789012345678901234567890\n",
         false,
         {{"1:5 error: 'b-c_01234567890123456789012345...' is not a value",
           "Strings have quotes: \"b-c_01234567890123456789012345...\"."}}},
    });
}
