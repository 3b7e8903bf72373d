// What is taken for a value without the quotes that it needs.
#include "diagnosis/told.h"

#include <gtest/gtest.h>

using namespace test;

TEST(Unquoted, keysBeforeIt)
{
    expectTold({
        {"A_b-c.D1\t=\t/x\n",
         {{"1:12-1:14", "unquoted-string", "'/x' is not a value", "Strings need quotes: \"/x\"."}}},
        {"'a' = /x\n",
         {{"1:7-1:9", "unquoted-string", "'/x' is not a value", "Strings need quotes: \"/x\"."}}},
        {"\"a b\" = /x\n",
         {{"1:9-1:11", "unquoted-string", "'/x' is not a value", "Strings need quotes: \"/x\"."}}},
        {"1_ 'b\n",
         {{"1:4-1:6", "unclosed-string", "the string is not closed on its line",
           "Close the string with ' on the same line. Put double quotes around a string with an "
           "apostrophe in it."}}},
        {"1_\n",
         {{"1:3-1:3", "missing-equals", "expected '=' after the key, found the end of the line",
           "A line contains a pair, key = value, or a header, [key]."}}},
        {"@ = /x\n",
         {{"1:1-1:2", "stray-character", "the character '@' is not allowed here",
           "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys need quotes: \"@\"."}}},
    });
}

TEST(Unquoted, commentsAfterIt)
{
    expectTold({
        {"a = foo /* c */\n",
         {{"1:5-1:8", "unquoted-string", "'foo' is not a value", "Strings need quotes: \"foo\"."}}},
        {"a = foo ; c\n",
         {{"1:5-1:8", "unquoted-string", "'foo' is not a value", "Strings need quotes: \"foo\"."}}},
        {"a = foo // c\n",
         {{"1:5-1:8", "unquoted-string", "'foo' is not a value", "Strings need quotes: \"foo\"."}}},
        {"a = /x \n",
         {{"1:5-1:7", "unquoted-string", "'/x' is not a value", "Strings need quotes: \"/x\"."}}},
        {"a = /x #c\n",
         {{"1:5-1:7", "unquoted-string", "'/x' is not a value", "Strings need quotes: \"/x\"."}}},
        {"a = /x#c\n",
         {{"1:5-1:9", "unquoted-string", "'/x#c' is not a value",
           "Strings need quotes: \"/x#c\"."}}},
    });
}

TEST(Unquoted, itsQuotes)
{
    expectTold({
        {"a = C:\\it's\n",
         {{"1:5-1:12", "unquoted-string", "'C:\\it's' is not a value",
           "Strings need quotes: \"C:\\\\it's\"."}}},
        {"a = b\\c\n",
         {{"1:5-1:8", "unquoted-string", "'b\\c' is not a value", "Strings need quotes: 'b\\c'."}}},
        {"a = /aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa\n",
         {{"1:5-1:79", "unquoted-string", "'/aaaaaaaaaaaaaaaaaaaaaaaaaaaaa...' is not a value",
           "Strings need quotes."}}},
        {"a = /x,\n",
         {{"1:5-1:7", "unquoted-string", "'/x' is not a value", "Strings need quotes: \"/x\"."}}},
        {"a = /x;\n",
         {{"1:5-1:7", "unquoted-string", "'/x' is not a value", "Strings need quotes: \"/x\"."}}},
        {"a = [b: 1]\n",
         {{"1:6-1:10", "unquoted-string", "'b: 1' is not a value",
           "Strings need quotes: \"b: 1\"."}}},
        {"a = {b = /x, c = /y}\n",
         {{"1:10-1:12", "unquoted-string", "'/x' is not a value", "Strings need quotes: \"/x\"."}}},
    });
}
