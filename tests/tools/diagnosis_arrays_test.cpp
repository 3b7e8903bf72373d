// What the tool says about arrays and inline tables.
#include "tools/explained.h"

#include <gtest/gtest.h>

using test::expectSaid;

namespace
{

// Hints that are given more than once.
const std::string emptyArray = "An array holds one element or more. Leave the key out instead.";
const std::string emptyTable = "An inline table holds one pair or more. Leave the key out, or use "
                               "a header, [key], with nothing below it.";
const std::string commentLine =
    "In an array a comment stands after an element, a comma or the '['.";
const std::string blankLine = "In an array a line without an element is empty: without blanks.";
const std::string ownLineOfBracket =
    "Only after two or more elements ']' may have a line of its own. Put it after the element.";
const std::string trailingComma =
    "After a trailing comma ']' follows on the same line. Or leave the comma out: after two or "
    "more elements ']' may have a line of its own.";
const std::string commas = "Elements are separated by commas: [1, 2].";
const std::string quotesB = "Strings have quotes: \"b\".";
const std::string arrayEnd = "It ends with ']', after its last element.";
const std::string tableForm = "In an inline table pairs are written {a = 1, b = 2}.";
const std::string tableOnOneLine = "An inline table stands on one line, up to its '}'. What is "
                                   "longer is a table with a header, [key].";

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
         {{"2:1 error: a line in an array holds only a comment", commentLine}}},
        {"a = [1,\n  # note\n  2]\n",
         false,
         {{"2:3 error: a line in an array holds only a comment", commentLine}}},
        {"a = [1 # one\n # two\n, 2]\n",
         false,
         {{"2:2 error: a line in an array holds only a comment", commentLine}}},
        {"a = [1, 2 # two\n# c\n]\n",
         false,
         {{"2:1 error: a line in an array holds only a comment", commentLine}}},
        {"a = [\n \n1]\n", false, {{"2:1 error: a line in an array holds only blanks", blankLine}}},
        {"a = [1,\n\t\n2\n]\n",
         false,
         {{"2:1 error: a line in an array holds only blanks", blankLine}}},
        {"a = [{b = [\n1,\n# c\n2]}]\n",
         false,
         {{"3:1 error: a line in an array holds only a comment", commentLine}}},
    });
}

TEST(DiagnosisOfArrays, closingBracketsOnLinesOfTheirOwn)
{
    expectSaid({
        {"a = [1\n]\n",
         false,
         {{"2:1 error: ']' stands on a line of its own after a single element", ownLineOfBracket}}},
        {"a = [\n  1 # one\n]\n",
         false,
         {{"3:1 error: ']' stands on a line of its own after a single element", ownLineOfBracket}}},
        {"a = [1,\n]\n",
         false,
         {{"2:1 error: ']' stands on another line than the comma before it", trailingComma}}},
        {"a = [\n  1,\n  2,\n]\n",
         false,
         {{"4:1 error: ']' stands on another line than the comma before it", trailingComma}}},
        {"a = [1, 2, # two\n]\n",
         false,
         {{"2:1 error: ']' stands on another line than the comma before it", trailingComma}}},
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
         {{"1:7 error: the character ';' cannot stand here",
           "Each pair has a line of its own, with nothing at its end. A comment begins with "
           "'#'."}}},
        {"a = [b, 1]\n", false, {{"1:6 error: 'b' is not a value", quotesB}}},
        {"a = [1, b]\n", false, {{"1:9 error: 'b' is not a value", quotesB}}},
        {"a = [1, b = 2]\n", false, {{"1:9 error: 'b' is not a value", quotesB}}},
        {"a = [1}\n",
         false,
         {{"1:7 error: expected ',' or ']' after the element, found '}'", commas}}},
        {"a = [1]]\n",
         false,
         {{"1:8 error: ']' closes nothing here", "Every ']' and '}' belongs to one that opens."}}},
        {"a = [1",
         false,
         {{"1:7 error: the array that begins in line 1 is not closed before the end of the file",
           arrayEnd}}},
        {"a = [1, 2\nb = 3\nc = []\n",
         false,
         {{"2:1 error: the array that begins in line 1 is not closed before the word 'b'",
           arrayEnd},
          {"3:6 error: the array is empty", emptyArray}}},
        {"a = [\n1,\n2\n[b]\nc = {}\n",
         false,
         {{"4:1 error: the array that begins in line 1 is not closed before '['", arrayEnd},
          {"5:6 error: the inline table is empty", emptyTable}}},
        {"a = [\n",
         false,
         {{"2:1 error: the array that begins in line 1 is not closed before the end of the file",
           arrayEnd}}},
        {"a = [1, {b = 2]\n",
         false,
         {{"1:15 error: expected ',' or '}' after the pair, found ']'", tableForm}}},
        {"a = [1 = 2]\n",
         false,
         {{"1:8 error: expected ',' or ']' after the element, found '='", commas}}},
        {"a = [[1, 2\nb = 1\n",
         false,
         {{"2:1 error: the array that begins in line 1 is not closed before the word 'b'",
           arrayEnd}}},
    });
}

TEST(DiagnosisOfArrays, inlineTables)
{
    expectSaid({
        {"a = {b = 1,}\n",
         false,
         {{"1:12 error: expected a pair after the comma, found '}'",
           "No comma stands before the '}' of an inline table."}}},
        {"a = {b = 1\n}\nc = []\n",
         false,
         {{"1:11 error: the inline table does not end on its line", tableOnOneLine},
          {"3:6 error: the array is empty", emptyArray}}},
        {"a = {\nb = 1,\nc = 2\n}\nd = []\n",
         false,
         {{"1:6 error: the inline table does not end on its line", tableOnOneLine},
          {"5:6 error: the array is empty", emptyArray}}},
        {"a = {b = 1,\nc = 2}\n",
         false,
         {{"1:12 error: the inline table does not end on its line", tableOnOneLine}}},
        {"a = {b = 1 c = 2}\n",
         false,
         {{"1:12 error: expected ',' or '}' after the pair, found the word 'c'", tableForm}}},
        {"a = {b}\n", false, {{"1:7 error: expected '=' after the key, found '}'", tableForm}}},
        {"a = {b = }\n",
         false,
         {{"1:10 error: expected a value, found '}'",
           "Strings have quotes. Arrays are written [1, 2], inline tables {a = 1}."}}},
        {"a = {= 1}\n",
         false,
         {{"1:6 error: expected a key in the inline table, found '='", tableForm}}},
        {"a = {b: 1}\n",
         false,
         {{"1:7 error: the character ':' cannot stand here",
           "Between a key and its value stands '='."}}},
        {"a = {b = 1",
         false,
         {{"1:11 error: the inline table does not end on its line", tableOnOneLine}}},
        {"a = {b = 1]\n",
         false,
         {{"1:11 error: expected ',' or '}' after the pair, found ']'", tableForm}}},
        {"a = {\"\"\"b\"\"\" = 1}\n",
         false,
         {{"1:6 error: expected a key in the inline table, found the multi-line string "
           "\"\"\"b\"\"\"",
           "A key in quotes stands on one line, in \" or '."}}},
        {"a = {b = 1\nc = 2\n[d]\ne = []\n",
         false,
         {{"1:11 error: the inline table does not end on its line", tableOnOneLine},
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
