// Lines, headers and keys that the parser rejects.
#include <gtest/gtest.h>

#include "support/parsing.h"

using namespace test;

TEST(ParserRejected, linesThatBeginWithAnythingButAKeyOrABracket)
{
    for (const std::string start : {"true",
                                    "false",
                                    "1234",
                                    "-1",
                                    "0x1F",
                                    "0o7",
                                    "0b1",
                                    "1.5",
                                    "1e5",
                                    "inf",
                                    "+nan",
                                    "2020-01-01",
                                    "07:32:00",
                                    "2020-01-01T07:32:00",
                                    "2020-01-01 07:32:00",
                                    "2020-01-01T07:32:00Z",
                                    "'''a'''",
                                    R"("""a""")",
                                    "=",
                                    "]",
                                    "{",
                                    "}",
                                    ",",
                                    "."})
    {
        for (const std::string rest : {"", "=1", "\t= 1", "\n", "\nb = 2\n"})
        {
            expectRejected({{start + rest, {noAlternative}}});
        }
    }
}

TEST(ParserRejected, aDateBeforeABlankIsNoTokenAtAll)
{
    expectRejected({{"2020-01-01 = 1", {}, {noAlternative}}});
}

TEST(ParserRejected, linesThatGoOnAfterTheirContent)
{
    expectRejected({
        {"a = 1 b = 2", {notRepaired}},
        {"a = 1 b = 2\n", {notRepaired}},
        {"a = 1 2\n", {notRepaired}},
        {"a = 1 [b]", {notRepaired}},
        {"a = 1,", {unwanted}},
        {"a = 1 ]", {unwanted}},
        {"a = 1 ]\n", {notRepaired}},
        {"[a] [b]", {notRepaired}},
        {"[a] b = 1", {notRepaired}},
        {"[[a]] b = 1", {notRepaired}},
        {"[a] true", {unwanted}},
    });
}

TEST(ParserRejected, keysThatEndWithoutEqualsSignBracketOrDot)
{
    expectRejected({
        {"a", {noAlternative}},
        {"a\n", {noAlternative}},
        {"'a'", {noAlternative}},
        {"a b = 1", {noAlternative}},
        {"a 'b' = 1", {noAlternative}},
        {"a 1", {noAlternative}},
        {"a, = 1", {noAlternative}},
        {"a.b", {notRepaired}},
        {"a.b\n", {notRepaired}},
        {"a.b c = 1", {unwanted}},
        {"a] = 1", {unwanted}},
    });
}

TEST(ParserRejected, dottedKeysWithPartsThatAreNoKeys)
{
    for (const std::string part : {"", ".b", "true", "1", "1.5", "inf", "nan", "07:32:00",
                                   "2020-01-01", "'''b'''", R"("""b""")"})
    {
        expectRejected({{"a." + part + "= 1", {noAlternative}}});
    }
    expectRejected({
        {".a = 1", {noAlternative}},
        {"a.", {noAlternative}},
    });
}

TEST(ParserRejected, headersWithoutAKeyAfterTheirBrackets)
{
    for (const std::string header : {"[]", "[ ]", "[.a]", "[true]", "[1]", "[=]", "[,]", "[{]", "[",
                                     "[[", "[[]]", "[[ ]]", "[[.a]]", "[[true]]", "['''a''']"})
    {
        expectRejected({{header, {noAlternative}}});
    }
}

TEST(ParserRejected, headersThatAreNotClosedAsTheyWereOpened)
{
    expectRejected({
        {"[a]]", {unwanted}},
        {"[[a]", {missing}},
        {"[[a]\n", {missing}},
        {"[[a] b]", {unwanted}},
        {"[[a", {noAlternative}},
        {"[a", {noAlternative}},
        {"[a\n", {noAlternative}},
        {"[a b]", {noAlternative}},
        {"[a, b]", {noAlternative}},
        {"[a.]", {noAlternative}},
        {"[a.b", {missing}},
        {"[a.b\n", {missing}},
        {"[a = 1]", {missing}},
        {"[[[a]]]", {noAlternative, unwanted}},
    });
}

TEST(ParserRejected, lineBreaksInsideAHeaderOrAroundAnEqualsSign)
{
    expectRejected({
        {"[a\n]", {noAlternative}},
        {"[\na]", {noAlternative, noAlternative}},
        {"[[a]\n]", {unwanted}},
        {"a\n= 1", {noAlternative}},
        {"a =\n1", {noAlternative, noAlternative}},
        {"a.\nb = 1", {noAlternative}},
        {"a\n.b = 1", {noAlternative, noAlternative}},
    });
}

TEST(ParserRejected, errorsOnSeveralLinesAreCountedOneByOne)
{
    expectRejected({
        {"true = 1\nfalse = 2\n", {noAlternative, noAlternative}},
        {"true = 1\na = 1\n[]\nb = 2\n", {noAlternative, noAlternative}},
        {"a =\n\nb =\n\nc =\n", {noAlternative, noAlternative, noAlternative}},
    });
}
