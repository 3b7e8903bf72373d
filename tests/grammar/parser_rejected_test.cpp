// Lines, headers and keys that the parser rejects.
#include <gtest/gtest.h>

#include "support/parsing.h"

using namespace test;

TEST(ParserRejected, linesThatBeginWithAnythingButAKeyOrABracket)
{
    const auto expectStartsRejected = [](const std::vector<std::string>& starts)
    {
        for (const std::string& start : starts)
        {
            expectRejected({noAlternative}, {start, start + "=1", start + "\t= 1", start + "\n",
                                             start + "\nb = 2\n"});
        }
    };
    expectStartsRejected({"true", "false", "1234", "-1",   "0x1F",     "0o7",     "0b1",
                          "1.5",  "1e5",   "inf",  "+nan", "07:32:00", "'''a'''", R"("""a""")",
                          "=",    "]",     "{",    "}",    ",",        "."});
    expectStartsRejected(
        {"2020-01-01", "2020-01-01T07:32:00", "2020-01-01 07:32:00", "2020-01-01T07:32:00Z"});
}

TEST(ParserRejected, aDateBeforeABlankIsNoTokenAtAll)
{
    expectRejected({}, {"2020-01-01 = 1"}, {noAlternative});
}

TEST(ParserRejected, linesThatGoOnAfterTheirContent)
{
    expectRejected({notRepaired}, {"a = 1 b = 2", "a = 1 b = 2\n", "a = 1 2\n", "a = 1 [b]",
                                   "a = 1 ]\n", "[a] [b]", "[a] b = 1", "[[a]] b = 1"});
    expectRejected({unwanted}, {"a = 1,", "a = 1 ]", "[a] true"});
}

TEST(ParserRejected, keysThatEndWithoutEqualsSignBracketOrDot)
{
    expectRejected({noAlternative}, {"a", "a\n", "'a'", "a b = 1", "a 'b' = 1", "a 1", "a, = 1"});
    expectRejected({notRepaired}, {"a.b", "a.b\n"});
    expectRejected({unwanted}, {"a.b c = 1", "a] = 1"});
}

TEST(ParserRejected, dottedKeysWithPartsThatAreNoKeys)
{
    for (const std::string part : {"", ".b", "true", "1", "1.5", "inf", "nan", "07:32:00",
                                   "2020-01-01", "'''b'''", R"("""b""")"})
    {
        expectRejected({noAlternative}, {"a." + part + "= 1"});
    }
    expectRejected({noAlternative}, {".a = 1", "a."});
}

TEST(ParserRejected, headersWithoutAKeyAfterTheirBrackets)
{
    expectRejected({noAlternative}, {"[]", "[ ]", "[.a]", "[true]", "[1]", "[=]", "[,]", "[{]", "[",
                                     "[[", "[[]]", "[[ ]]", "[[.a]]", "[[true]]", "['''a''']"});
}

TEST(ParserRejected, headersThatAreNotClosedAsTheyWereOpened)
{
    expectRejected({unwanted}, {"[a]]", "[[a] b]"});
    expectRejected({missing}, {"[[a]", "[[a]\n", "[a.b", "[a.b\n", "[a = 1]"});
    expectRejected({noAlternative}, {"[[a", "[a", "[a\n", "[a b]", "[a, b]", "[a.]"});
    expectRejected({noAlternative, unwanted}, {"[[[a]]]"});
}

TEST(ParserRejected, lineBreaksInsideAHeaderOrAroundAnEqualsSign)
{
    expectRejected({noAlternative}, {"[a\n]", "a\n= 1", "a.\nb = 1"});
    expectRejected({noAlternative, noAlternative}, {"[\na]", "a =\n1", "a\n.b = 1"});
    expectRejected({unwanted}, {"[[a]\n]"});
}

TEST(ParserRejected, errorsOnSeveralLinesAreCountedOneByOne)
{
    expectRejected({noAlternative, noAlternative},
                   {"true = 1\nfalse = 2\n", "true = 1\na = 1\n[]\nb = 2\n"});
    expectRejected({noAlternative, noAlternative, noAlternative}, {"a =\n\nb =\n\nc =\n"});
}
