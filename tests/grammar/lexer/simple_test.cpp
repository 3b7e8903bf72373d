// Blanks, line breaks, comments, punctuation, booleans and bare keys.
#include <gtest/gtest.h>

#include <string>

#include "support/lexer_run.h"

using namespace test;

TEST(Punctuation, hasATypeForEachCharacter)
{
    expectLexed({
        {",", {{"','", ","}}},
        {".", {{"'.'", "."}}},
        {"=", {{"'='", "="}}},
        {"[", {{"'['", "["}}},
        {"]", {{"']'", "]"}}},
        {"{", {{"'{'", "{"}}},
        {"}", {{"'}'", "}"}}},
        {"[[]]..==",
         {{"'['", "["},
          {"'['", "["},
          {"']'", "]"},
          {"']'", "]"},
          {"'.'", "."},
          {"'.'", "."},
          {"'='", "="},
          {"'='", "="}}},
        {"{,}", {{"'{'", "{"}, {"','", ","}, {"'}'", "}"}}},
    });
}

TEST(Blanks, areDiscarded)
{
    expectLexed({
        {" ", {}},
        {"\t", {}},
        {" \t \t\t  ", {}},
        {"a b", {{"BARE_KEY", "a"}, {"BARE_KEY", "b"}}},
        {"\ta \t=\t1 ", {{"BARE_KEY", "a"}, {"'='", "="}, {"DEC_INT", "1"}}},
    });
}

TEST(LineBreaks, areOneTokenForARun)
{
    expectOneToken("NL",
                   {"\n", "\r\n", "\n\n\n", "\r\n\r\n", "\r\n\n", "\n\r\n", "\n\n\r\n\r\n\n"});
    expectLexed({
        {"a\r\n\r\n\nb", {{"BARE_KEY", "a"}, {"NL", "\r\n\r\n\n"}, {"BARE_KEY", "b"}}},
        {"\na\n", {{"NL", "\n"}, {"BARE_KEY", "a"}, {"NL", "\n"}}},
    });
}

TEST(LineBreaks, areApartWithBlanksOrCommentsBetween)
{
    expectLexed({
        {"\n \n", {{"NL", "\n"}, {"NL", "\n"}}},
        {" \n", {{"NL", "\n"}}},
        {"\n\t", {{"NL", "\n"}}},
        {"\r\n\t\r\n", {{"NL", "\r\n"}, {"NL", "\r\n"}}},
        {"\n# a\n\n#\n", {{"NL", "\n"}, {"NL", "\n\n"}, {"NL", "\n"}}},
    });
}

TEST(LineBreaks, failAtACarriageReturnAlone)
{
    // The character that is not the line feed goes with the failure, the one behind it
    // with the recovery, and the breaks before the carriage return are lost.
    expectLexed({
        {"\r", {}, {"mismatched character 1:1"}},
        {"a\r", {{"BARE_KEY", "a"}}, {"mismatched character 1:2"}},
        {"a\rb", {{"BARE_KEY", "a"}}, {"mismatched character 1:2"}},
        {"a\rbcd", {{"BARE_KEY", "a"}, {"BARE_KEY", "d"}}, {"mismatched character 1:2"}},
        {"\r\ra", {}, {"mismatched character 1:1"}},
        {"\r\r\n", {}, {"mismatched character 1:1"}},
        {"\r\r\r\n", {{"NL", "\n"}}, {"mismatched character 1:1"}},
        {"a\n\rb c", {{"BARE_KEY", "a"}, {"BARE_KEY", "c"}}, {"mismatched character 2:1"}},
        {"\r\n\n\r", {}, {"mismatched character 3:1"}},
    });
}

TEST(Comments, areDiscarded)
{
    expectLexed({
        {"#", {}},
        {"##", {}},
        {"# only a comment", {}},
        {"# a = \"b", {}},
        {"#\ta\x01\x7F\r b", {}},
        {"# a\rb = 1", {}},
        {"a # b # c", {{"BARE_KEY", "a"}}},
        {"1#2", {{"DEC_INT", "1"}}},
        {"key = true # c\n",
         {{"BARE_KEY", "key"}, {"'='", "="}, {"BOOLEAN", "true"}, {"NL", "\n"}}},
    });
}

TEST(Comments, endBeforeTheLineFeed)
{
    expectLexed({
        {"# note\n", {{"NL", "\n"}}},
        {"# note\r\n", {{"NL", "\n"}}},
        {"#\na", {{"NL", "\n"}, {"BARE_KEY", "a"}}},
        {"#\n\n", {{"NL", "\n\n"}}},
        {"# a\n# b\n", {{"NL", "\n"}, {"NL", "\n"}}},
    });
}

TEST(Booleans, areTheTwoWords)
{
    expectOneToken("BOOLEAN", {"true", "false"});
    expectLexed({
        {"true = false\n", {{"BOOLEAN", "true"}, {"'='", "="}, {"BOOLEAN", "false"}, {"NL", "\n"}}},
        {"[true,false]",
         {{"'['", "["}, {"BOOLEAN", "true"}, {"','", ","}, {"BOOLEAN", "false"}, {"']'", "]"}}},
        {"true.false", {{"BOOLEAN", "true"}, {"'.'", "."}, {"BOOLEAN", "false"}}},
        {"true#", {{"BOOLEAN", "true"}}},
        {"true+", {{"BOOLEAN", "true"}}, {"no token 1:5"}},
    });
}

TEST(BareKeys, areLettersDigitsUnderscoresAndHyphens)
{
    expectOneToken("BARE_KEY", {"abcdefghijklmnopqrstuvwxyz",
                                "ABCDEFGHIJKLMNOPQRSTUVWXYZ",
                                "a0123456789",
                                "0123456789",
                                "-",
                                "--",
                                "_",
                                "__",
                                "-_-",
                                "a-b_c",
                                "bare_key",
                                "Z",
                                "-a",
                                "-_1",
                                "1a",
                                "e",
                                "tr",
                                "T",
                                "True",
                                "FALSE",
                                "fals",
                                "t",
                                "f"});
}

TEST(BareKeys, endAtAnyOtherCharacter)
{
    expectLexed({
        {"a.b", {{"BARE_KEY", "a"}, {"'.'", "."}, {"BARE_KEY", "b"}}},
        {"a=b", {{"BARE_KEY", "a"}, {"'='", "="}, {"BARE_KEY", "b"}}},
        {"a\"b\"", {{"BARE_KEY", "a"}, {"BASIC_STRING", "\"b\""}}},
        {"a+1", {{"BARE_KEY", "a"}, {"DEC_INT", "+1"}}},
        {"a/b", {{"BARE_KEY", "a"}, {"BARE_KEY", "b"}}, {"no token 1:1"}},
        {"a:b", {{"BARE_KEY", "a"}, {"BARE_KEY", "b"}}, {"no token 1:1"}},
        {"a@b", {{"BARE_KEY", "a"}, {"BARE_KEY", "b"}}, {"no token 1:1"}},
        {"a`b", {{"BARE_KEY", "a"}, {"BARE_KEY", "b"}}, {"no token 1:1"}},
        {"a^b", {{"BARE_KEY", "a"}, {"BARE_KEY", "b"}}, {"no token 1:1"}},
        {"a\\b", {{"BARE_KEY", "a"}, {"BARE_KEY", "b"}}, {"no token 1:1"}},
    });
}
