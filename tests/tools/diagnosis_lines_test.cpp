// What the tool says about keys, headers and lines.
#include "tools/explained.h"

#include <gtest/gtest.h>

using test::expectSaid;

namespace
{

// Hints that are given more than once.
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
const std::string valueOnLine = "The value must start on the line of its key.";
const std::string pairForm = "A pair is written key = value.";
const std::string keyOfWords = "A key of several words needs quotes: \"my key\" = 1.";
const std::string valueForms =
    "Strings need quotes. Arrays are written [1, 2], inline tables {a = 1}.";
const std::string emptyArray = "An array needs at least one element. Leave the key out instead.";
const std::string unclosed = "Close the string with \" on the same line. A string of several lines "
                             "starts and ends with \"\"\".";
const std::string lastLineBreak =
    "Every pair and every header ends with a line break, including the last one.";
const std::string lineEnds =
    "Lines end with a line feed (LF), or with a carriage return and a line feed (CR LF).";
const std::string commas = "Separate elements with commas: [1, 2].";
const std::string bareKeys =
    "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys, and all strings, need quotes.";

} // namespace

TEST(DiagnosisOfLines, keysThatReadAsValues)
{
    expectSaid({
        {"true = 1\n",
         false,
         {{"1:1 error: expected a key, found the boolean true", readsAsValue}}},
        {"123 = 1\n",
         false,
         {{"1:1 error: expected a key, found the integer 123",
           "It is read as a value. Quote it to use it as a key: \"123\"."}}},
        {"1.5 = 1\n",
         false,
         {{"1:1 error: expected a key, found the float 1.5",
           "It is read as a value. Quote it to use it as a key: \"1.5\"."}}},
        {"inf = 1\n",
         false,
         {{"1:1 error: expected a key, found the float inf",
           "It is read as a value. Quote it to use it as a key: \"inf\"."}}},
        {"2024-01-31\t= 1\n",
         false,
         {{"1:1 error: expected a key, found the date 2024-01-31",
           "It is read as a value. Quote it to use it as a key: \"2024-01-31\"."}}},
        {"a.1 = 1\n", false, {{"1:3 error: expected a key, found the integer 1", readsAsValue1}}},
        {"a.2.b = 1\n", false, {{"1:3 error: the number is missing a digit", likeNumber}}},
        {"[1]\n", false, {{"1:2 error: expected a key, found the integer 1", readsAsValue1}}},
        {"[[true]]\n",
         false,
         {{"1:3 error: expected a key, found the boolean true", readsAsValue}}},
        {"[a.false]\n",
         false,
         {{"1:4 error: expected a key, found the boolean false",
           "It is read as a value. Quote it to use it as a key: \"false\"."}}},
        {"a = {0x1F = 1}\n",
         false,
         {{"1:6 error: expected a key, found the hexadecimal integer 0x1F",
           "It is read as a value. Quote it to use it as a key: \"0x1F\"."}}},
        {"07:32:00 = 1\n",
         false,
         {{"1:1 error: expected a key, found the time 07:32:00",
           "It is read as a value. Quote it to use it as a key: \"07:32:00\"."}}},
        {"2024-01-31 = 1\n",
         false,
         {{"1:11 error: expected a time after the date and the space", likeNumber}}},
    });
}

TEST(DiagnosisOfLines, headers)
{
    expectSaid({
        {"[]\n", false, {{"1:2 error: the key of the header is missing", headerForm}}},
        {"[[]]\n",
         false,
         {{"1:3 error: the key of the header is missing",
           "A header of an array of tables is written [[key]]."}}},
        {"[a\n",
         false,
         {{"1:3 error: expected ']' after the key of the header, found the end of the line",
           headerOnOneLine}}},
        {"[a b]\n",
         false,
         {{"1:4 error: expected ']' after the key of the header, found the word 'b'",
           headerOnOneLine}}},
        {"[a] b = 1\n",
         false,
         {{"1:5 error: expected the end of the line, found the word 'b'", ownLine}}},
        {"[a]]\n", false, {{"1:4 error: ']' closes nothing here", unopened}}},
        {"[[a]\n",
         false,
         {{"1:5 error: expected ']' after the key of the header, found the end of the line",
           arrayHeader}}},
        {"[[a] ]\n", true, {}},
        {"[[a] b]\n",
         false,
         {{"1:6 error: expected ']' after the key of the header, found the word 'b'",
           arrayHeader}}},
        {"[a.]\n", false, {{"1:4 error: the key of the header is missing", headerForm}}},
        {"[.a]\n", false, {{"1:2 error: expected the key of a header, found '.'", headerForm}}},
        {"[a.b\n",
         false,
         {{"1:5 error: expected ']' after the key of the header, found the end of the line",
           headerOnOneLine}}},
        {"[\"\"\"a\"\"\"]\n",
         false,
         {{"1:2 error: expected the key of a header, found the multi-line string \"\"\"a\"\"\"",
           quotedKey}}},
        {"[\na]\n",
         false,
         {{"1:2 error: expected the key of a header, found the end of the line", headerForm}}},
        {"[",
         false,
         {{"1:2 error: expected the key of a header, found the end of the file", headerForm}}},
        {"[a = 1]\n",
         false,
         {{"1:4 error: expected ']' after the key of the header, found '='", headerOnOneLine}}},
    });
}

TEST(DiagnosisOfLines, pairs)
{
    expectSaid({
        {"a\n",
         false,
         {{"1:2 error: expected '=' after the key, found the end of the line", lineForm}}},
        {"a",
         false,
         {{"1:2 error: expected '=' after the key, found the end of the file", lineForm}}},
        {"a =\n", false, {{"1:4 error: expected a value, found the end of the line", valueOnLine}}},
        {"a =", false, {{"1:4 error: expected a value, found the end of the file", valueOnLine}}},
        {"= 1\n", false, {{"1:1 error: the key before '=' is missing", lineForm}}},
        {"a = = 1\n", false, {{"1:5 error: expected a value, found a second '='", pairForm}}},
        {"a b = 1\n",
         false,
         {{"1:3 error: expected '=' after the key, found the word 'b'", keyOfWords}}},
        {"a 1\n",
         false,
         {{"1:3 error: expected '=' after the key, found the integer 1", keyOfWords}}},
        {"a.b c = 1\n",
         false,
         {{"1:5 error: expected '=' after the key, found the word 'c'", keyOfWords}}},
        {"a. = 1\n",
         false,
         {{"1:4 error: expected a key after the dot, found '='",
           "A dotted key is written a.b.c."}}},
        {".a = 1\n", false, {{"1:1 error: expected a key or a header, found '.'", lineForm}}},
        {"a = 1 b = 2\n",
         false,
         {{"1:7 error: expected the end of the line, found the word 'b'", ownLine}}},
        {"a = 1 2\n",
         false,
         {{"1:7 error: expected the end of the line, found the integer 2", ownLine}}},
        {"a = 1,\n",
         false,
         {{"1:6 error: expected the end of the line, found ','",
           "Pairs and headers end without a comma."}}},
        {"]\n", false, {{"1:1 error: ']' closes nothing here", lineForm}}},
        {"}\n", false, {{"1:1 error: '}' closes nothing here", lineForm}}},
        {"{a = 1}\n", false, {{"1:1 error: expected a key or a header, found '{'", lineForm}}},
        {"\"\"\"a\"\"\" = 1\n",
         false,
         {{"1:1 error: expected a key or a header, found the multi-line string \"\"\"a\"\"\"",
           quotedKey}}},
        {"a =\n1\n",
         false,
         {{"1:4 error: expected a value, found the end of the line", valueOnLine},
          {"2:1 error: expected a key, found the integer 1", readsAsValue1}}},
        {"a = ,\n", false, {{"1:5 error: expected a value, found ','", valueForms}}},
        {"a = ]\nb = []\n",
         false,
         {{"1:5 error: expected a value, found ']'", valueForms},
          {"2:6 error: the array is empty", emptyArray}}},
        {"a = 1 = 2\n", false, {{"1:7 error: expected the end of the line, found '='", ownLine}}},
        {"\"a\n", false, {{"1:1 error: the string is not closed on its line", unclosed}}},
        {"a == 1\n", false, {{"1:4 error: expected a value, found a second '='", pairForm}}},
    });
}

TEST(DiagnosisOfLines, missingLastLineBreak)
{
    expectSaid({
        {"a = 1",
         false,
         {{"1:6 error: the line break at the end of the file is missing", lastLineBreak}}},
        {"a = 1 # c",
         false,
         {{"1:10 error: the line break at the end of the file is missing", lastLineBreak}}},
        {"[a]",
         false,
         {{"1:4 error: the line break at the end of the file is missing", lastLineBreak}}},
        {"a = [1, 2\n]",
         false,
         {{"2:2 error: the line break at the end of the file is missing", lastLineBreak}}},
        {"a = []\nb = 1",
         false,
         {{"1:6 error: the array is empty", emptyArray},
          {"2:6 error: the line break at the end of the file is missing", lastLineBreak}}},
        {"a = []", false, {{"1:6 error: the array is empty", emptyArray}}},
        {"# c\na = 1 ",
         false,
         {{"2:7 error: the line break at the end of the file is missing", lastLineBreak}}},
    });
}

TEST(DiagnosisOfLines, loneCarriageReturns)
{
    expectSaid({
        {"a = 1\rb = 2\r",
         false,
         {{"1:6 error: a carriage return without a line feed after it", lineEnds}}},
        {"a = 1\r",
         false,
         {{"1:6 error: a carriage return without a line feed after it", lineEnds}}},
        {"\ra = 1\n",
         false,
         {{"1:1 error: a carriage return without a line feed after it", lineEnds}}},
        {"a = 1\n\rb = 2\n",
         false,
         {{"2:1 error: a carriage return without a line feed after it", lineEnds}}},
        {"[a]\r\r\n",
         false,
         {{"1:4 error: a carriage return without a line feed after it", lineEnds}}},
    });
}

TEST(DiagnosisOfLines, severalErrors)
{
    expectSaid({
        {"a = []\nb = 1 2\nc = {}\n",
         false,
         {{"1:6 error: the array is empty", emptyArray},
          {"2:7 error: expected the end of the line, found the integer 2", ownLine},
          {"3:6 error: the inline table is empty",
           "An inline table needs at least one pair. Leave the key out, or use a header, [key], "
           "with nothing below it."}}},
        {"a = [\n1 2,\n3 4,\n[]\n]\n",
         false,
         {{"2:3 error: expected ',' or ']' after the element, found the integer 2", commas}}},
        {"a = @ []\nb = $\n",
         false,
         {{"1:5 error: the character '@' is not allowed here", bareKeys},
          {"2:5 error: the character '$' is not allowed here", bareKeys}}},
        {"a = \"b\nc = $\n\nd = []\n",
         false,
         {{"1:5 error: the string is not closed on its line", unclosed},
          {"4:6 error: the array is empty", emptyArray}}},
        {"a = 1]\nb = []\n",
         false,
         {{"1:6 error: ']' closes nothing here", unopened},
          {"2:6 error: the array is empty", emptyArray}}},
        {"x\ny\nz\n",
         false,
         {{"1:2 error: expected '=' after the key, found the end of the line", lineForm},
          {"2:2 error: expected '=' after the key, found the end of the line", lineForm},
          {"3:2 error: expected '=' after the key, found the end of the line", lineForm}}},
        {"a = [1 2\nb = 2\nc =\n",
         false,
         {{"1:8 error: expected ',' or ']' after the element, found the integer 2", commas},
          {"3:4 error: expected a value, found the end of the line", valueOnLine}}},
        {"a = [@,\n 1,\n # c\n 2]\nb =\n",
         false,
         {{"1:6 error: the character '@' is not allowed here", bareKeys},
          {"5:4 error: expected a value, found the end of the line", valueOnLine}}},
    });
}
