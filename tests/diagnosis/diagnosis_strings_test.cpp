// What the tool says about strings, characters and bytes.
#include "diagnosis/explained.h"

#include <gtest/gtest.h>

using namespace std::string_literals;
using namespace test;

namespace
{

// What is said, and hints that are given, more than once.
const Said highCharacter = {
    "error: the character U+1F600 is above U+FFFF",
    "Emoji and other characters above U+FFFF are not allowed, not even in comments. In a string "
    "with double quotes, write \\U0001F600 instead."};
const std::string escapes = "The valid escapes are \\\" \\\\ \\b \\f \\n \\r \\t \\uXXXX "
                            "\\UXXXXXXXX. In 'literal strings' a backslash is just a backslash.";
const std::string unclosedLiteral = "Close the string with ' on the same line. Put double quotes "
                                    "around a string with an apostrophe in it.";
const std::string quoteInString = "A quote in a string is written \\\".";
const std::string controlCharacters =
    "Of control characters only tabs and line breaks may appear outside of strings and comments.";
const std::string malformed =
    "It may be read as one character together with the bytes after it. Save the file as UTF-8.";
const Said cutOff = {"error: the byte C3 is not valid UTF-8",
                     "It is read as the end of the file. Save the file as UTF-8."};
const Said readsAsEnd = {
    "warning: the file is only read up to these bytes, which are not valid UTF-8",
    "They are read as the end of the file. Save the file as UTF-8."};

} // namespace

TEST(DiagnosisOfStrings, charactersAboveTheBasicPlane)
{
    expectSaid({
        {"a = \"\xf0\x9f\x98\x80\"\n", {at("1:6", highCharacter)}},
        {"a = '\xf0\x9f\x98\x80'\n", {at("1:6", highCharacter)}},
        {"# \xf0\x9f\x98\x80 b\nc = 1\n", {at("1:3", highCharacter)}},
        {"a = \"\"\"\n\xf0\x9f\x98\x80\"\"\"\n", {at("2:1", highCharacter)}},
        {"\xf0\x9f\x98\x80 = 1\n", {at("1:1", highCharacter)}},
        {"\"\xf0\x9f\x98\x80\" = 1\n", {at("1:2", highCharacter)}},
        {"a = 1 # x \xf0\x9f\x98\x80\n", {at("1:11", highCharacter)}},
    });
}

TEST(DiagnosisOfStrings, escapes)
{
    expectSaid({
        {"a = \"\\e\"\n",
         {{"1:6 error: unknown escape \\e",
           "The escape character is written \\u001B. A backslash itself is written \\\\."}}},
        {"a = \"\\x41\"\n",
         {{"1:6 error: unknown escape \\x",
           "Write \\u0041 instead of \\x41. A backslash itself is written \\\\."}}},
        {"a = \"\\q\"\nb = []\n",
         {{"1:6 error: unknown escape \\q",
           "In a literal string a backslash is just a backslash: '\\q'. The valid escapes are \\\" "
           "\\\\ \\b \\f \\n \\r \\t \\uXXXX \\UXXXXXXXX."},
          {"2:6 error: the array is empty",
           "An array needs at least one element. Leave the key out instead."}}},
        {"a = \"C:\\dir\"\n",
         {{"1:8 error: unknown escape \\d",
           "In a literal string a backslash is just a backslash: 'C:\\dir'. The valid escapes are "
           "\\\" \\\\ \\b \\f \\n \\r \\t \\uXXXX \\UXXXXXXXX."}}},
        {"a = \"\\u12\"\n",
         {{"1:6 error: the escape \\u has too few digits",
           "Four hexadecimal digits follow \\u, as in \\u00E9. In a literal string a backslash is "
           "just a backslash: '\\u12'."}}},
        {"a = \"\\U0001F60\"\n",
         {{"1:6 error: the escape \\U has too few digits",
           "Eight hexadecimal digits follow \\U, as in \\U000000E9. In a literal string a "
           "backslash is just a backslash: '\\U0001F60'."}}},
        {"a = \"\\ud8g0\"\n",
         {{"1:6 error: the escape \\u has too few digits",
           "Four hexadecimal digits follow \\u, as in \\u00E9. In a literal string a backslash is "
           "just a backslash: '\\ud8g0'."}}},
        {"a = \"\"\"\\ \n\"\"\"\nb = []\n",
         {{"1:8 error: there is whitespace after the backslash",
           "A backslash that joins lines must be the last character of its line. A backslash "
           "itself is "
           "written \\\\. The rest is not checked until this string is fixed."}}},
        {"a = \"\"\"\\x41\"\"\"\n",
         {{"1:8 error: unknown escape \\x",
           "Write \\u0041 instead of \\x41. A backslash itself is written \\\\. The rest is not "
           "checked until this string is fixed."}}},
        {"a = \"\"\"\\u12\"\"\"\n",
         {{"1:8 error: the escape \\u has too few digits",
           "Four hexadecimal digits follow \\u, as in \\u00E9. In 'literal strings' a backslash is "
           "just a backslash. The rest is not checked until this string is fixed."}}},
        {"a = \"\"\"\\\rb\"\"\"\n",
         {{"1:9 error: a carriage return without a line feed after it",
           "Lines end with a line feed (LF), or with a carriage return and a line feed (CR LF). "
           "The rest is not checked until this string is fixed."}}},
        {"\"\\q\" = 1\n",
         {{"1:2 error: unknown escape \\q",
           "In a literal string a backslash is just a backslash: '\\q'. The valid escapes are \\\" "
           "\\\\ \\b \\f \\n \\r \\t \\uXXXX \\UXXXXXXXX."}}},
        {"a = \"\\\xc3\xa9\"\n",
         {{"1:6 error: unknown escape \\\xc3\xa9",
           "In a literal string a backslash is just a backslash: '\\\xc3\xa9'. The valid escapes "
           "are \\\" \\\\ \\b \\f \\n \\r \\t \\uXXXX \\UXXXXXXXX."}}},
        {"a = \"x\\\n",
         {{"1:7 error: there is nothing to escape after the backslash",
           "A backslash joins lines only in strings with \"\"\" around them. A backslash itself is "
           "written \\\\."}}},
    });
}

TEST(DiagnosisOfStrings, stringsThatAreNotClosed)
{
    expectSaid({
        {"a = \"abc\nb = 2\n", {at("1:5", unclosed)}},
        {"a = 'abc\nb = 2\n",
         {{"1:5 error: the string is not closed on its line", unclosedLiteral}}},
        {"a = \"\n", {at("1:5", unclosed)}},
        {"a = '", {{"1:5 error: the string is not closed on its line", unclosedLiteral}}},
        {"a = \"\"\"abc\nb = 1\n",
         {{"1:5 error: the string that starts here is never closed", "Close it with \"\"\"."}}},
        {"a = '''abc''\n",
         {{"1:5 error: the string that starts here is never closed", "Close it with '''."}}},
        {"a = 'it's'\nbc = 2\n",
         {{"1:9 error: expected the end of the line after the string, found the word 's'",
           "Put double quotes around a string with an apostrophe in it: \"it's\"."}}},
        {"a = \"say \"hi\"\"\n",
         {{"1:11 error: expected the end of the line after the string, found the word 'hi'",
           "A quote in a string is written \\\", or: 'say \"hi\"'."}}},
        {"a = \"\"\"b\"\"\"\"\"\"\n",
         {{"1:13 error: expected the end of the line after the string, found the string \"\"",
           quoteInString}}},
        {"a = \"b\n[c]\nd = []\n", {at("1:5", unclosed), at("3:6", emptyArray)}},
    });
}

TEST(DiagnosisOfStrings, characters)
{
    expectSaid({
        {"a: 1\n",
         {{"1:2 error: expected '=' after the key, found ':'",
           "Write '=' between a key and its value: a = 1."}}},
        {"a = 1;\n",
         {{"1:6 error: the character ';' is not allowed here",
           "Pairs and headers end without a semicolon."}}},
        {"a = @b\n", {{"1:5 error: '@b' is not a value", "Strings need quotes: \"@b\"."}}},
        {"// c\n", {{"1:1 error: a comment starts with '#', not with '//'", "Write # c instead."}}},
        {"a = $b\n", {{"1:5 error: '$b' is not a value", "Strings need quotes: \"$b\"."}}},
        {"\xc3\xa9 = 1\n",
         {{"1:1 error: the character '\xc3\xa9' (U+00E9) is not allowed here",
           "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys need quotes: \"\xc3\xa9\"."}}},
        {"a\xc2\xa0= 1\n",
         {{"1:2 error: the character U+00A0 is not allowed here",
           "It looks like a space. Write a space or a tab."}}},
        {"a = \xe2\x80\x9c"
         "b\xe2\x80\x9d\n",
         {{"1:5 error: the character '\xe2\x80\x9c' (U+201C) is not allowed here",
           "It looks like a quote. Write \"b\" instead."}}},
        {"a = 1\n\xef\xbb\xbf"
         "b = 2\n",
         {{"2:1 error: the character U+FEFF is not allowed here",
           "A byte order mark may only appear at the start of the file."}}},
        {"a = \a\n", {{"1:5 error: the character U+0007 is not allowed here", controlCharacters}}},
        {"a = \x1b[31m\n",
         {{"1:5 error: the character U+001B is not allowed here", controlCharacters}}},
        {"a = (1)\n",
         {{"1:5 error: the character '(' is not allowed here",
           "Arrays are written [1, 2], inline tables {a = 1}. Strings need quotes."}}},
        {"a = \\b\n", {{"1:5 error: '\\b' is not a value", "Strings need quotes: '\\b'."}}},
        {"\x00\n"s, {{"1:1 error: the character U+0000 is not allowed here", controlCharacters}}},
        {"\xe2\x80\xae"
         "a = 1\n",
         {{"1:1 error: the character U+202E is not allowed here", bareKeys}}},
    });
}

TEST(DiagnosisOfStrings, bytesThatAreNotUtf8)
{
    expectSaid({
        {"a = \"\xe9t\xe9\"\n",
         {{"1:6 warning: the byte E9 is not valid UTF-8",
           "It looks like Latin-1 or Windows-1252, where it stands for '\xc3\xa9'. Save the file "
           "as UTF-8."}}},
        {"# \xe9\nb = 1\n",
         {{"1:3 warning: the byte E9 is not valid UTF-8",
           "It looks like Latin-1 or Windows-1252, where it stands for '\xc3\xa9'. Save the file "
           "as UTF-8."}}},
        {"a = 1\n\xc1?\nb =\n", {at("2:1", readsAsEnd)}},
        {"a = 1\n\xc3", {at("2:1", readsAsEnd)}},
        {"a = 1\xc3", {at("1:6", cutOff)}},
        {"a = 1 # c\xc3", {at("1:10", cutOff)}},
        {"a = 1\xc1?\nb =\n",
         {{"1:6 error: the byte C1 is not valid UTF-8",
           "It looks like Latin-1 or Windows-1252, where it stands for '\xc3\x81'. Save the file "
           "as UTF-8. The rest is not read until then."}}},
        {"\x80 = 1\n",
         {{"1:1 error: the byte 80 is not valid UTF-8",
           "It looks like Windows-1252. Save the file as UTF-8."}}},
        {"a = \"\xc1?\"\n",
         {{"1:6 error: the byte C1 is not valid UTF-8",
           "It looks like Latin-1 or Windows-1252, where it stands for '\xc3\x81'. Save the file "
           "as UTF-8. The rest is not read until then."}}},
        {"a = \xe9",
         {{"1:5 error: the byte E9 is not valid UTF-8",
           "It is read as the end of the file. Save the file as UTF-8."}}},
        {"# caf\xe9\n", {at("1:6", readsAsEnd)}},
        {"a = \"\xed\xa0\x80\"\n", {{"1:6 warning: the byte ED is not valid UTF-8", malformed}}},
    });
}
