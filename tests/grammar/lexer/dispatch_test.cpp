// Which token a text becomes.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/lexer_run.h"
#include "support/utf8.h"

using namespace test;

namespace
{

// The texts become the token at the end of the input and before either line break.
void expectOneTokenOnALine(const std::string& type, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        expectLexed({text, {{type, text}}});
        expectLexed({text + "\n", {{type, text}, {"NL", "\n"}}});
        expectLexed({text + "\r\n", {{type, text}, {"NL", "\r\n"}}});
        expectLexed({text + "\t", {{type, text}}});
    }
}

const std::string firstCharacters = "\t\n\r \"#'+,-.0123456789=ABCDEFGHIJKLMNOPQRSTUVWXYZ[]_"
                                    "abcdefghijklmnopqrstuvwxyz{}";

} // namespace

TEST(Dispatch, takesTheLongestMatch)
{
    expectOneTokenOnALine(
        "BARE_KEY", {
                        "truex",       "true_",       "true-", "falsey", "truetrue", "tr", "T",
                        "e",           "infinity",    "nanx",  "nan_",   "inf-",     "00", "01",
                        "-01",         "0_1",         "123a",  "0x",     "0x1G",     "1e", "1979-",
                        "1979-05-27T", "1979-05-27Z", "-",     "_",      "abc",
                    });
}

TEST(Dispatch, prefersAValueToAKeyOfTheSameText)
{
    expectOneTokenOnALine("BOOLEAN", {"true", "false"});
    expectOneTokenOnALine("INF", {"inf", "+inf", "-inf"});
    expectOneTokenOnALine("NAN", {"nan", "+nan", "-nan"});
    expectOneTokenOnALine("DEC_INT", {"0", "-0", "123", "+1", "1979", "1_000"});
    expectOneTokenOnALine("HEX_INT", {"0x1F"});
    expectOneTokenOnALine("OCT_INT", {"0o7"});
    expectOneTokenOnALine("BIN_INT", {"0b1"});
    expectOneTokenOnALine("FLOAT", {"1.5", "0.5", "1e5"});
    expectOneTokenOnALine("LOCAL_DATE", {"1979-05-27"});
    expectOneTokenOnALine("LOCAL_DATE_TIME",
                          {"1979-05-27T07:32:00", "1979-05-27t07:32:00", "1979-05-27 07:32:00"});
    expectOneTokenOnALine("OFFSET_DATE_TIME", {"1979-05-27T07:32:00Z"});
    expectOneTokenOnALine("LOCAL_TIME", {"07:32:00"});
}

TEST(Dispatch, splitsATextAtAPoint)
{
    expectLexed({
        {"a.b", {{"BARE_KEY", "a"}, {"'.'", "."}, {"BARE_KEY", "b"}}},
        {".5", {{"'.'", "."}, {"DEC_INT", "5"}}},
    });
}

TEST(Dispatch, choosesAStringByTheCharactersAfterTheFirstQuote)
{
    expectLexed({
        {"\"\"\"a\"\"\"", {{"ML_BASIC_STRING", "\"\"\"a\"\"\""}}},
        {"\"\"", {{"BASIC_STRING", "\"\""}}},
        {"\"\"\n", {{"BASIC_STRING", "\"\""}, {"NL", "\n"}}},
        {"\"\"''", {{"BASIC_STRING", "\"\""}, {"LITERAL_STRING", "''"}}},
        {"\"a\"", {{"BASIC_STRING", "\"a\""}}},
        {"\"\\\\\"", {{"BASIC_STRING", "\"\\\\\""}}},
        {"\"\r\"", {{"BASIC_STRING", "\"\r\""}}},
        {"\"\t\"", {{"BASIC_STRING", "\"\t\""}}},
        {"\"\n", {{"NL", "\n"}}, {"no token 1:1"}},
        {"\"", {}, {"no token 1:1"}},
        {"'''a'''", {{"ML_LITERAL_STRING", "'''a'''"}}},
        {"''", {{"LITERAL_STRING", "''"}}},
        {"''\n", {{"LITERAL_STRING", "''"}, {"NL", "\n"}}},
        {"''\"\"", {{"LITERAL_STRING", "''"}, {"BASIC_STRING", "\"\""}}},
        {"'a'", {{"LITERAL_STRING", "'a'"}}},
        {"'\\'", {{"LITERAL_STRING", "'\\'"}}},
        {"'\r'", {{"LITERAL_STRING", "'\r'"}}},
        {"'\t'", {{"LITERAL_STRING", "'\t'"}}},
        {"'\n", {{"NL", "\n"}}, {"no token 1:1"}},
        {"'", {}, {"no token 1:1"}},
    });
}

TEST(Dispatch, findsATokenForEachFirstCharacter)
{
    for (const char first : firstCharacters)
    {
        // What makes the shortest token of those that need company.
        const std::string text = first == '+'    ? "+1"
                                 : first == '"'  ? "\"\""
                                 : first == '\'' ? "''"
                                 : first == '\r' ? "\r\n"
                                                 : std::string(1, first);
        SCOPED_TRACE(testing::PrintToString(text));
        const LexerRun run = lex(text);
        EXPECT_EQ(run.errorCount, 0u);
        const bool discarded = first == ' ' || first == '\t' || first == '#';
        EXPECT_EQ(typesAndTexts(run).size(), discarded ? 0u : 1u);
    }
}

TEST(Dispatch, findsNoTokenForOtherFirstCharacters)
{
    std::string text;
    Errors errors;
    for (std::uint32_t character = 0; character <= 0x10FFFF;
         character += character < 0x11000 ? 1 : 0xFFF)
    {
        if (character > 0x7F ||
            firstCharacters.find(static_cast<char>(character)) == std::string::npos)
        {
            errors.push_back("no token 1:" + std::to_string(errors.size()));
            text += utf8(character);
        }
    }
    const LexerRun run = lex(text);
    EXPECT_TRUE(run.tokens.empty());
    EXPECT_EQ(summaries(run), errors);
    EXPECT_EQ(run.errorCount, errors.size());
    EXPECT_GT(run.errorCount, 0x10000u);
}

TEST(Dispatch, findsNoTokenForASignWithNothingToSign)
{
    expectLexed({
        {"+", {}, {"no token 1:1"}},
        {"+a", {{"BARE_KEY", "a"}}, {"no token 1:1"}},
        {"+ 1", {{"DEC_INT", "1"}}, {"no token 1:1"}},
        {"++1", {{"DEC_INT", "+1"}}, {"no token 1:1"}},
        {"+-1", {{"DEC_INT", "-1"}}, {"no token 1:1"}},
        {"+_", {{"BARE_KEY", "_"}}, {"no token 1:1"}},
        {"+\n", {{"NL", "\n"}}, {"no token 1:1"}},
        {"+.5", {{"'.'", "."}, {"DEC_INT", "5"}}, {"no token 1:1"}},
        {"+true", {{"BOOLEAN", "true"}}, {"no token 1:1"}},
        {"-", {{"BARE_KEY", "-"}}},
        {"-a", {{"BARE_KEY", "-a"}}},
        {"- 1", {{"BARE_KEY", "-"}, {"DEC_INT", "1"}}},
        {"--1", {{"BARE_KEY", "--1"}}},
        {"-+1", {{"BARE_KEY", "-"}, {"DEC_INT", "+1"}}},
        {"-\n", {{"BARE_KEY", "-"}, {"NL", "\n"}}},
    });
}
