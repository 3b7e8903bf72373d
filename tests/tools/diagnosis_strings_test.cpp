// What the tool says about strings, characters and bytes.
#include "tools/explained.h"

#include <gtest/gtest.h>

using namespace std::string_literals;
using test::expectSaid;

namespace
{

// Hints that are given more than once.
const std::string highCharacter =
    "Emoji and other characters above U+FFFF can stand nowhere, not even in comments. In a string "
    "with double quotes write \\U0001F600 instead.";
const std::string escapes = "The escapes are \\\" \\' \\\\ \\b \\f \\n \\r \\t \\uXXXX "
                            "\\UXXXXXXXX. In 'literal strings' a backslash is only a backslash.";
const std::string emptyArray = "An array holds one element or more. Leave the key out instead.";
const std::string fourDigits = "Four hexadecimal digits follow \\u, as in \\u00E9. In 'literal "
                               "strings' a backslash is only a backslash.";
const std::string unclosed = "A string ends on its line with \". One that goes over several lines "
                             "begins and ends with \"\"\".";
const std::string unclosedLiteral = "A literal string ends on its line with '. One with an "
                                    "apostrophe in it has double quotes around it.";
const std::string quoteInString = "A quote in a string is written \\\".";
const std::string bareKeys =
    "Bare keys are made of A-Z a-z 0-9 _ and -. Other keys, and all strings, have quotes.";
const std::string controlCharacters =
    "Control characters other than tabs and line breaks stand in strings and comments only.";
const std::string malformed =
    "It may be read as one character together with what follows it. Save the file as UTF-8.";
const std::string readsAsEnd = "They read as the end of the file. Save the file as UTF-8.";

} // namespace

TEST(DiagnosisOfStrings, charactersAboveTheBasicPlane)
{
    expectSaid({
        {"a = \"\xf0\x9f\x98\x80\"\n",
         false,
         {{"1:6 error: the character U+1F600 is above U+FFFF", highCharacter}}},
        {"a = '\xf0\x9f\x98\x80'\n",
         false,
         {{"1:6 error: the character U+1F600 is above U+FFFF", highCharacter}}},
        {"# \xf0\x9f\x98\x80 b\nc = 1\n",
         false,
         {{"1:3 error: the character U+1F600 is above U+FFFF", highCharacter}}},
        {"a = \"\"\"\n\xf0\x9f\x98\x80\"\"\"\n",
         false,
         {{"2:1 error: the character U+1F600 is above U+FFFF", highCharacter}}},
        {"\xf0\x9f\x98\x80 = 1\n",
         false,
         {{"1:1 error: the character U+1F600 is above U+FFFF", highCharacter}}},
        {"\"\xf0\x9f\x98\x80\" = 1\n",
         false,
         {{"1:2 error: the character U+1F600 is above U+FFFF", highCharacter}}},
        {"a = 1 # x \xf0\x9f\x98\x80\n",
         false,
         {{"1:11 error: the character U+1F600 is above U+FFFF", highCharacter}}},
    });
}

TEST(DiagnosisOfStrings, escapes)
{
    expectSaid({
        {"a = \"\\e\"\n",
         false,
         {{"1:6 error: the escape \\e does not exist",
           "The escape character is written \\u001B. A backslash itself is written \\\\."}}},
        {"a = \"\\x41\"\n",
         false,
         {{"1:6 error: the escape \\x does not exist",
           "Write \\u0041 instead of \\x41. A backslash itself is written \\\\."}}},
        {"a = \"\\q\"\nb = []\n",
         false,
         {{"1:6 error: the escape \\q does not exist", escapes},
          {"2:6 error: the array is empty", emptyArray}}},
        {"a = \"C:\\dir\"\n", false, {{"1:8 error: the escape \\d does not exist", escapes}}},
        {"a = \"\\u12\"\n", false, {{"1:6 error: the escape \\u has too few digits", fourDigits}}},
        {"a = \"\\U0001F60\"\n",
         false,
         {{"1:6 error: the escape \\U has too few digits",
           "Eight hexadecimal digits follow \\U, as in \\U000000E9. In 'literal strings' a "
           "backslash is only a backslash."}}},
        {"a = \"\\ud8g0\"\n",
         false,
         {{"1:6 error: the escape \\u has too few digits", fourDigits}}},
        {"a = \"\"\"\\ \n\"\"\"\nb = []\n",
         false,
         {{"1:8 error: a blank follows the backslash",
           "A backslash that joins lines is the last character of its line. A backslash itself is "
           "written \\\\. What follows is not checked before this string is right."}}},
        {"a = \"\"\"\\x41\"\"\"\n",
         false,
         {{"1:8 error: the escape \\x does not exist",
           "Write \\u0041 instead of \\x41. A backslash itself is written \\\\. What follows is "
           "not checked before this string is right."}}},
        {"a = \"\"\"\\u12\"\"\"\n",
         false,
         {{"1:8 error: the escape \\u has too few digits",
           "Four hexadecimal digits follow \\u, as in \\u00E9. In 'literal strings' a backslash is "
           "only a backslash. What follows is not checked before this string is right."}}},
        {"a = \"\"\"\\\rb\"\"\"\n",
         false,
         {{"1:9 error: a carriage return without a line feed after it",
           "Lines end with a line feed (LF), or with a carriage return and a line feed (CR LF). "
           "What follows is not checked before this string is right."}}},
        {"\"\\q\" = 1\n", false, {{"1:2 error: the escape \\q does not exist", escapes}}},
        {"a = \"\\\xc3\xa9\"\n",
         false,
         {{"1:6 error: the escape \\\xc3\xa9 does not exist", escapes}}},
        {"a = \"x\\\n",
         false,
         {{"1:7 error: nothing to escape follows the backslash",
           "A backslash joins lines only in strings with \"\"\" around them. A backslash itself is "
           "written \\\\."}}},
    });
}

TEST(DiagnosisOfStrings, stringsThatAreNotClosed)
{
    expectSaid({
        {"a = \"abc\nb = 2\n",
         false,
         {{"1:5 error: the string is not closed on its line", unclosed}}},
        {"a = 'abc\nb = 2\n",
         false,
         {{"1:5 error: the string is not closed on its line", unclosedLiteral}}},
        {"a = \"\n", false, {{"1:5 error: the string is not closed on its line", unclosed}}},
        {"a = '", false, {{"1:5 error: the string is not closed on its line", unclosedLiteral}}},
        {"a = \"\"\"abc\nb = 1\n",
         false,
         {{"1:5 error: the string that begins here is never closed",
           "It ends with \"\"\", as it begins."}}},
        {"a = '''abc''\n",
         false,
         {{"1:5 error: the string that begins here is never closed",
           "It ends with ''', as it begins."}}},
        {"a = 'it's'\nbc = 2\n",
         false,
         {{"1:9 error: expected the end of the line after the string, found the word 's'",
           "A string with an apostrophe in it has double quotes around it."}}},
        {"a = \"say \"hi\"\"\n",
         false,
         {{"1:11 error: expected the end of the line after the string, found the word 'hi'",
           quoteInString}}},
        {"a = \"\"\"b\"\"\"\"\"\"\n",
         false,
         {{"1:13 error: expected the end of the line after the string, found the string \"\"",
           quoteInString}}},
        {"a = \"b\n[c]\nd = []\n",
         false,
         {{"1:5 error: the string is not closed on its line", unclosed},
          {"3:6 error: the array is empty", emptyArray}}},
    });
}

TEST(DiagnosisOfStrings, characters)
{
    expectSaid({
        {"a: 1\n",
         false,
         {{"1:2 error: the character ':' cannot stand here",
           "Between a key and its value stands '='."}}},
        {"a = 1;\n",
         false,
         {{"1:6 error: the character ';' cannot stand here",
           "Each pair has a line of its own, with nothing at its end. A comment begins with "
           "'#'."}}},
        {"a = @b\n", false, {{"1:5 error: the character '@' cannot stand here", bareKeys}}},
        {"// c\n",
         false,
         {{"1:1 error: the character '/' cannot stand here",
           "A comment begins with '#'. Strings have quotes."}}},
        {"a = $b\n", false, {{"1:5 error: the character '$' cannot stand here", bareKeys}}},
        {"\xc3\xa9 = 1\n",
         false,
         {{"1:1 error: the character '\xc3\xa9' (U+00E9) cannot stand here", bareKeys}}},
        {"a\xc2\xa0= 1\n",
         false,
         {{"1:2 error: the character U+00A0 cannot stand here",
           "It looks like a blank. Write a blank or a tab."}}},
        {"a = \xe2\x80\x9c"
         "b\xe2\x80\x9d\n",
         false,
         {{"1:5 error: the character '\xe2\x80\x9c' (U+201C) cannot stand here",
           "It looks like a quote. Strings have \" or ' around them."}}},
        {"a = 1\n\xef\xbb\xbf"
         "b = 2\n",
         false,
         {{"2:1 error: the character U+FEFF cannot stand here",
           "A byte order mark may stand at the begin of the file only."}}},
        {"a = \a\n",
         false,
         {{"1:5 error: the character U+0007 cannot stand here", controlCharacters}}},
        {"a = \x1b[31m\n",
         false,
         {{"1:5 error: the character U+001B cannot stand here", controlCharacters}}},
        {"a = (1)\n",
         false,
         {{"1:5 error: the character '(' cannot stand here",
           "Arrays are written [1, 2], inline tables {a = 1}. Strings have quotes."}}},
        {"a = \\b\n",
         false,
         {{"1:5 error: the character '\\' cannot stand here",
           "A backslash stands in strings only."}}},
        {"\x00\n"s,
         false,
         {{"1:1 error: the character U+0000 cannot stand here", controlCharacters}}},
        {"\xe2\x80\xae"
         "a = 1\n",
         false,
         {{"1:1 error: the character U+202E cannot stand here", bareKeys}}},
    });
}

TEST(DiagnosisOfStrings, bytesThatAreNotUtf8)
{
    expectSaid({
        {"a = \"\xe9t\xe9\"\n", true, {{"1:6 warning: the byte E9 is not UTF-8", malformed}}},
        {"# \xe9\nb = 1\n", true, {{"1:3 warning: the byte E9 is not UTF-8", malformed}}},
        {"a = 1\n\xc1?\nb =\n",
         true,
         {{"2:1 warning: the file is not read beyond these bytes, which are not UTF-8",
           readsAsEnd}}},
        {"a = 1\n\xc3",
         true,
         {{"2:1 warning: the file is not read beyond these bytes, which are not UTF-8",
           readsAsEnd}}},
        {"a = 1\xc3",
         false,
         {{"1:6 error: the line break at the end of the file is missing",
           "Every pair and every header ends with a line break, the last one too."},
          {"1:6 warning: the file is not read beyond these bytes, which are not UTF-8",
           readsAsEnd}}},
        {"\x80 = 1\n", false, {{"1:1 error: the byte 80 is not UTF-8", malformed}}},
        {"a = \"\xc1?\"\n",
         false,
         {{"1:6 error: the byte C1 is not UTF-8", malformed},
          {"1:6 warning: the file is not read beyond these bytes, which are not UTF-8",
           readsAsEnd}}},
        {"a = \xe9",
         false,
         {{"1:4 error: expected a value, found the end of the file",
           "The value begins on the line of its key."},
          {"1:5 warning: the file is not read beyond these bytes, which are not UTF-8",
           readsAsEnd}}},
        {"# caf\xe9\n",
         true,
         {{"1:6 warning: the file is not read beyond these bytes, which are not UTF-8",
           readsAsEnd}}},
        {"a = \"\xed\xa0\x80\"\n", true, {{"1:6 warning: the byte ED is not UTF-8", malformed}}},
    });
}
