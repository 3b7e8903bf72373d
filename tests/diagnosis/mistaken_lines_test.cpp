// What is told of lines that are written as elsewhere, or by accident.
#include "diagnosis/told.h"

#include <gtest/gtest.h>

using namespace test;

TEST(DiagnosisOfMistakenLines, mergeConflicts)
{
    expectTold({
        {"<<<<<<< HEAD\na = 1\n=======\na = 2\n>>>>>>> branch\n",
         {{"1:1-1:13", "merge-conflict", "this line marks a merge conflict",
           "Choose between the lines from '<<<<<<<' to '>>>>>>>', and remove the markers."},
          {"3:1-3:8", "merge-conflict", "this line marks a merge conflict",
           "Choose between the lines from '<<<<<<<' to '>>>>>>>', and remove the markers."},
          {"5:1-5:15", "merge-conflict", "this line marks a merge conflict",
           "Choose between the lines from '<<<<<<<' to '>>>>>>>', and remove the markers."}}},
        {"a = 1\n||||||| base\r\n",
         {{"2:1-2:13", "merge-conflict", "this line marks a merge conflict",
           "Choose between the lines from '<<<<<<<' to '>>>>>>>', and remove the markers."}}},
        {"a = [\n1,\n<<<<<<< HEAD\n2]\n",
         {{"3:1-3:13", "merge-conflict", "this line marks a merge conflict",
           "Choose between the lines from '<<<<<<<' to '>>>>>>>', and remove the markers."}}},
        {"========\n",
         {{"1:1-1:2", "missing-key", "the key before '=' is missing",
           "A line contains a pair, key = value, or a header, [key]."}}},
        {" <<<<<<< HEAD\n",
         {{"1:2-1:3", "stray-character", "the character '<' is not allowed here",
           "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys, and all strings, need quotes."}}},
        {"<<<<<<<< HEAD\n",
         {{"1:1-1:2", "stray-character", "the character '<' is not allowed here",
           "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys, and all strings, need quotes."}}},
    });
}

TEST(DiagnosisOfMistakenLines, commentsOfOtherLanguages)
{
    expectTold({
        {"// c\n",
         {{"1:1-1:5", "foreign-comment", "a comment starts with '#', not with '//'",
           "Write # c instead."}}},
        {"a = 1 // c\n",
         {{"1:7-1:11", "foreign-comment", "a comment starts with '#', not with '//'",
           "Write # c instead."}}},
        {"; c\n",
         {{"1:1-1:4", "foreign-comment", "a comment starts with '#', not with ';'",
           "Write # c instead."}}},
        {"a = \"x\" ; c\n",
         {{"1:9-1:12", "foreign-comment", "a comment starts with '#', not with ';'",
           "Write # c instead."}}},
        {"/* c */\n",
         {{"1:1-1:8", "foreign-comment", "a comment starts with '#', not with '/*'",
           "Write # c instead."}}},
        {"-- c\n",
         {{"1:4-1:5", "foreign-comment", "expected '=' after the key, found the word 'c'",
           "A comment starts with '#'."}}},
    });
}

TEST(DiagnosisOfMistakenLines, yamlAndJson)
{
    expectTold({
        {"key: value\n",
         {{"1:4-1:5", "missing-equals", "expected '=' after the key, found ':'",
           "Write '=' between a key and its value: key = \"value\"."}}},
        {"key : 1\n",
         {{"1:5-1:6", "missing-equals", "expected '=' after the key, found ':'",
           "Write '=' between a key and its value: key = 1."}}},
        {"key:\n",
         {{"1:4-1:5", "missing-equals", "expected '=' after the key, found ':'",
           "Write '=' between a key and its value: key = value. A table starts with a header, "
           "[key]."}}},
        {"- a\n",
         {{"1:3-1:4", "missing-equals", "expected '=' after the key, found the word 'a'",
           "It looks like YAML. An array is written key = [\"a\", \"b\"]."}}},
        {"---\na = 1\n",
         {{"1:4-1:4", "missing-equals", "expected '=' after the key, found the end of the line",
           "It looks like YAML. An array is written key = [\"a\", \"b\"]."}}},
        {"{\n  \"a\": 1,\n  \"b\": [1, 2]\n}\n",
         {{"1:1-1:2", "missing-key", "expected a key or a header, found '{'",
           "It looks like JSON. There are no braces around a document, and each line contains one "
           "pair, key = value."},
          {"2:6-2:7", "missing-equals", "expected '=' after the key, found ':'",
           "Write '=' between a key and its value: \"a\" = 1."},
          {"3:6-3:7", "missing-equals", "expected '=' after the key, found ':'",
           "Write '=' between a key and its value: key = value."}}},
        {"\"name\": \"my app\",\n",
         {{"1:7-1:8", "missing-equals", "expected '=' after the key, found ':'",
           "Write '=' between a key and its value: \"name\" = \"my app\"."}}},
    });
}

TEST(DiagnosisOfMistakenLines, pairs)
{
    expectTold({
        {"key value\n",
         {{"1:5-1:10", "missing-equals", "expected '=' after the key, found the word 'value'",
           "Write '=' between a key and its value: key = \"value\"."}}},
        {"key 1\n",
         {{"1:5-1:6", "missing-equals", "expected '=' after the key, found the integer 1",
           "Write '=' between a key and its value: key = 1."}}},
        {"my key = 1\n",
         {{"1:4-1:7", "unquoted-key", "expected '=' after the key, found the word 'key'",
           "A key of several words needs quotes: \"my key\" = 1."}}},
        {"export A=1\n",
         {{"1:8-1:9", "unquoted-key", "expected '=' after the key, found the word 'A'",
           "A pair is written key = value. A key of several words needs quotes."}}},
        {"a += 1\n",
         {{"1:3-1:4", "invalid-number", "expected a number after '+'",
           "A pair is written key = value."}}},
        {"a := 1\n",
         {{"1:3-1:4", "missing-equals", "expected '=' after the key, found ':'",
           "Write '=' between a key and its value: key = value."}}},
        {"a => 1\n",
         {{"1:4-1:5", "stray-character", "the character '>' is not allowed here",
           "A pair is written key = value."}}},
        {"a = 1;\n",
         {{"1:6-1:7", "stray-character", "the character ';' is not allowed here",
           "Pairs and headers end without a semicolon."}}},
        {"a=1;b=2\n",
         {{"1:4-1:5", "stray-character", "the character ';' is not allowed here",
           "Put each pair on its own line."}}},
        {"a = 1,\n",
         {{"1:6-1:7", "trailing-comma", "expected the end of the line, found ','",
           "Pairs and headers end without a comma."}}},
        {"a = \"x\",\n",
         {{"1:8-1:9", "trailing-comma", "expected the end of the line, found ','",
           "Pairs and headers end without a comma."}}},
        {"a = \"x\" + \"y\"\n",
         {{"1:9-1:10", "extra-text", "expected the end of the line, found '+'",
           "Strings cannot be joined. Write them as one."}}},
        {"a = true b\n",
         {{"1:10-1:11", "extra-text", "expected the end of the line, found the word 'b'",
           "Put each pair and each header on its own line. Strings need quotes: \"true b\"."}}},
    });
}

TEST(DiagnosisOfMistakenLines, keys)
{
    expectTold({
        {"[my section]\n",
         {{"1:5-1:12", "unquoted-key",
           "expected ']' after the key of the header, found the word 'section'",
           "A key of several words needs quotes: [\"my section\"]."}}},
        {"[[my section]]\n",
         {{"1:6-1:13", "unquoted-key",
           "expected ']' after the key of the header, found the word 'section'",
           "A key of several words needs quotes: [[\"my section\"]]."}}},
        {"[a/b]\n",
         {{"1:3-1:4", "stray-character", "the character '/' is not allowed here",
           "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys need quotes: \"a/b\"."}}},
        {"a/b = 1\n",
         {{"1:2-1:3", "stray-character", "the character '/' is not allowed here",
           "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys need quotes: \"a/b\"."}}},
        {"a = {b/c = 1}\n",
         {{"1:7-1:8", "stray-character", "the character '/' is not allowed here",
           "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys need quotes: \"b/c\"."}}},
        {"\xc3\xa9 = 1\n",
         {{"1:1-1:2", "stray-character", "the character '\xc3\xa9' (U+00E9) is not allowed here",
           "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys need quotes: \"\xc3\xa9\"."}}},
        {"1.5 = 1\n",
         {{"1:1-1:4", "unquoted-key", "expected a key, found the float 1.5",
           "It is read as a value. Quote it to use it as a key: \"1.5\"."}}},
        {"[a\nb = 1\n",
         {{"1:3-1:3", "unclosed-header",
           "expected ']' after the key of the header, found the end of the line",
           "A header is written [key], on one line."}}},
        {"[a]]\n",
         {{"1:4-1:5", "stray-bracket", "']' closes nothing here",
           "Every ']' needs a '[' before it, and every '}' a '{'."}}},
    });
}
