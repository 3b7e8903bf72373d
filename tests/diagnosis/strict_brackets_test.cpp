// Blanks between the brackets of headers.
#include <gtest/gtest.h>

#include "strict_mistakes_of.h"

using namespace test;

TEST(StrictBrackets, ofArraysOfTablesAreNotToBeApart)
{
    expectStrict({
        {"[ [a]]\n", "spaced-brackets at 1  \n"},
        {"[[a] ]\n", "spaced-brackets at 4  \n"},
        {"[\t [a.b]]\n", "spaced-brackets at 1 \t \n"},
        {"[[ a . b ]\t]\n", "spaced-brackets at 10 \t\n"},
        {"a = 1\n\n# c\n [ [\"a]\"] ] # c\n", "spaced-brackets at 13  \n"},
    });
}

TEST(StrictBrackets, mayBeApartFromTheKey)
{
    expectStrict({
        {"[[a]]\n", ""},
        {" [[ a\t. 'b' ]] # c\n", ""},
        {"[ a ]\n", ""},
        {"a = [ [1], [ [2] ] ]\n", ""},
    });
}

TEST(StrictBrackets, apartMakeAnElementNevertheless)
{
    expectStrict({{"[ [a]]\nb = 1\n[[a]]\nb = 2\n", "spaced-brackets at 1  \n"}});
}
