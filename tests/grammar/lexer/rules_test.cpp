// The lexer's rules, each through its entry in the context.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "support/lexer_run.h"
#include "support/utf8.h"

#include "support/lexer.h"

using namespace test;

namespace
{

using Rule = void (*TomlLexer::*)(pTomlLexer);

constexpr ANTLR3_UINT32 noType = 1000;

struct RuleRun
{
    bool matched;
    std::size_t length; // bytes taken
    ANTLR3_UINT32 type; // what the rule stored, or noType
    bool skipped;
    std::string error; // the exception's name and message
};

RuleRun run(Rule rule, const std::string& text)
{
    const Lexer lexer(text);
    const pANTLR3_RECOGNIZER_SHARED_STATE state = lexer.state();
    state->type = noType;
    (lexer.get()->*rule)(lexer.get());
    const bool matched = state->error != ANTLR3_TRUE;
    RuleRun result{matched, lexer.offset(), state->type,
                   state->token == &state->tokSource->skipToken, ""};
    if (!matched)
    {
        const pANTLR3_EXCEPTION exception = state->exception;
        result.error = exception->type == ANTLR3_NO_VIABLE_ALT_EXCEPTION
                           ? std::string("no choice") + static_cast<char*>(exception->message)
                           : static_cast<char*>(exception->name);
    }
    return result;
}

struct Fragment
{
    const char* name;
    Rule rule;
    std::string characters;
};

const char* const mismatched = "org.antlr.runtime.RecognitionException";
const char* const mismatchedSet = "org.antlr.runtime.MismatchedSetException";
const char* const earlyExit = "org.antlr.runtime.EarlyExitException";
const char* const noChoice = "no choice";

} // namespace

TEST(LexerFragments, ofOneCharacterHaveTheirClass)
{
    const std::string upper = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    const std::string lower = "abcdefghijklmnopqrstuvwxyz";
    const Fragment fragments[] = {
        {"ALPHA", &TomlLexer::mALPHA, upper + lower},
        {"DIGIT", &TomlLexer::mDIGIT, "0123456789"},
        {"DIGIT_1_9", &TomlLexer::mDIGIT_1_9, "123456789"},
        {"DIGIT_0_7", &TomlLexer::mDIGIT_0_7, "01234567"},
        {"DIGIT_0_1", &TomlLexer::mDIGIT_0_1, "01"},
        {"HEX_DIGIT", &TomlLexer::mHEX_DIGIT, "0123456789ABCDEFabcdef"},
        {"DELIM", &TomlLexer::mDELIM, " Tt"},
    };
    for (const Fragment& fragment : fragments)
    {
        for (std::uint32_t point = 0; point < 0x180; ++point)
        {
            SCOPED_TRACE(std::string(fragment.name) + ' ' + std::to_string(point));
            const bool member = point < 0x80 && fragment.characters.find(
                                                    static_cast<char>(point)) != std::string::npos;
            const std::string text = utf8(point);
            const RuleRun result = run(fragment.rule, text + "0");
            EXPECT_EQ(result.matched, member);
            EXPECT_EQ(result.length, text.size()); // the failure takes the character, too
            EXPECT_EQ(result.type, noType);
            EXPECT_EQ(result.error, member ? "" : mismatchedSet);
        }
    }
}

namespace
{

struct FragmentCase
{
    const char* name;
    Rule rule;
    std::string text;
    std::size_t length;
    std::string error = "";
};

#define ENTRY(name) #name, &TomlLexer::m##name

void expectFragments(const std::vector<FragmentCase>& cases)
{
    for (const FragmentCase& expected : cases)
    {
        SCOPED_TRACE(std::string(expected.name) + ' ' + testing::PrintToString(expected.text));
        const RuleRun result = run(expected.rule, expected.text);
        EXPECT_EQ(result.error, expected.error);
        EXPECT_EQ(result.length, expected.length);
        EXPECT_EQ(result.type, noType);
        EXPECT_FALSE(result.skipped);
    }
}

} // namespace

TEST(LexerFragments, ofNumbers)
{
    expectFragments({
        {ENTRY(ZERO_PREFIXABLE_INT), "0", 1},
        {ENTRY(ZERO_PREFIXABLE_INT), "007_0_1x", 7},
        {ENTRY(ZERO_PREFIXABLE_INT), "1_", 2, mismatchedSet},
        {ENTRY(ZERO_PREFIXABLE_INT), "1__0", 3, mismatchedSet},
        {ENTRY(ZERO_PREFIXABLE_INT), "_1", 1, mismatchedSet},
        {ENTRY(FRAC), ".0_1.", 4},
        {ENTRY(FRAC), ".", 1, mismatchedSet},
        {ENTRY(FRAC), "5", 1, mismatched},
        {ENTRY(EXP), "e1", 2},
        {ENTRY(EXP), "E+0_1e", 5},
        {ENTRY(EXP), "e-05", 4},
        {ENTRY(EXP), "e--5", 3, mismatchedSet},
        {ENTRY(EXP), "e", 1, mismatchedSet},
        {ENTRY(EXP), "x1", 1, mismatchedSet},
    });
}

TEST(LexerFragments, ofDatesAndTimes)
{
    expectFragments({
        {ENTRY(YEAR), "19791", 4},
        {ENTRY(YEAR), "197x", 4, mismatchedSet},
        {ENTRY(MONTH), "991", 2},
        {ENTRY(MONTH), "1-", 2, mismatchedSet},
        {ENTRY(DAY), "00", 2},
        {ENTRY(DAY), "x", 1, mismatchedSet},
        {ENTRY(HOUR), "99:", 2},
        {ENTRY(HOUR), "9:", 2, mismatchedSet},
        {ENTRY(MINUTE), "60", 2},
        {ENTRY(MINUTE), "6", 1, mismatchedSet},
        {ENTRY(SECOND), "61.", 2},
        {ENTRY(SECOND), "6.", 2, mismatchedSet},
        {ENTRY(SECFRAC), ".0123456789x", 11},
        {ENTRY(SECFRAC), ".1_2", 2},
        {ENTRY(SECFRAC), ".x", 1, earlyExit},
        {ENTRY(SECFRAC), "1", 1, mismatched},
        {ENTRY(NUMOFFSET), "+07:000", 6},
        {ENTRY(NUMOFFSET), "-99:99", 6},
        {ENTRY(NUMOFFSET), "+0700", 4, mismatched},
        {ENTRY(NUMOFFSET), "07:00", 1, mismatchedSet},
        {ENTRY(OFFSET), "Z", 1},
        {ENTRY(OFFSET), "+07:00", 6},
        {ENTRY(OFFSET), "-07:00", 6},
        {ENTRY(OFFSET), "z", 0, noChoice},
        {ENTRY(OFFSET), "0", 0, noChoice},
        {ENTRY(PARTIAL_TIME), "07:32:00", 8},
        {ENTRY(PARTIAL_TIME), "07:32:00.5Z", 10},
        {ENTRY(PARTIAL_TIME), "07:32:00.", 9, earlyExit},
        {ENTRY(PARTIAL_TIME), "07:32", 5, mismatched},
        {ENTRY(PARTIAL_TIME), "07-", 3, mismatched},
        {ENTRY(FULL_DATE), "1979-05-27T", 10},
        {ENTRY(FULL_DATE), "1979-5-27", 7, mismatchedSet},
        {ENTRY(FULL_DATE), "1979/", 5, mismatched},
        {ENTRY(FULL_TIME), "07:32:00Z", 9},
        {ENTRY(FULL_TIME), "07:32:00.5-01:00x", 16},
        {ENTRY(FULL_TIME), "07:32:00z", 8, noChoice},
    });
}

TEST(LexerFragments, ofEscapes)
{
    std::vector<FragmentCase> cases = {
        {ENTRY(UNICODE), "00Aff", 4},
        {ENTRY(UNICODE), "00Ag", 4, mismatchedSet},
        {ENTRY(EX_UNICODE), "0123aBcDe", 8},
        {ENTRY(EX_UNICODE), "0123aBc", 7, mismatchedSet},
        {ENTRY(ESC), "\\u12345", 6},
        {ENTRY(ESC), "\\U123456789", 10},
        {ENTRY(ESC), "\\u123x", 6, mismatchedSet},
        {ENTRY(ESC), "\\\n", 1, noChoice},
        {ENTRY(ESC), "\\", 1, noChoice},
        {ENTRY(ESC), "n", 1, mismatched},
        {ENTRY(ML_ESC), "\\\n\n", 2},
        {ENTRY(ML_ESC), "\\\r\n\n", 3},
        {ENTRY(ML_ESC), "\\\r\r", 3, mismatched},
        {ENTRY(ML_ESC), "\\u12345", 6},
        {ENTRY(ML_ESC), "\\ \n", 0, noChoice},
        {ENTRY(ML_ESC), "\\", 0, noChoice},
        {ENTRY(ML_ESC), "n", 0, noChoice},
    };
    for (char letter = '\x0E'; letter < '\x7F'; ++letter)
    {
        if (letter == 'u' || letter == 'U')
        {
            continue;
        }
        const bool escape = std::string("\"'\\bfnrt").find(letter) != std::string::npos;
        const std::string text = std::string("\\") + letter + letter;
        cases.push_back({ENTRY(ESC), text, escape ? 2u : 1u, escape ? "" : noChoice});
        cases.push_back({ENTRY(ML_ESC), text, escape ? 2u : 0u, escape ? "" : noChoice});
    }
    expectFragments(cases);
}

namespace
{

struct RuleCase
{
    const char* name;
    Rule rule;
    std::string text;
    std::size_t length;
    std::string broken; // for the same rule
    std::string error;
    ANTLR3_UINT32 type;
    bool skipped = false;
};

} // namespace

#define RULE(name, text, length, broken, error)                                                    \
    {                                                                                              \
#name, &TomlLexer::m##name, text, length, broken, error, name                              \
    }

TEST(LexerRules, storeTheirTypeIfTheyMatch)
{
    const RuleCase rules[] = {
        RULE(T__69, ",,", 1, ".", mismatched),
        RULE(T__70, "..", 1, ",", mismatched),
        RULE(T__71, "==", 1, ",", mismatched),
        RULE(T__72, "[[", 1, "]", mismatched),
        RULE(T__73, "]]", 1, "[", mismatched),
        RULE(T__74, "{{", 1, "}", mismatched),
        RULE(T__75, "}}", 1, "{", mismatched),
        {ENTRY(WS), " \t\n", 2, "\n", earlyExit, WS, true},
        RULE(NL, "\n\r\n ", 3, " ", earlyExit),
        {ENTRY(COMMENT), "# a\r\n", 4, "a", mismatched, COMMENT, true},
        RULE(BOOLEAN, "truex", 4, "x", noChoice),
        RULE(BOOLEAN, "falsetrue", 5, "fals", mismatched),
        RULE(BASIC_STRING, "\"a\"b", 3, "'a'", mismatched),
        RULE(ML_BASIC_STRING, "\"\"\"a\"\"\"b", 7, "\"\"a", mismatched),
        RULE(ML_BASIC_STRING, "\"\"\"a\"\"\"\"b", 8, "\"\"\"a\"\"", mismatched),
        RULE(LITERAL_STRING, "'a'b", 3, "\"a\"", mismatched),
        RULE(ML_LITERAL_STRING, "'''a'''b", 7, "''a", mismatched),
        RULE(ML_LITERAL_STRING, "'''a''''b", 8, "'''a''", mismatched),
        RULE(FLOAT, "-1_0.5e3x", 8, "1x", noChoice),
        RULE(FLOAT, "1e3x", 3, "x", noChoice),
        RULE(INF, "+infx", 4, "nan", mismatched),
        RULE(NAN, "-nanx", 4, "inf", mismatched),
        RULE(DEC_INT, "0123", 1, "+x", noChoice),
        RULE(DEC_INT, "-12_3x", 5, "12_x", mismatchedSet),
        RULE(HEX_INT, "0xa_Fg", 5, "0xg", mismatchedSet),
        RULE(OCT_INT, "0o7_08", 5, "0o8", mismatchedSet),
        RULE(BIN_INT, "0b1_02", 5, "0b2", mismatchedSet),
        RULE(OFFSET_DATE_TIME, "1979-05-27T07:32:00ZZ", 20, "1979-05-27T07:32:00z", noChoice),
        RULE(LOCAL_DATE_TIME, "1979-05-27 07:32:00Z", 19, "1979-05-27x", mismatchedSet),
        RULE(LOCAL_DATE, "1979-05-27T", 10, "1979x", mismatched),
        RULE(LOCAL_TIME, "07:32:00.5Z", 10, "07:32:00.x", earlyExit),
        RULE(BARE_KEY, "aZ0_-.", 5, ".", earlyExit),
    };
    for (const RuleCase& expected : rules)
    {
        SCOPED_TRACE(std::string(expected.name) + ' ' + testing::PrintToString(expected.text));
        const RuleRun result = run(expected.rule, expected.text);
        EXPECT_EQ(result.error, "");
        EXPECT_EQ(result.length, expected.length);
        EXPECT_EQ(result.type, expected.type);
        EXPECT_EQ(result.skipped, expected.skipped);

        const RuleRun failed = run(expected.rule, expected.broken);
        EXPECT_EQ(failed.error, expected.error) << expected.broken;
        EXPECT_NE(failed.type, expected.type) << expected.broken;
        EXPECT_FALSE(failed.skipped) << expected.broken;
    }
}
