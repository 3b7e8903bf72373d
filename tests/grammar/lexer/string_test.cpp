// Strings on one line.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/lexer_run.h"

using namespace test;

TEST(BasicString, isOneTokenWithItsQuotes)
{
    expectOneToken("BASIC_STRING", {
                                       R"("")",
                                       R"("a")",
                                       R"("plain text, with # and = and [brackets]")",
                                       R"("'")",
                                       R"("'a'")",
                                       R"("it's")",
                                   });
}

TEST(BasicString, takesControlCharactersOtherThanALineFeed)
{
    expectOneToken("BASIC_STRING", {
                                       "\"\ta\t\"",
                                       "\"\ra\r\"",
                                       "\"a\r\"",
                                       "\"\x7F\"",
                                       "\"a\x01\x1F\"",
                                   });
}

TEST(BasicString, takesTheTenEscapes)
{
    expectOneToken("BASIC_STRING", {
                                       R"("a\"b")",
                                       R"("a\'b")",
                                       R"("a\\b")",
                                       R"("a\bb")",
                                       R"("a\fb")",
                                       R"("a\nb")",
                                       R"("a\rb")",
                                       R"("a\tb")",
                                       R"("a\u00E9b")",
                                       R"("a\U0001F600b")",
                                       R"("\"")",
                                       R"("\\")",
                                       R"("\"\'\\\b\f\n\r\t\u0041\U00000041")",
                                   });
}

TEST(BasicString, takesAnyFourOrEightHexadecimalDigits)
{
    expectOneToken("BASIC_STRING", {
                                       R"("\uabcd")",
                                       R"("\uEF01")",
                                       R"("\u23456")",
                                       R"("\uD800")",
                                       R"("\uDFFF")",
                                       R"("\U789abcdefg")",
                                       R"("\UFFFFFFFF")",
                                       R"("\UffffFFFF")",
                                       R"("\U00110000")",
                                   });
}

TEST(BasicString, endsAtTheNextQuote)
{
    expectLexed({
        {R"(""x)", {{"BASIC_STRING", R"("")"}, {"BARE_KEY", "x"}}},
        {"\"\"\n", {{"BASIC_STRING", R"("")"}, {"NL", "\n"}}},
        {R"("a"b)", {{"BASIC_STRING", R"("a")"}, {"BARE_KEY", "b"}}},
        {R"("a""b")", {{"BASIC_STRING", R"("a")"}, {"BASIC_STRING", R"("b")"}}},
        {R"("a"'b')", {{"BASIC_STRING", R"("a")"}, {"LITERAL_STRING", "'b'"}}},
        {R"("a".1)", {{"BASIC_STRING", R"("a")"}, {"'.'", "."}, {"DEC_INT", "1"}}},
        {R"("a" # b)", {{"BASIC_STRING", R"("a")"}}},
    });
}

TEST(BasicString, fitsNoTokenIfALineFeedOrNothingFollowsItsQuote)
{
    expectLexed({
        {"\"", {}, {"no token 1:1"}},
        {"\"\n", {{"NL", "\n"}}, {"no token 1:1"}},
        {"\"\na", {{"NL", "\n"}, {"BARE_KEY", "a"}}, {"no token 1:1"}},
    });
}

TEST(BasicString, failsAtALineFeed)
{
    // The line feed goes with the failure, the character behind it with the recovery.
    expectLexed({
        {"\"ab\n", {}, {"mismatched character 1:3"}},
        {"\"ab\ncd\"", {{"BARE_KEY", "d"}}, {"mismatched character 1:3", "no token 2:3"}},
        {"\"ab\r\ncd", {{"BARE_KEY", "d"}}, {"mismatched character 1:4"}},
        {"\"ab\n\ncd", {{"BARE_KEY", "cd"}}, {"mismatched character 1:3"}},
        {"\"\\n\nab", {{"BARE_KEY", "b"}}, {"mismatched character 1:3"}},
    });
}

TEST(BasicString, failsAtTheEndOfTheInput)
{
    expectLexed({
        {"\"a", {}, {"mismatched character 1:2"}},
        {"x = \"a b # c", {{"BARE_KEY", "x"}, {"'='", "="}}, {"mismatched character 1:12"}},
        {R"("a\")", {}, {"mismatched character 1:4"}},
        {R"("a')", {}, {"mismatched character 1:3"}},
    });
}

TEST(BasicString, failsAtALetterThatIsNoEscape)
{
    expectLexed({
        {R"("a\qb")", {{"BARE_KEY", "b"}}, {"no escape 35 1:3", "no token 1:6"}},
        {R"("\q)", {}, {"no escape 35 1:2"}},
        {R"("\q1, 2)", {{"DEC_INT", "1"}, {"','", ","}, {"DEC_INT", "2"}}, {"no escape 35 1:2"}},
        {R"("\)", {}, {"no escape 35 1:2"}},
        {"\"\\\nab", {{"BARE_KEY", "ab"}}, {"no escape 35 1:2"}},
        {"\"\\\r\nab", {{"NL", "\n"}, {"BARE_KEY", "ab"}}, {"no escape 35 1:2"}},
    });
    // All but the ten: the character goes with the recovery, and the rest is lexed anew.
    const std::string escapes = "\"'\\bfnrtuU";
    for (char character = '\0'; character < '\x7F'; ++character)
    {
        if (escapes.find(character) == std::string::npos && character != '\n')
        {
            expectLexed({std::string("\"\\") + character + "key",
                         {{"BARE_KEY", "key"}},
                         {"no escape 35 1:2"}});
        }
    }
}

TEST(BasicString, failsAtTheFirstCharacterThatIsNoHexadecimalDigit)
{
    expectLexed({
        {R"("\u")", {}, {"mismatched set 1:3"}},
        {R"("\u12")", {}, {"mismatched set 1:5"}},
        {R"("\u123")", {}, {"mismatched set 1:6"}},
        {R"("\u123)", {}, {"mismatched set 1:6"}},
        {R"("\u12g4,)", {{"','", ","}}, {"mismatched set 1:5"}},
        {R"("\u123G45)", {{"DEC_INT", "5"}}, {"mismatched set 1:6"}},
        {R"("\u/a:b)", {{"BARE_KEY", "b"}}, {"mismatched set 1:3", "no token 1:5"}},
        {R"("\U")", {}, {"mismatched set 1:3"}},
        {R"("\U0001F60")", {}, {"mismatched set 1:10"}},
        {R"("\U0001F60x1,)", {{"','", ","}}, {"mismatched set 1:10"}},
        {R"("\u12" x)", {{"BARE_KEY", "x"}}, {"mismatched set 1:5"}},
    });
}

TEST(LiteralString, isOneTokenWithItsQuotes)
{
    expectOneToken("LITERAL_STRING", {
                                         "''",
                                         "'a'",
                                         "'plain text, with # and = and [brackets]'",
                                         R"('"')",
                                         R"('"a"')",
                                         R"('"""')",
                                         "'\ta\r'",
                                         "'\ra'",
                                         "'\x7F\x01'",
                                     });
}

TEST(LiteralString, takesABackslashAsItIs)
{
    expectOneToken("LITERAL_STRING", {
                                         R"('C:\path\')",
                                         R"('\')",
                                         R"('\\')",
                                         R"('\q\u12')",
                                     });
    expectLexed({R"('a\'b)", {{"LITERAL_STRING", R"('a\')"}, {"BARE_KEY", "b"}}});
}

TEST(LiteralString, endsAtTheNextQuote)
{
    expectLexed({
        {"''x", {{"LITERAL_STRING", "''"}, {"BARE_KEY", "x"}}},
        {"''\n", {{"LITERAL_STRING", "''"}, {"NL", "\n"}}},
        {"'a''b'", {{"LITERAL_STRING", "'a'"}, {"LITERAL_STRING", "'b'"}}},
        {"'a'\"b\"", {{"LITERAL_STRING", "'a'"}, {"BASIC_STRING", "\"b\""}}},
    });
}

TEST(LiteralString, failsWithoutItsClosingQuote)
{
    expectLexed({
        {"'", {}, {"no token 1:1"}},
        {"'\n", {{"NL", "\n"}}, {"no token 1:1"}},
        {"'a", {}, {"mismatched character 1:2"}},
        {"'a\"", {}, {"mismatched character 1:3"}},
        {"'ab\n", {}, {"mismatched character 1:3"}},
        {"'ab\ncd'", {{"BARE_KEY", "d"}}, {"mismatched character 1:3", "no token 2:3"}},
        {"'ab\r\ncd", {{"BARE_KEY", "d"}}, {"mismatched character 1:4"}},
        {"'a\\\nbc", {{"BARE_KEY", "c"}}, {"mismatched character 1:3"}},
    });
}
