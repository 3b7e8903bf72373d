// What the tool says about arrays and inline tables.
#include "tools/explained.h"

#include <gtest/gtest.h>

using test::expectSaid;

namespace
{

// Hints that are given more than once.
const std::string emptyArray = "An array needs at least one element. Leave the key out instead.";
const std::string emptyTable = "An inline table needs at least one pair. Leave the key out, or use "
                               "a header, [key], with nothing below it.";
const std::string commentLine = "In an array, put comments after an element, a comma or the '['.";
const std::string blankLine =
    "In an array, a line without an element must be empty. Remove the spaces and tabs.";
const std::string ownLineOfBracket = "']' may only be on its own line after two or more elements. "
                                     "Put it on the line of the element.";
const std::string trailingComma =
    "After a trailing comma, ']' must be on the same line. Without the comma, it may be on its own "
    "line after two or more elements.";
const std::string commas = "Separate elements with commas: [1, 2].";
const std::string quotesB = "Strings need quotes: \"b\".";
const std::string arrayEnd = "Close it with ']' after its last element.";
const std::string tableForm = "In an inline table, pairs are written {a = 1, b = 2}.";
const std::string tableOnOneLine = "An inline table must be on one line, up to its '}'. For a "
                                   "longer table, write a header, [key].";

} // namespace

TEST(DiagnosisOfArrays, emptyArraysAndTables)
{
    expectSaid({
        {"a = []\n", false, {{"1:6 error: the array is empty", emptyArray}}},
        {"a = [ ]\n", false, {{"1:7 error: the array is empty", emptyArray}}},
        {"a = [\n]\n", false, {{"2:1 error: the array is empty", emptyArray}}},
        {"a = [1, []]\n", false, {{"1:10 error: the array is empty", emptyArray}}},
        {"a = {}\n", false, {{"1:6 error: the inline table is empty", emptyTable}}},
        {"a = {b = {}}\n", false, {{"1:11 error: the inline table is empty", emptyTable}}},
        {"a = [[], 1,\n{}, []]\nb = []\n",
         false,
         {{"1:7 error: the array is empty", emptyArray},
          {"2:2 error: the inline table is empty", emptyTable},
          {"3:6 error: the array is empty", emptyArray}}},
    });
}

TEST(DiagnosisOfArrays, linesOfCommentsInArrays)
{
    expectSaid({
        {"a = [\n# c\n1]\n",
         false,
         {{"2:1 error: a line in an array contains only a comment", commentLine}}},
        {"a = [1,\n  # note\n  2]\n",
         false,
         {{"2:3 error: a line in an array contains only a comment", commentLine}}},
        {"a = [1 # one\n # two\n, 2]\n",
         false,
         {{"2:2 error: a line in an array contains only a comment", commentLine}}},
        {"a = [1, 2 # two\n# c\n]\n",
         false,
         {{"2:1 error: a line in an array contains only a comment", commentLine}}},
        {"a = [\n \n1]\n",
         false,
         {{"2:1 error: a line in an array contains only spaces or tabs", blankLine}}},
        {"a = [1,\n\t\n2\n]\n",
         false,
         {{"2:1 error: a line in an array contains only spaces or tabs", blankLine}}},
        {"a = [{b = [\n1,\n# c\n2]}]\n",
         false,
         {{"3:1 error: a line in an array contains only a comment", commentLine}}},
    });
}

TEST(DiagnosisOfArrays, closingBracketsOnLinesOfTheirOwn)
{
    expectSaid({
        {"a = [1\n]\n",
         false,
         {{"2:1 error: ']' is on its own line after a single element", ownLineOfBracket}}},
        {"a = [\n  1 # one\n]\n",
         false,
         {{"3:1 error: ']' is on its own line after a single element", ownLineOfBracket}}},
        {"a = [1,\n]\n",
         false,
         {{"2:1 error: ']' is not on the same line as the comma before it", trailingComma}}},
        {"a = [\n  1,\n  2,\n]\n",
         false,
         {{"4:1 error: ']' is not on the same line as the comma before it", trailingComma}}},
        {"a = [1, 2, # two\n]\n",
         false,
         {{"2:1 error: ']' is not on the same line as the comma before it", trailingComma}}},
    });
}

TEST(DiagnosisOfArrays, arrays)
{
    expectSaid({
        {"a = [1 2]\n",
         false,
         {{"1:8 error: expected ',' or ']' after the element, found the integer 2", commas}}},
        {"a = [1,,2]\n", false, {{"1:8 error: an element is missing before the comma", commas}}},
        {"a = [,1]\n", false, {{"1:6 error: an element is missing before the comma", commas}}},
        {"a = [1; 2]\n",
         false,
         {{"1:7 error: the character ';' is not allowed here",
           "Put each pair on its own line, with nothing after it. A comment starts with '#'."}}},
        {"a = [b, 1]\n", false, {{"1:6 error: 'b' is not a value", quotesB}}},
        {"a = [1, b]\n", false, {{"1:9 error: 'b' is not a value", quotesB}}},
        {"a = [1, b = 2]\n", false, {{"1:9 error: 'b' is not a value", quotesB}}},
        {"a = [1}\n",
         false,
         {{"1:7 error: expected ',' or ']' after the element, found '}'", commas}}},
        {"a = [1]]\n",
         false,
         {{"1:8 error: ']' closes nothing here",
           "Every ']' needs a '[' before it, and every '}' a '{'."}}},
        {"a = [1",
         false,
         {{"1:7 error: the array opened on line 1 is not closed before the end of the file",
           arrayEnd}}},
        {"a = [1, 2\nb = 3\nc = []\n",
         false,
         {{"2:1 error: the array opened on line 1 is not closed before the word 'b'", arrayEnd},
          {"3:6 error: the array is empty", emptyArray}}},
        {"a = [\n1,\n2\n[b]\nc = {}\n",
         false,
         {{"4:1 error: the array opened on line 1 is not closed before '['", arrayEnd},
          {"5:6 error: the inline table is empty", emptyTable}}},
        {"a = [\n",
         false,
         {{"2:1 error: the array opened on line 1 is not closed before the end of the file",
           arrayEnd}}},
        {"a = [1, {b = 2]\n",
         false,
         {{"1:15 error: expected ',' or '}' after the pair, found ']'", tableForm}}},
        {"a = [1 = 2]\n",
         false,
         {{"1:8 error: expected ',' or ']' after the element, found '='", commas}}},
        {"a = [[1, 2\nb = 1\n",
         false,
         {{"2:1 error: the array opened on line 1 is not closed before the word 'b'", arrayEnd}}},
    });
}

TEST(DiagnosisOfArrays, inlineTables)
{
    expectSaid({
        {"a = {b = 1,}\n",
         false,
         {{"1:12 error: expected a pair after the comma, found '}'",
           "An inline table has no comma before its '}'."}}},
        {"a = {b = 1\n}\nc = []\n",
         false,
         {{"1:11 error: the inline table is not closed on its line", tableOnOneLine},
          {"3:6 error: the array is empty", emptyArray}}},
        {"a = {\nb = 1,\nc = 2\n}\nd = []\n",
         false,
         {{"1:6 error: the inline table is not closed on its line", tableOnOneLine},
          {"5:6 error: the array is empty", emptyArray}}},
        {"a = {b = 1,\nc = 2}\n",
         false,
         {{"1:12 error: the inline table is not closed on its line", tableOnOneLine}}},
        {"a = {b = 1 c = 2}\n",
         false,
         {{"1:12 error: expected ',' or '}' after the pair, found the word 'c'", tableForm}}},
        {"a = {b}\n", false, {{"1:7 error: expected '=' after the key, found '}'", tableForm}}},
        {"a = {b = }\n",
         false,
         {{"1:10 error: expected a value, found '}'",
           "Strings need quotes. Arrays are written [1, 2], inline tables {a = 1}."}}},
        {"a = {= 1}\n",
         false,
         {{"1:6 error: expected a key in the inline table, found '='", tableForm}}},
        {"a = {b: 1}\n",
         false,
         {{"1:7 error: the character ':' is not allowed here",
           "Write '=' between a key and its value."}}},
        {"a = {b = 1",
         false,
         {{"1:11 error: the inline table is not closed on its line", tableOnOneLine}}},
        {"a = {b = 1]\n",
         false,
         {{"1:11 error: expected ',' or '}' after the pair, found ']'", tableForm}}},
        {"a = {\"\"\"b\"\"\" = 1}\n",
         false,
         {{"1:6 error: expected a key in the inline table, found the multi-line string "
           "\"\"\"b\"\"\"",
           "A quoted key is written on one line, with \" or '."}}},
        {"a = {b = 1\nc = 2\n[d]\ne = []\n",
         false,
         {{"1:11 error: the inline table is not closed on its line", tableOnOneLine},
          {"4:6 error: the array is empty", emptyArray}}},
        {"a = {,}\n",
         false,
         {{"1:6 error: expected a key in the inline table, found ','", tableForm}}},
        {"a = {b.=1}\n",
         false,
         {{"1:8 error: expected a key after the dot, found '='",
           "A dotted key is written a.b.c."}}},
    });
}
