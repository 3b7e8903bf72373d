// Strings between three quotes.
#include <gtest/gtest.h>

#include <string>

#include "support/lexer_run.h"

using namespace test;

TEST(MultilineBasicString, isOneTokenWithItsQuotes)
{
    expectOneToken("ML_BASIC_STRING", {
                                          R"("""""")",
                                          R"("""a""")",
                                          R"("""it's '''quoted''' # here""")",
                                          "\"\"\"\n\"\"\"",
                                          "\"\"\"\r\n\"\"\"",
                                          "\"\"\"\none\ntwo\r\n\n\nthree\"\"\"",
                                          "\"\"\"\ra\rb\r\"\"\"",
                                          "\"\"\"a\t\x01\x7F\"\"\"",
                                      });
}

TEST(MultilineBasicString, holdsUpToTwoQuotesInARow)
{
    expectOneToken("ML_BASIC_STRING", {
                                          R"("""a"b""")",
                                          R"("""a""b""")",
                                          R"("""a"b""c"d""e""")",
                                          R"(""""a""")",
                                          R"("""""a""")",
                                          "\"\"\"a\"\n\"\"b\"\"\"",
                                          R"("""a"\tb""\tc""")",
                                      });
}

TEST(MultilineBasicString, holdsOneQuoteBeforeItsEnd)
{
    const std::string one = R"("""a"""")";
    expectLexed({
        {one, {{"ML_BASIC_STRING", one}}},
        {one + '"', {{"ML_BASIC_STRING", one}}, {"no token 1:9"}},
        {one + R"("")", {{"ML_BASIC_STRING", one}, {"BASIC_STRING", R"("")"}}},
        {one + R"("b")", {{"ML_BASIC_STRING", one}, {"BASIC_STRING", R"("b")"}}},
        {one + "\n", {{"ML_BASIC_STRING", one}, {"NL", "\n"}}},
        {R"("""a"""b)", {{"ML_BASIC_STRING", R"("""a""")"}, {"BARE_KEY", "b"}}},
        {R"("""a""" # b)", {{"ML_BASIC_STRING", R"("""a""")"}}},
    });
}

TEST(MultilineBasicString, ofNothingButQuotesHasOneAtMost)
{
    const std::string seven(7, '"');
    expectLexed({
        {std::string(6, '"'), {{"ML_BASIC_STRING", std::string(6, '"')}}},
        {seven, {{"ML_BASIC_STRING", seven}}},
        {std::string(8, '"'), {{"ML_BASIC_STRING", seven}}, {"no token 1:8"}},
        {std::string(9, '"'), {{"ML_BASIC_STRING", seven}, {"BASIC_STRING", R"("")"}}},
        {std::string(10, '"'), {{"ML_BASIC_STRING", seven}}, {"mismatched character 1:10"}},
        {std::string(13, '"'),
         {{"ML_BASIC_STRING", seven}, {"ML_BASIC_STRING", std::string(6, '"')}}},
    });
}

TEST(MultilineBasicString, takesTheTenEscapes)
{
    expectOneToken("ML_BASIC_STRING", {
                                          R"("""a\"b""")",
                                          R"("""a\'b""")",
                                          R"("""a\\b""")",
                                          R"("""a\bb""")",
                                          R"("""a\fb""")",
                                          R"("""a\nb""")",
                                          R"("""a\rb""")",
                                          R"("""a\tb""")",
                                          R"("""a\u00E9b""")",
                                          R"("""a\UFFFFFFFFb""")",
                                          R"("""\"""")",
                                          R"("""a\"""b""")",
                                          R"("""a""\"""")",
                                      });
}

TEST(MultilineBasicString, takesOneLineBreakAfterABackslash)
{
    expectOneToken("ML_BASIC_STRING", {
                                          "\"\"\"one\\\ntwo\"\"\"",
                                          "\"\"\"one\\\r\n   two\"\"\"",
                                          "\"\"\"one\\\n\n\t two\"\"\"",
                                          "\"\"\"\\\n\"\"\"",
                                          "\"\"\"one\\\n\\\n\\\r\ntwo\"\"\"",
                                          "\"\"\"one\"\\\n\"\"\\\n\"\"\"",
                                      });
}

TEST(MultilineBasicString, failsAtALetterThatIsNoEscape)
{
    // The place is the backslash's, which goes with the recovery.
    expectLexed({
        {R"("""a\qb""")", {{"BARE_KEY", "qb"}}, {"no escape 34 1:4", "mismatched character 1:10"}},
        {R"("""a\ b)", {{"BARE_KEY", "b"}}, {"no escape 34 1:4"}},
        {"\"\"\"a\\ \nb", {{"NL", "\n"}, {"BARE_KEY", "b"}}, {"no escape 34 1:4"}},
        {"\"\"\"a\\\t\nb", {{"NL", "\n"}, {"BARE_KEY", "b"}}, {"no escape 34 1:4"}},
        {R"("""\)", {}, {"no escape 34 1:3"}},
        {R"("""a"\0)", {{"DEC_INT", "0"}}, {"no escape 34 1:5"}},
        {"\"\"\"a\nb\\x", {{"BARE_KEY", "x"}}, {"no escape 34 2:1"}},
    });
    for (const char* const letters : {"a", "B", "e", "N", "v", "x", "z", "0", "-"})
    {
        const std::string text = std::string(R"("""\)") + letters + "_";
        expectLexed({text, {{"BARE_KEY", std::string(letters) + "_"}}, {"no escape 34 1:3"}});
    }
}

TEST(MultilineBasicString, failsAtAnIncompleteEscape)
{
    expectLexed({
        {"\"\"\"\\\rxyz", {{"BARE_KEY", "z"}}, {"mismatched character 1:5"}},
        {"\"\"\"\\\r\r\nz", {{"BARE_KEY", "z"}}, {"mismatched character 1:5"}},
        {"\"\"\"\\\r", {}, {"mismatched character 1:5"}},
        {R"("""\u12""")", {}, {"mismatched set 1:7", "no token 1:10"}},
        {R"("""\u12xyz)", {{"BARE_KEY", "z"}}, {"mismatched set 1:7"}},
        {R"("""\U0123456xyz)", {{"BARE_KEY", "z"}}, {"mismatched set 1:12"}},
    });
}

TEST(MultilineBasicString, failsWithoutItsEnd)
{
    expectLexed({
        {R"(""")", {}, {"mismatched character 1:3"}},
        {R"("""a)", {}, {"mismatched character 1:4"}},
        {R"("""a")", {}, {"mismatched character 1:5"}},
        {R"("""a"")", {}, {"mismatched character 1:6"}},
        {"\"\"\"a\nb\n", {}, {"mismatched character 3:0"}},
        {R"("""a\""")", {}, {"mismatched character 1:8"}},
        {R"("""a''')", {}, {"mismatched character 1:7"}},
    });
}

TEST(MultilineLiteralString, isOneTokenWithItsQuotes)
{
    expectOneToken("ML_LITERAL_STRING", {
                                            "''''''",
                                            "'''a'''",
                                            R"('''a """quoted""" # here''')",
                                            "'''\n'''",
                                            "'''\none\ntwo\r\n\n\nthree'''",
                                            "'''\ra\rb\r'''",
                                            "'''a\t\x01\x7F'''",
                                        });
}

TEST(MultilineLiteralString, holdsUpToTwoQuotesInARow)
{
    expectOneToken("ML_LITERAL_STRING", {
                                            "'''a'b'''",
                                            "'''a''b'''",
                                            "'''a'b''c'd''e'''",
                                            "''''a'''",
                                            "'''''a'''",
                                            "'''a'\n''b'''",
                                        });
}

TEST(MultilineLiteralString, holdsOneQuoteBeforeItsEnd)
{
    const std::string seven(7, '\'');
    expectLexed({
        {"'''a''''", {{"ML_LITERAL_STRING", "'''a''''"}}},
        {"'''a'''''", {{"ML_LITERAL_STRING", "'''a''''"}}, {"no token 1:9"}},
        {"'''a''''''", {{"ML_LITERAL_STRING", "'''a''''"}, {"LITERAL_STRING", "''"}}},
        {"'''a'''b", {{"ML_LITERAL_STRING", "'''a'''"}, {"BARE_KEY", "b"}}},
        {seven, {{"ML_LITERAL_STRING", seven}}},
        {std::string(8, '\''), {{"ML_LITERAL_STRING", seven}}, {"no token 1:8"}},
        {std::string(9, '\''), {{"ML_LITERAL_STRING", seven}, {"LITERAL_STRING", "''"}}},
        {std::string(10, '\''), {{"ML_LITERAL_STRING", seven}}, {"mismatched character 1:10"}},
    });
}

TEST(MultilineLiteralString, takesABackslashAsItIs)
{
    expectOneToken("ML_LITERAL_STRING", {
                                            R"('''a\''')",
                                            R"('''\q\u12 \''')",
                                            "'''one\\\n two'''",
                                            "'''one\\ \n two'''",
                                            R"('''a'\'''')",
                                        });
    expectLexed({R"('''a\'''b)", {{"ML_LITERAL_STRING", R"('''a\''')"}, {"BARE_KEY", "b"}}});
}

TEST(MultilineLiteralString, failsWithoutItsEnd)
{
    expectLexed({
        {"'''", {}, {"mismatched character 1:3"}},
        {"'''a", {}, {"mismatched character 1:4"}},
        {"'''a'", {}, {"mismatched character 1:5"}},
        {"'''a''", {}, {"mismatched character 1:6"}},
        {"'''a\nb\n", {}, {"mismatched character 3:0"}},
        {R"('''a""")", {}, {"mismatched character 1:7"}},
    });
}
