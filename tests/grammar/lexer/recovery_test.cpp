// What a display of errors sees, and where the lexer goes on.
#include <gtest/gtest.h>

#include <string>

#include "support/lexer_run.h"
#include "support/stderr_capture.h"

using namespace test;

namespace
{

struct Recovery
{
    std::string text; // one error, then one token
    std::string error;
    std::uint32_t character; // the one that did not fit
    std::size_t displayed;   // bytes before the input's next character in the display
    std::string token;       // the text of the token that follows
};

} // namespace

TEST(LexerRecovery, goesOnOneCharacterAfterTheDisplay)
{
    // The choice among the tokens rewinds the input; characters out of place and failed
    // literals take the character with them, the other failures do not.
    const Recovery recoveries[] = {
        {"@ab", "no token 1:0", '@', 0, "ab"},
        {"\u00E9z", "no token 1:0", 0xE9, 0, "z"},
        {"\U0001F600z", "no token 1:0", 0x1F600, 0, "z"},
        {"\"\n", "no token 1:1", '\n', 0, "\n"},
        {"1979-05-27 #", "no token 1:11", '#', 0, "979-05-27"},
        {"1979-05-27 07:32:0", "no token 1:18", 0xFFFFFFFF, 0, "979-05-27"},
        {"+1__0", "no token 1:3", '_', 0, "1__0"},
        {"\rabc", "mismatched character 1:1", 'a', 2, "c"},
        {"\r\u00E9\u00E8c", "mismatched character 1:1", 0xE9, 3, "c"},
        {"\"ab\ncde", "mismatched character 1:3", '\n', 4, "de"},
        {"07:32xyz", "mismatched character 1:5", 'x', 6, "z"},
        {"+iaxy", "mismatched character 1:2", 'a', 3, "y"},
        {"1.xyz", "mismatched set 1:2", 'x', 3, "z"},
        {"\"\\u12xyz", "mismatched set 1:5", 'x', 6, "z"},
        {"07:32:00.xyz", "early exit 1:9", 'x', 9, "yz"},
        {"\"\\qab", "no escape 35 1:2", 'q', 2, "ab"},
        {"\"\"\"\\qab", "no escape 34 1:3", '\\', 3, "qab"},
    };
    for (const Recovery& expected : recoveries)
    {
        SCOPED_TRACE(testing::PrintToString(expected.text));
        const LexerRun run = lex(expected.text);
        ASSERT_GE(run.errors.size(), 1u);
        EXPECT_EQ(summary(run.errors[0]), expected.error);
        EXPECT_EQ(run.errors[0].character, expected.character);
        EXPECT_EQ(run.errors[0].offset, expected.displayed);
        ASSERT_GE(run.tokens.size(), 1u);
        EXPECT_EQ(run.tokens[0].text, expected.token);
    }
}

TEST(LexerRecovery, stopsAtTheEndOfTheInput)
{
    for (const char* const text : {"@", "\r", "\"", "'a", "\"\"\"", "'''a", "1.", "1e+",
                                   "07:", "07:32:00.", "\"\\", "\"\"\"\\", "+", "+in"})
    {
        SCOPED_TRACE(testing::PrintToString(text));
        const LexerRun run = lex(text);
        EXPECT_TRUE(run.tokens.empty());
        EXPECT_EQ(run.errorCount, 1u);
        EXPECT_EQ(run.end, std::string(text).size());
    }
}

TEST(LexerRecovery, goesOnAfterEveryError)
{
    expectLexed({
        "@a = $1\n!b = \"c\n= 2 % 'd'\n",
        {{"BARE_KEY", "a"},
         {"'='", "="},
         {"DEC_INT", "1"},
         {"NL", "\n"},
         {"BARE_KEY", "b"},
         {"'='", "="},
         {"DEC_INT", "2"},
         {"LITERAL_STRING", "'d'"},
         {"NL", "\n"}},
        {"no token 1:0", "no token 1:5", "no token 2:0", "mismatched character 2:7",
         "no token 3:4"},
    });
}

TEST(LexerRecovery, countsEveryError)
{
    EXPECT_EQ(lex(std::string(1000, '@')).errorCount, 1000u);
    EXPECT_EQ(lex("@@a@@").errorCount, 4u);
}

TEST(LexerRecovery, printsOnlyWhatTheDisplayPrints)
{
    const std::string text = "@a 1. \"b\\q";
    std::string printed;
    LexerRun run;
    {
        const StderrCapture capture;
        run = lex(text);
        printed = capture.text();
    }
    EXPECT_EQ(printed, "");
    EXPECT_EQ(run.errorCount, 3u);
    {
        const StderrCapture capture;
        run = lex(text, ErrorDisplay::standard);
        printed = capture.text();
    }
    EXPECT_EQ(run.errorCount, 3u);
    EXPECT_NE(printed.find("toml(1) : lexer error 3 :\n\t1:1: Tokens : ( T__69 |"),
              std::string::npos)
        << printed;
    EXPECT_NE(printed.find("lexer error 4 :\n\tUnexpected character"), std::string::npos)
        << printed;
}
