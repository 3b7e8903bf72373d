// The lexer's rules, each through its entry in the context: on any text each does what the
// rule in that place does that the antlr3 tool makes from the grammar.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "support/utf8.h"

#include "support/lexer_agreement.h"

using namespace test;

namespace
{

// Whole, broken and cut off for one rule or another, with something after it.
const std::vector<std::string> texts = {
    // Punctuation, blanks and words
    "", ",,", "..", "==", "[[", "]]", "{{", "}}", " \t\n", "\n\r\n ", "# a\r\n", "truex",
    "falsetrue", "fals", "aZ0_-.",
    // Strings and escapes
    "\"a\"b", "'a'", "'a'b", "\"a\"", "\"\"\"a\"\"\"b", "\"\"a", "\"\"\"a\"\"\"\"b", "\"\"\"a\"\"",
    "'''a'''b", "''a", "'''a''''b", "'''a''", "00Aff", "00Ag", "0123aBcDe", "0123aBc", "\\u12345",
    "\\U123456789", "\\u123x", "\\\n", "\\", "n", "\\\n\n", "\\\r\n\n", "\\\r\r", "\\ \n",
    // Numbers
    "-1_0.5e3x", "1x", "1e3x", "+infx", "nan", "-nanx", "inf", "0123", "+x", "-12_3x", "12_x",
    "0xa_Fg", "0xg", "0o7_08", "0o8", "0b1_02", "0b2", "0", "007_0_1x", "1_", "1__0", "_1", ".0_1.",
    ".", "5", "e1", "E+0_1e", "e-05", "e--5", "e", "x1",
    // Dates and times
    "1979-05-27T07:32:00ZZ", "1979-05-27T07:32:00z", "1979-05-27 07:32:00Z", "1979-05-27x",
    "1979-05-27T", "1979x", "07:32:00.5Z", "07:32:00.x", "19791", "197x", "991", "1-", "00",
    "99:", "9:", "60", "6", "61.", "6.", ".0123456789x", ".1_2", ".x", "1", "+07:000", "-99:99",
    "+0700", "07:00", "Z", "+07:00", "-07:00", "z", "07:32:00", "07:32:00.", "07:32", "07-",
    "1979-5-27", "1979/", "07:32:00Z", "07:32:00.5-01:00x", "07:32:00z"};

} // namespace

class LexerRule : public testing::TestWithParam<std::size_t>
{
};

TEST_P(LexerRule, matchesWhatTheGrammarsRuleMatches)
{
    std::vector<std::string> all = texts;
    for (std::uint32_t point = 0; point < 0x180; ++point)
    {
        all.push_back(utf8(point) + "0");
        all.push_back('\\' + utf8(point) + utf8(point));
    }
    for (const std::string& text : all)
    {
        EXPECT_EQ(traceRule(TomlLexerNew, GetParam(), text),
                  traceRule(referenceTomlLexerNew, GetParam(), text))
            << "on " << testing::PrintToString(text);
    }
}

INSTANTIATE_TEST_SUITE_P(, LexerRule, testing::Range(firstRule, lastRule + 1));
