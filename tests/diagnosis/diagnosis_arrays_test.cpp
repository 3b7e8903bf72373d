// What the tool says about arrays and inline tables.
#include "diagnosis/explained.h"

#include <gtest/gtest.h>

using namespace test;

namespace
{

// What is said, and hints that are given, more than once.
const Said commentLine = {"error: a line in an array contains only a comment",
                          "In an array, put comments after an element, a comma or the '['."};
const Said blankLine = {
    "error: a line in an array contains only spaces or tabs",
    "In an array, a line without an element must be empty. Remove the spaces and tabs."};
const Said ownLineOfBracket = {"error: ']' is on its own line after a single element",
                               "']' may only be on its own line after two or more elements. "
                               "Put it on the line of the element."};
const Said trailingComma = {
    "error: ']' is not on the same line as the comma before it",
    "After a trailing comma, ']' must be on the same line. Without the comma, it may be on its own "
    "line after two or more elements."};
const std::string quotesB = "Strings need quotes: \"b\".";
const std::string arrayEnd = "Close it with ']' after its last element.";
const Said openAtEnd = {
    "error: the array opened on line 1 is not closed before the end of the file", arrayEnd};
const Said openBeforeB = {"error: the array opened on line 1 is not closed before the word 'b'",
                          arrayEnd};
const std::string tableForm = "In an inline table, pairs are written {a = 1, b = 2}.";
const Said openTable = {"error: the inline table is not closed on its line",
                        "An inline table must be on one line, up to its '}'. For a "
                        "longer table, write a header, [key]."};

} // namespace

TEST(DiagnosisOfArrays, emptyArraysAndTables)
{
    expectSaid({
        {"a = []\n", {at("1:6", emptyArray)}},
        {"a = [ ]\n", {at("1:7", emptyArray)}},
        {"a = [\n]\n", {at("2:1", emptyArray)}},
        {"a = [1, []]\n", {at("1:10", emptyArray)}},
        {"a = {}\n", {at("1:6", emptyTable)}},
        {"a = {b = {}}\n", {at("1:11", emptyTable)}},
        {"a = [[], 1,\n{}, []]\nb = []\n",
         {at("1:7", emptyArray), at("2:2", emptyTable), at("3:6", emptyArray)}},
    });
}

TEST(DiagnosisOfArrays, linesOfCommentsInArrays)
{
    expectSaid({
        {"a = [\n# c\n1]\n", {at("2:1", commentLine)}},
        {"a = [1,\n  # note\n  2]\n", {at("2:3", commentLine)}},
        {"a = [1 # one\n # two\n, 2]\n", {at("2:2", commentLine)}},
        {"a = [1, 2 # two\n# c\n]\n", {at("2:1", commentLine)}},
        {"a = [\n \n1]\n", {at("2:1", blankLine)}},
        {"a = [1,\n\t\n2\n]\n", {at("2:1", blankLine)}},
        {"a = [{b = [\n1,\n# c\n2]}]\n", {at("3:1", commentLine)}},
    });
}

TEST(DiagnosisOfArrays, closingBracketsOnLinesOfTheirOwn)
{
    expectSaid({
        {"a = [1\n]\n", {at("2:1", ownLineOfBracket)}},
        {"a = [\n  1 # one\n]\n", {at("3:1", ownLineOfBracket)}},
        {"a = [1,\n]\n", {at("2:1", trailingComma)}},
        {"a = [\n  1,\n  2,\n]\n", {at("4:1", trailingComma)}},
        {"a = [1, 2, # two\n]\n", {at("2:1", trailingComma)}},
    });
}

TEST(DiagnosisOfArrays, arrays)
{
    expectSaid({
        {"a = [1 2]\n",
         {{"1:8 error: expected ',' or ']' after the element, found the integer 2", commas}}},
        {"a = [1,,2]\n", {{"1:8 error: an element is missing before the comma", commas}}},
        {"a = [,1]\n", {{"1:6 error: an element is missing before the comma", commas}}},
        {"a = [1; 2]\n",
         {{"1:7 error: the character ';' is not allowed here",
           "Elements are separated by commas. A comment starts with '#'."}}},
        {"a = [b, 1]\n", {{"1:6 error: 'b' is not a value", quotesB}}},
        {"a = [1, b]\n", {{"1:9 error: 'b' is not a value", quotesB}}},
        {"a = [1, b = 2]\n", {{"1:9 error: 'b' is not a value", quotesB}}},
        {"a = [1}\n", {{"1:7 error: expected ',' or ']' after the element, found '}'", commas}}},
        {"a = [1]]\n",
         {{"1:8 error: ']' closes nothing here",
           "Every ']' needs a '[' before it, and every '}' a '{'."}}},
        {"a = [1", {at("1:7", openAtEnd)}},
        {"a = [1, 2\nb = 3\nc = []\n", {at("2:1", openBeforeB), at("3:6", emptyArray)}},
        {"a = [\n1,\n2\n[b]\nc = {}\n",
         {{"4:1 error: the array opened on line 1 is not closed before '['", arrayEnd},
          at("5:6", emptyTable)}},
        {"a = [\n", {at("2:1", openAtEnd)}},
        {"a = [1, {b = 2]\n",
         {{"1:15 error: expected ',' or '}' after the pair, found ']'", tableForm}}},
        {"a = [1 = 2]\n",
         {{"1:8 error: expected ',' or ']' after the element, found '='", commas}}},
        {"a = [[1, 2\nb = 1\n", {at("2:1", openBeforeB)}},
    });
}

TEST(DiagnosisOfArrays, inlineTables)
{
    expectSaid({
        {"a = {b = 1,}\n",
         {{"1:12 error: expected a pair after the comma, found '}'",
           "An inline table has no comma before its '}'."}}},
        {"a = {b = 1\n}\nc = []\n", {at("1:11", openTable), at("3:6", emptyArray)}},
        {"a = {\nb = 1,\nc = 2\n}\nd = []\n", {at("1:6", openTable), at("5:6", emptyArray)}},
        {"a = {b = 1,\nc = 2}\n", {at("1:12", openTable)}},
        {"a = {b = 1 c = 2}\n",
         {{"1:12 error: expected ',' or '}' after the pair, found the word 'c'", tableForm}}},
        {"a = {b}\n", {{"1:7 error: expected '=' after the key, found '}'", tableForm}}},
        {"a = {b = }\n",
         {{"1:10 error: expected a value, found '}'",
           "Strings need quotes. Arrays are written [1, 2], inline tables {a = 1}."}}},
        {"a = {= 1}\n", {{"1:6 error: expected a key in the inline table, found '='", tableForm}}},
        {"a = {b: 1}\n",
         {{"1:7 error: expected '=' after the key, found ':'",
           "Write '=' between a key and its value: key = value."}}},
        {"a = {b = 1", {at("1:11", openTable)}},
        {"a = {b = 1]\n",
         {{"1:11 error: expected ',' or '}' after the pair, found ']'", tableForm}}},
        {"a = {\"\"\"b\"\"\" = 1}\n",
         {{"1:6 error: expected a key in the inline table, found the multi-line string "
           "\"\"\"b\"\"\"",
           "A quoted key is written on one line, with \" or '."}}},
        {"a = {b = 1\nc = 2\n[d]\ne = []\n", {at("1:11", openTable), at("4:6", emptyArray)}},
        {"a = {,}\n", {{"1:6 error: expected a key in the inline table, found ','", tableForm}}},
        {"a = {b.=1}\n",
         {{"1:8 error: expected a key after the dot, found '='",
           "A dotted key is written a.b.c."}}},
    });
}
