// What is told of tokens that do not fit.
#include "diagnosis/told.h"

#include <gtest/gtest.h>

using namespace test;

TEST(SyntaxWords, headers)
{
    expectTold({
        {"[my section",
         {{"1:5-1:12", "unclosed-header",
           "expected ']' after the key of the header, found the word 'section'",
           "A header is written [key], on one line."}}},
        {"[my section\n]\n",
         {{"1:5-1:12", "unclosed-header",
           "expected ']' after the key of the header, found the word 'section'",
           "A header is written [key], on one line."}}},
        {"[my 'section']\n",
         {{"1:5-1:14", "unclosed-header",
           "expected ']' after the key of the header, found the literal string 'section'",
           "A header is written [key], on one line."}}},
        {"[my sec.tion]\n",
         {{"1:5-1:8", "unclosed-header",
           "expected ']' after the key of the header, found the word 'sec'",
           "A header is written [key], on one line."}}},
        {"[my 1]\n",
         {{"1:5-1:6", "unclosed-header",
           "expected ']' after the key of the header, found the integer 1",
           "A header is written [key], on one line."}}},
        {"[x abcdefghijklmnopqrstuvwxyz0123456789abcdefghijklmnopqrstuvwxyz0123456789]\n",
         {{"1:4-1:76", "unclosed-header",
           "expected ']' after the key of the header, found the word "
           "'abcdefghijklmnopqrstuvwxyz0123...'",
           "A header is written [key], on one line."}}},
    });
}

TEST(SyntaxWords, inlineTables)
{
    expectTold({
        {"a = {b\n= 1}\n",
         {{"1:7-1:7",
           "unclosed-inline-table",
           "the inline table is not closed on its line",
           "An inline table must be on one line, up to its '}'. For a longer table, write a "
           "header, [key].",
           {"1:5 the inline table was opened here"}}}},
        {"a = {b",
         {{"1:7-1:7",
           "unclosed-inline-table",
           "the inline table is not closed on its line",
           "An inline table must be on one line, up to its '}'. For a longer table, write a "
           "header, [key].",
           {"1:5 the inline table was opened here"}}}},
        {"a = {b 1}\n",
         {{"1:8-1:9", "missing-equals", "expected '=' after the key, found the integer 1",
           "In an inline table, pairs are written {a = 1, b = 2}."}}},
        {"a = {b c = 1}\n",
         {{"1:8-1:9", "missing-equals", "expected '=' after the key, found the word 'c'",
           "In an inline table, pairs are written {a = 1, b = 2}."}}},
        {"a = {---\n}\n",
         {{"1:9-1:9",
           "unclosed-inline-table",
           "the inline table is not closed on its line",
           "An inline table must be on one line, up to its '}'. For a longer table, write a "
           "header, [key].",
           {"1:5 the inline table was opened here"}}}},
        {"a = {b = 1,\nc = 2}\n",
         {{"1:12-1:12",
           "unclosed-inline-table",
           "the inline table is not closed on its line",
           "An inline table must be on one line, up to its '}'. For a longer table, write a "
           "header, [key].",
           {"1:5 the inline table was opened here"}}}},
    });
}

TEST(SyntaxWords, kindsOfTokens)
{
    expectTold({
        {"a 0x1F\n",
         {{"1:3-1:7", "missing-equals",
           "expected '=' after the key, found the hexadecimal integer 0x1F",
           "Write '=' between a key and its value: a = 0x1F."}}},
        {"a 0o7\n",
         {{"1:3-1:6", "missing-equals", "expected '=' after the key, found the octal integer 0o7",
           "Write '=' between a key and its value: a = 0o7."}}},
        {"a 0b1\n",
         {{"1:3-1:6", "missing-equals", "expected '=' after the key, found the binary integer 0b1",
           "Write '=' between a key and its value: a = 0b1."}}},
        {"a 1.5\n",
         {{"1:3-1:6", "missing-equals", "expected '=' after the key, found the float 1.5",
           "Write '=' between a key and its value: a = 1.5."}}},
        {"a nan\n",
         {{"1:3-1:6", "missing-equals", "expected '=' after the key, found the float nan",
           "Write '=' between a key and its value: a = nan."}}},
        {"a 2024-01-31T07:32:00\n",
         {{"1:3-1:22", "missing-equals",
           "expected '=' after the key, found the local date-time 2024-01-31T07:32:00",
           "Write '=' between a key and its value: a = 2024-01-31T07:32:00."}}},
        {"a 2024-01-31T07:32:00Z\n",
         {{"1:3-1:23", "missing-equals",
           "expected '=' after the key, found the offset date-time 2024-01-31T07:32:00Z",
           "Write '=' between a key and its value: a = 2024-01-31T07:32:00Z."}}},
        {"a 07:32:00\n",
         {{"1:3-1:11", "missing-equals", "expected '=' after the key, found the time 07:32:00",
           "Write '=' between a key and its value: a = 07:32:00."}}},
        {"a '''x'''\n",
         {{"1:3-1:10", "missing-equals",
           "expected '=' after the key, found the multi-line literal string '''x'''",
           "Write '=' between a key and its value: a = '''x'''."}}},
        {"a \"\"\"x\ny\"\"\"\n",
         {{"1:3-2:5", "missing-equals",
           "expected '=' after the key, found the multi-line string \"\"\"x",
           "Write '=' between a key and its value: key = value."}}},
        {"a = 1 {\n",
         {{"1:7-1:8", "extra-text", "expected the end of the line, found '{'",
           "Put each pair and each header on its own line. Strings need quotes."}}},
        {"a = 1 [\n",
         {{"1:7-1:8", "extra-text", "expected the end of the line, found '['",
           "Put each pair and each header on its own line. Strings need quotes."}}},
        {"a = 1 .b\n",
         {{"1:7-1:8", "extra-text", "expected the end of the line, found '.'",
           "Put each pair and each header on its own line. Strings need quotes."}}},
    });
}
