// What the tool says about keys, headers and lines.
#include "diagnosis/explained.h"

#include <gtest/gtest.h>

using namespace test;

namespace
{

// What is said, and hints that are given, more than once.
const std::string readsAsValue = "It is read as a value. Quote it to use it as a key: \"true\".";
const std::string readsAsValue1 = "It is read as a value. Quote it to use it as a key: \"1\".";
const std::string likeNumber =
    "What starts like a number or a date is read as a value. Quote it to use it in a key.";
const std::string headerForm = "A header is written [key].";
const std::string headerOnOneLine = "A header is written [key], on one line.";
const std::string ownLine = "Put each pair and each header on its own line. Strings need quotes.";
const std::string unopened = "Every ']' needs a '[' before it, and every '}' a '{'.";
const std::string arrayHeader = "A header of an array of tables is written [[key]], on one line.";
const std::string quotedKey = "A quoted key is written on one line, with \" or '.";
const std::string lineForm = "A line contains a pair, key = value, or a header, [key].";
const Said keyAlone = {"error: expected '=' after the key, found the end of the line", lineForm};
const std::string valueOnLine = "The value must start on the line of its key.";
const Said noValue = {"error: expected a value, found the end of the line", valueOnLine};
const std::string pairForm = "A pair is written key = value.";
const std::string valueForms =
    "Strings need quotes. Arrays are written [1, 2], inline tables {a = 1}.";
const Said noCommaBefore2 = {"error: expected ',' or ']' after the element, found the integer 2",
                             commas};
const Said loneCarriageReturn = {
    "error: a carriage return without a line feed after it",
    "Lines end with a line feed (LF), or with a carriage return and a line feed (CR LF)."};

} // namespace

TEST(DiagnosisOfLines, keysThatReadAsValues)
{
    expectSaid({
        {"true = 1\n", {{"1:1 error: expected a key, found the boolean true", readsAsValue}}},
        {"123 = 1\n",
         {{"1:1 error: expected a key, found the integer 123",
           "It is read as a value. Quote it to use it as a key: \"123\"."}}},
        {"1.5 = 1\n",
         {{"1:1 error: expected a key, found the float 1.5",
           "It is read as a value. Quote it to use it as a key: \"1.5\"."}}},
        {"inf = 1\n",
         {{"1:1 error: expected a key, found the float inf",
           "It is read as a value. Quote it to use it as a key: \"inf\"."}}},
        {"2024-01-31\t= 1\n",
         {{"1:1 error: expected a key, found the date 2024-01-31",
           "It is read as a value. Quote it to use it as a key: \"2024-01-31\"."}}},
        {"a.1 = 1\n", {{"1:3 error: expected a key, found the integer 1", readsAsValue1}}},
        {"a.2.b = 1\n", {{"1:3 error: the number is missing a digit", likeNumber}}},
        {"[1]\n", {{"1:2 error: expected a key, found the integer 1", readsAsValue1}}},
        {"[[true]]\n", {{"1:3 error: expected a key, found the boolean true", readsAsValue}}},
        {"[a.false]\n",
         {{"1:4 error: expected a key, found the boolean false",
           "It is read as a value. Quote it to use it as a key: \"false\"."}}},
        {"a = {0x1F = 1}\n",
         {{"1:6 error: expected a key, found the hexadecimal integer 0x1F",
           "It is read as a value. Quote it to use it as a key: \"0x1F\"."}}},
        {"07:32:00 = 1\n",
         {{"1:1 error: expected a key, found the time 07:32:00",
           "It is read as a value. Quote it to use it as a key: \"07:32:00\"."}}},
        {"2024-01-31 = 1\n",
         {{"1:11 error: expected a time after the date and the space", likeNumber}}},
    });
}

TEST(DiagnosisOfLines, headers)
{
    expectSaid({
        {"[]\n", {{"1:2 error: the key of the header is missing", headerForm}}},
        {"[[]]\n",
         {{"1:3 error: the key of the header is missing",
           "A header of an array of tables is written [[key]]."}}},
        {"[a\n",
         {{"1:3 error: expected ']' after the key of the header, found the end of the line",
           headerOnOneLine}}},
        {"[a b]\n",
         {{"1:4 error: expected ']' after the key of the header, found the word 'b'",
           "A key of several words needs quotes: [\"a b\"]."}}},
        {"[a] b = 1\n", {{"1:5 error: expected the end of the line, found the word 'b'", ownLine}}},
        {"[a]]\n", {{"1:4 error: ']' closes nothing here", unopened}}},
        {"[[a]\n",
         {{"1:5 error: expected ']' after the key of the header, found the end of the line",
           arrayHeader}}},
        {"[[a] ]\n", {}},
        {"[[a] b]\n",
         {{"1:6 error: expected ']' after the key of the header, found the word 'b'",
           arrayHeader}}},
        {"[a.]\n", {{"1:4 error: the key of the header is missing", headerForm}}},
        {"[.a]\n", {{"1:2 error: expected the key of a header, found '.'", headerForm}}},
        {"[a.b\n",
         {{"1:5 error: expected ']' after the key of the header, found the end of the line",
           headerOnOneLine}}},
        {"[\"\"\"a\"\"\"]\n",
         {{"1:2 error: expected the key of a header, found the multi-line string \"\"\"a\"\"\"",
           quotedKey}}},
        {"[\na]\n",
         {{"1:2 error: expected the key of a header, found the end of the line", headerForm}}},
        {"[", {{"1:2 error: expected the key of a header, found the end of the file", headerForm}}},
        {"[a = 1]\n",
         {{"1:4 error: expected ']' after the key of the header, found '='", headerOnOneLine}}},
    });
}

TEST(DiagnosisOfLines, pairs)
{
    expectSaid({
        {"a\n", {at("1:2", keyAlone)}},
        {"a", {{"1:2 error: expected '=' after the key, found the end of the file", lineForm}}},
        {"a =\n", {at("1:4", noValue)}},
        {"a =", {{"1:4 error: expected a value, found the end of the file", valueOnLine}}},
        {"= 1\n", {{"1:1 error: the key before '=' is missing", lineForm}}},
        {"a = = 1\n", {{"1:5 error: expected a value, found a second '='", pairForm}}},
        {"a b = 1\n",
         {{"1:3 error: expected '=' after the key, found the word 'b'",
           "A key of several words needs quotes: \"a b\" = 1."}}},
        {"a 1\n",
         {{"1:3 error: expected '=' after the key, found the integer 1",
           "Write '=' between a key and its value: a = 1."}}},
        {"a.b c = 1\n",
         {{"1:5 error: expected '=' after the key, found the word 'c'",
           "A pair is written key = value. A key of several words needs quotes."}}},
        {"a. = 1\n",
         {{"1:4 error: expected a key after the dot, found '='",
           "A dotted key is written a.b.c."}}},
        {".a = 1\n", {{"1:1 error: expected a key or a header, found '.'", lineForm}}},
        {"a = 1 b = 2\n",
         {{"1:7 error: expected the end of the line, found the word 'b'", ownLine}}},
        {"a = 1 2\n", {{"1:7 error: expected the end of the line, found the integer 2", ownLine}}},
        {"a = 1,\n",
         {{"1:6 error: expected the end of the line, found ','",
           "Pairs and headers end without a comma."}}},
        {"]\n", {{"1:1 error: ']' closes nothing here", lineForm}}},
        {"}\n", {{"1:1 error: '}' closes nothing here", lineForm}}},
        {"{a = 1}\n",
         {{"1:1 error: expected a key or a header, found '{'",
           "It looks like JSON. There are no braces around a document, and each line contains one "
           "pair, key = value."}}},
        {"\"\"\"a\"\"\" = 1\n",
         {{"1:1 error: expected a key or a header, found the multi-line string \"\"\"a\"\"\"",
           quotedKey}}},
        {"a =\n1\n",
         {at("1:4", noValue), {"2:1 error: expected a key, found the integer 1", readsAsValue1}}},
        {"a = ,\n", {{"1:5 error: expected a value, found ','", valueForms}}},
        {"a = ]\nb = []\n",
         {{"1:5 error: expected a value, found ']'", valueForms}, at("2:6", emptyArray)}},
        {"a = 1 = 2\n", {{"1:7 error: expected the end of the line, found '='", ownLine}}},
        {"\"a\n", {at("1:1", unclosed)}},
        {"a == 1\n", {{"1:4 error: expected a value, found a second '='", pairForm}}},
    });
}

TEST(DiagnosisOfLines, missingLastLineBreak)
{
    expectSaid({
        {"a = 1", {at("1:6", noLastLineBreak)}},
        {"a = 1 # c", {at("1:10", noLastLineBreak)}},
        {"[a]", {at("1:4", noLastLineBreak)}},
        {"a = [1, 2\n]", {at("2:2", noLastLineBreak)}},
        {"a = []\nb = 1", {at("1:6", emptyArray), at("2:6", noLastLineBreak)}},
        {"a = []", {at("1:6", emptyArray)}},
        {"# c\na = 1 ", {at("2:7", noLastLineBreak)}},
    });
}

TEST(DiagnosisOfLines, loneCarriageReturns)
{
    expectSaid({
        {"a = 1\rb = 2\r", {at("1:6", loneCarriageReturn)}},
        {"a = 1\r", {at("1:6", loneCarriageReturn)}},
        {"\ra = 1\n", {at("1:1", loneCarriageReturn)}},
        {"a = 1\n\rb = 2\n", {at("2:1", loneCarriageReturn)}},
        {"[a]\r\r\n", {at("1:4", loneCarriageReturn)}},
    });
}

TEST(DiagnosisOfLines, severalErrors)
{
    expectSaid({
        {"a = []\nb = 1 2\nc = {}\n",
         {at("1:6", emptyArray),
          {"2:7 error: expected the end of the line, found the integer 2", ownLine},
          at("3:6", emptyTable)}},
        {"a = [\n1 2,\n3 4,\n[]\n]\n", {at("2:3", noCommaBefore2)}},
        {"a = @ []\nb = $\n",
         {{"1:5 error: '@' is not a value", "Strings need quotes: \"@\"."},
          {"2:5 error: '$' is not a value", "Strings need quotes: \"$\"."}}},
        {"a = \"b\nc = $\n\nd = []\n", {at("1:5", unclosed), at("4:6", emptyArray)}},
        {"a = 1]\nb = []\n",
         {{"1:6 error: ']' closes nothing here", unopened}, at("2:6", emptyArray)}},
        {"x\ny\nz\n", {at("1:2", keyAlone), at("2:2", keyAlone), at("3:2", keyAlone)}},
        {"a = [1 2\nb = 2\nc =\n", {at("1:8", noCommaBefore2), at("3:4", noValue)}},
        {"a = [@,\n 1,\n # c\n 2]\nb =\n",
         {{"1:6 error: '@' is not a value", "Strings need quotes: \"@\"."},
          {"5:4 error: expected a value, found the end of the line",
           "The value must start on the line of its key."}}},
    });
}
