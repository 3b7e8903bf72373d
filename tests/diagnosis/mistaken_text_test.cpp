// What is told of strings, of bytes of other encodings, and of brackets.
#include "diagnosis/told.h"

#include <gtest/gtest.h>

using namespace std::string_literals;
using namespace test;

namespace
{

const std::string inTable =
    "Pairs in an inline table are separated by commas, with none before its '}'.";

} // namespace

TEST(DiagnosisOfMistakenText, strings)
{
    expectTold({
        {"a = \xe2\x80\x9c"
         "b c\xe2\x80\x9d\n",
         {{"1:5-1:6", "stray-character",
           "the character '\xe2\x80\x9c' (U+201C) is not allowed here",
           "It looks like a quote. Write \"b c\" instead."}}},
        {"a = \xe2\x80\x98x\xe2\x80\x99 # c\n",
         {{"1:5-1:6", "stray-character",
           "the character '\xe2\x80\x98' (U+2018) is not allowed here",
           "It looks like a quote. Write \"x\" instead."}}},
        {"a = \xe2\x80\x9cx\n",
         {{"1:5-1:6", "stray-character",
           "the character '\xe2\x80\x9c' (U+201C) is not allowed here",
           "It looks like a quote. Write \" or ' instead."}}},
        {"a = 'it's'\n",
         {{"1:9-1:10", "quote-in-string",
           "expected the end of the line after the string, found the word 's'",
           "Put double quotes around a string with an apostrophe in it: \"it's\"."}}},
        {"a = \"say \"hi\"\"\n",
         {{"1:11-1:13", "quote-in-string",
           "expected the end of the line after the string, found the word 'hi'",
           "A quote in a string is written \\\", or: 'say \"hi\"'."}}},
        {"a = \"C:\\dir\"\n",
         {{"1:8-1:10", "unknown-escape", "unknown escape \\d",
           "In a literal string a backslash is just a backslash: 'C:\\dir'. The valid escapes are "
           "\\\" \\\\ \\b \\f \\n \\r \\t \\uXXXX \\UXXXXXXXX."}}},
        {"a = \"C:\\users\\x\"\n",
         {{"1:8-1:10", "short-escape", "the escape \\u has too few digits",
           "Four hexadecimal digits follow \\u, as in \\u00E9. In a literal string a backslash is "
           "just a backslash: 'C:\\users\\x'."}}},
        {"a = \"\\d\\n\"\n",
         {{"1:6-1:8", "unknown-escape", "unknown escape \\d",
           "In 'literal strings' a backslash is just a backslash. The valid escapes are \\\" "
           "\\\\ \\b \\f \\n \\r \\t \\uXXXX \\UXXXXXXXX."}}},
        {"a = \"\"\"x\nb = 1\n",
         {{"1:5-1:8", "unclosed-string", "the string that starts here is never closed",
           "Close it with \"\"\"."}}},
    });
}

TEST(DiagnosisOfMistakenText, bytesOfOtherEncodings)
{
    expectTold({
        {"name = \"M\xfcller\"\n",
         {{"1:10-1:11", "not-utf8", "the byte FC is not valid UTF-8",
           "It looks like Latin-1 or Windows-1252, where it stands for '\xc3\xbc'. Save the file "
           "as UTF-8."}}},
        {"name = M\xfcller\n",
         {{"1:9-1:10", "not-utf8", "the byte FC is not valid UTF-8",
           "It looks like Latin-1 or Windows-1252, where it stands for '\xc3\xbc'. Save the file "
           "as UTF-8."}}},
        {"name = \"\xfc\"\n",
         {{"1:9-1:10", "not-utf8", "the byte FC is not valid UTF-8",
           "It looks like Latin-1 or Windows-1252, where it stands for '\xc3\xbc'. Save the file "
           "as UTF-8. The rest is not read until then."}}},
        {"name = \"\xfc\"\nb = 1\nc = 2\n",
         {{"1:9-1:10", "not-utf8", "the byte FC is not valid UTF-8",
           "It looks like Latin-1 or Windows-1252, where it stands for '\xc3\xbc'. Save the file "
           "as UTF-8."}}},
        {"name = \"caf\xe9\"\nb = 1\n",
         {{"1:12-1:13", "not-utf8", "the byte E9 is not valid UTF-8",
           "It looks like Latin-1 or Windows-1252, where it stands for '\xc3\xa9'. Save the file "
           "as UTF-8."}}},
        {"a = [1, # caf\xe9\n2]\n",
         {{"1:14-1:15", "not-utf8", "the byte E9 is not valid UTF-8",
           "It looks like Latin-1 or Windows-1252, where it stands for '\xc3\xa9'. Save the file "
           "as UTF-8."}}},
        {"a = [\n1, # caf\xe9\n2, 3,\n{b = 1 2},\n{d = \n",
         {{"2:9-2:10", "not-utf8", "the byte E9 is not valid UTF-8",
           "It looks like Latin-1 or Windows-1252, where it stands for '\xc3\xa9'. Save the file "
           "as UTF-8."}}},
        {"a = \x93x\x94\n",
         {{"1:5-1:6", "not-utf8", "the byte 93 is not valid UTF-8",
           "It looks like Windows-1252. Save the file as UTF-8."}}},
        {"a = \xc3(\n",
         {{"1:5-1:6", "not-utf8", "the byte C3 is not valid UTF-8",
           "It looks like Latin-1 or Windows-1252, where it stands for '\xc3\x83'. Save the file "
           "as UTF-8."}}},
        {"a = \"\xe9tat\" x\n",
         {{"1:6-1:7", "not-utf8", "the byte E9 is not valid UTF-8",
           "It looks like Latin-1 or Windows-1252, where it stands for '\xc3\xa9'. Save the file "
           "as UTF-8."},
          {"1:12-1:13", "extra-text", "expected the end of the line, found the word 'x'",
           "Put each pair and each header on its own line. Strings need quotes."}}},
    });
}

TEST(DiagnosisOfMistakenText, utf16)
{
    expectTold({
        {"\xff\xfe"
         "a\x00 \x00=\x00 \x00"
         "1\x00\n\x00"
         "b\x00 \x00=\x00 \x00"
         "2\x00\n\x00"s,
         {{"1:1-1:2", "utf-16", "the file is encoded in UTF-16",
           "TOML is UTF-8. Save the file as UTF-8. The rest is not checked until then."}}},
        {"\xfe\xff\x00"
         "a\x00 \x00=\x00 \x00"
         "1\x00\n"s,
         {{"1:1-1:2", "utf-16", "the file is encoded in UTF-16",
           "TOML is UTF-8. Save the file as UTF-8. The rest is not checked until then."}}},
        {"a\x00 \x00=\x00 \x00"
         "1\x00\n\x00"
         "b\x00 \x00=\x00 \x00"
         "2\x00\n\x00"
         "c\x00 \x00=\x00 \x00\"\x00x\x00\"\x00\n\x00"s,
         {{"1:2-1:3", "utf-16", "the file is encoded in UTF-16",
           "TOML is UTF-8. Save the file as UTF-8. The rest is not checked until then."}}},
        {"\x00"
         "a\x00 \x00=\x00 \x00"
         "1\x00\n\x00"
         "b\x00 \x00=\x00 \x00"
         "2\x00\n"s,
         {{"1:1-1:2", "utf-16", "the file is encoded in UTF-16",
           "TOML is UTF-8. Save the file as UTF-8. The rest is not checked until then."}}},
    });
}

TEST(DiagnosisOfMistakenText, bracketsThatAreNotClosed)
{
    expectTold({
        {"a = [1, 2\nb = 3\n",
         {{"2:1-2:2",
           "unclosed-array",
           "the array opened on line 1 is not closed before the word 'b'",
           "Close it with ']' after its last element.",
           {"1:5 the array was opened here"}}}},
        {"a = [1, 2\n",
         {{"2:1-2:1",
           "unclosed-array",
           "the array opened on line 1 is not closed before the end of the file",
           "Close it with ']' after its last element.",
           {"1:5 the array was opened here"}}}},
        {"a = [\n[1,\n2\n",
         {{"4:1-4:1",
           "unclosed-array",
           "the array opened on line 2 is not closed before the end of the file",
           "Close it with ']' after its last element.",
           {"2:1 the array was opened here"}}}},
        {"a = {b = 1\n",
         {{"1:11-1:11",
           "unclosed-inline-table",
           "the inline table is not closed on its line",
           "An inline table must be on one line, up to its '}'. For a longer table, write a "
           "header, [key].",
           {"1:5 the inline table was opened here"}}}},
        {"a = [\n1,\n2 3\n]\n",
         {{"3:3-3:4",
           "missing-comma",
           "expected ',' or ']' after the element, found the integer 3",
           "Separate elements with commas: [1, 2].",
           {"1:5 the array was opened here"}}}},
        {"a = [1 2]\n",
         {{"1:8-1:9", "missing-comma", "expected ',' or ']' after the element, found the integer 2",
           "Separate elements with commas: [1, 2]."}}},
        {"a = [1}\n",
         {{"1:7-1:8",
           "missing-comma",
           "expected ',' or ']' after the element, found '}'",
           "Separate elements with commas: [1, 2].",
           {"1:5 the array was opened here"}}}},
        {"a = [\n{b = 1]\n",
         {{"2:7-2:8",
           "missing-comma",
           "expected ',' or '}' after the pair, found ']'",
           "In an inline table, pairs are written {a = 1, b = 2}.",
           {"2:1 the inline table was opened here"}}}},
        {"a = [1; 2]\n",
         {{"1:7-1:8", "stray-character", "the character ';' is not allowed here",
           "Elements are separated by commas. A comment starts with '#'."}}},
        {"a = [\n{b = '{'; c = 2},\n[{d = [1; 2]}]]\n",
         {{"2:9-2:10", "stray-character", "the character ';' is not allowed here", inTable},
          {"3:9-3:10", "stray-character", "the character ';' is not allowed here",
           "Elements are separated by commas. A comment starts with '#'."}}},
        {"a = {b = [1];}\n",
         {{"1:13-1:14", "stray-character", "the character ';' is not allowed here", inTable}}},
        {"a = {b = 1;\n",
         {{"1:11-1:12", "stray-character", "the character ';' is not allowed here", inTable}}},
        {"a = {b = 1}; c = 2\n",
         {{"1:12-1:13", "stray-character", "the character ';' is not allowed here",
           "Put each pair on its own line."}}},
    });
}
