// What is told of characters that are not allowed where they are.
#include "diagnosis/told.h"

#include <gtest/gtest.h>

using namespace test;

TEST(CharacterWords, marks)
{
    expectTold({
        {"a ! b\n",
         {{"1:3-1:4", "stray-character", "the character '!' is not allowed here",
           "A comment starts with '#'. Strings need quotes."}}},
        {"a % b\n",
         {{"1:3-1:4", "stray-character", "the character '%' is not allowed here",
           "A comment starts with '#'. Strings need quotes."}}},
        {"\\x = 1\n",
         {{"1:1-1:2", "stray-character", "the character '\\' is not allowed here",
           "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys need quotes: '\\x'."}}},
        {"a \\ b\n",
         {{"1:3-1:4", "stray-character", "the character '\\' is not allowed here",
           "A backslash may only appear in strings and comments."}}},
        {"(a)\n",
         {{"1:1-1:2", "stray-character", "the character '(' is not allowed here",
           "Arrays are written [1, 2], inline tables {a = 1}. Strings need quotes."}}},
        {"\x7f"
         "a = 1\n",
         {{"1:1-1:2", "stray-character", "the character U+007F is not allowed here",
           "Of control characters only tabs and line breaks may appear outside of strings "
           "and comments."}}},
        {"\x1f"
         "a = 1\n",
         {{"1:1-1:2", "stray-character", "the character U+001F is not allowed here",
           "Of control characters only tabs and line breaks may appear outside of strings "
           "and comments."}}},
        {"a \xc2\x85 = 1\n",
         {{"1:3-1:4", "stray-character", "the character U+0085 is not allowed here",
           "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys, and all strings, need quotes."}}},
        {"a\xc2\xa0= 1\n",
         {{"1:2-1:3", "stray-character", "the character U+00A0 is not allowed here",
           "It looks like a space. Write a space or a tab."}}},
        {"a\xef\xbb\xbf = 1\n",
         {{"1:2-1:3", "stray-character", "the character U+FEFF is not allowed here",
           "A byte order mark may only appear at the start of the file."}}},
        {"@",
         {{"1:1-1:2", "stray-character", "the character '@' is not allowed here",
           "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys, and all strings, need quotes."}}},
        {"a.@b = 1\n",
         {{"1:3-1:4", "stray-character", "the character '@' is not allowed here",
           "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys, and all strings, need quotes."}}},
        {"[[a@b]]\n",
         {{"1:4-1:5", "stray-character", "the character '@' is not allowed here",
           "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys need quotes: \"a@b\"."}}},
        {"[a]\n[b@c]\n",
         {{"2:3-2:4", "stray-character", "the character '@' is not allowed here",
           "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys need quotes: \"b@c\"."}}},
        {"a = [[@b]]\n",
         {{"1:7-1:9", "unquoted-string", "'@b' is not a value", "Strings need quotes: \"@b\"."}}},
    });
}

TEST(CharacterWords, quotes)
{
    expectTold({
        {"a = \xe2\x80\x9c"
         "b\n",
         {{"1:5-1:6", "stray-character",
           "the character '\xe2\x80\x9c' (U+201C) is not allowed here",
           "It looks like a quote. Write \" or ' instead."}}},
        {"a = \xe2\x80\x9ex\xe2\x80\x9c\n",
         {{"1:5-1:6", "stray-character",
           "the character '\xe2\x80\x9e' (U+201E) is not allowed here",
           "It looks like a quote. Write \"x\" instead."}}},
        {"a = \xe2\x80\x9bx\xe2\x80\x9b\n",
         {{"1:5-1:6", "stray-character",
           "the character '\xe2\x80\x9b' (U+201B) is not allowed here",
           "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys, and all strings, need quotes."}}},
        {"a = \xe2\x80\x9c\xe2\x80\x9d\n",
         {{"1:5-1:6", "stray-character",
           "the character '\xe2\x80\x9c' (U+201C) is not allowed here",
           "It looks like a quote. Write \" or ' instead."}}},
        {"\xe2\x80\x98"
         "a\xe2\x80\x99 = 1\n",
         {{"1:1-1:2", "stray-character",
           "the character '\xe2\x80\x98' (U+2018) is not allowed here",
           "It looks like a quote. Write \"a\" instead."}}},
    });
}
