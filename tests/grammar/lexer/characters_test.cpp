// Characters beyond ASCII, and bytes that are none.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "support/lexer_run.h"
#include "support/utf8.h"

using namespace test;
using namespace std::string_literals;

namespace
{

constexpr std::uint32_t lastInClasses = 0xFFFF;

// Every character of the classes but the excluded ones.
std::string allBut(const std::string& excluded)
{
    std::string text;
    for (std::uint32_t point = 0; point <= lastInClasses; ++point)
    {
        if (point > 0x7F || excluded.find(static_cast<char>(point)) == std::string::npos)
        {
            text += utf8(point);
        }
    }
    return text;
}

const std::string beyond = utf8(lastInClasses + 1);

} // namespace

TEST(Characters, ofStringsAreAllButTheirDelimiters)
{
    struct Case
    {
        const char* type;
        std::string quotes;
        std::string excluded;
    };
    for (const Case& string : {
             Case{"BASIC_STRING", "\"", "\n\"\\"},
             Case{"LITERAL_STRING", "'", "\n'"},
             Case{"ML_BASIC_STRING", "\"\"\"", "\"\\"},
             Case{"ML_LITERAL_STRING", "'''", "'"},
         })
    {
        SCOPED_TRACE(string.type);
        const std::string text = string.quotes + allBut(string.excluded) + string.quotes;
        const LexerRun run = lex(text);
        EXPECT_EQ(typesAndTexts(run), (Tokens{{string.type, text}}));
        EXPECT_EQ(run.errorCount, 0u);
    }
}

TEST(Characters, ofCommentsAreAllButALineFeed)
{
    const LexerRun run = lex("#" + allBut("\n") + "\nend");
    EXPECT_EQ(typesAndTexts(run), (Tokens{{"NL", "\n"}, {"BARE_KEY", "end"}}));
    EXPECT_EQ(run.errorCount, 0u);
}

TEST(Characters, afterAQuoteInAMultilineStringAreAllButItsQuote)
{
    for (const std::string& first : {utf8(0), "\n"s, utf8(0x7F), utf8(0xE9), utf8(lastInClasses)})
    {
        expectOneToken("ML_BASIC_STRING", {"\"\"\"a\"" + first + "\"\"" + first + "\"\"\""});
        expectOneToken("ML_LITERAL_STRING", {"'''a'" + first + "''" + first + "'''"});
    }
}

TEST(Characters, outsideStringsAreAnErrorEach)
{
    expectLexed({
        {utf8(0xE9), {}, {"no token 1:0"}},
        {utf8(0x80) + utf8(lastInClasses) + beyond,
         {},
         {"no token 1:0", "no token 1:1", "no token 1:2"}},
        // "kluch" in Cyrillic letters
        {"\u043A\u043B\u044E\u0447 = 1",
         {{"'='", "="}, {"DEC_INT", "1"}},
         {"no token 1:0", "no token 1:1", "no token 1:2", "no token 1:3"}},
        {"na\u00EFve", {{"BARE_KEY", "na"}, {"BARE_KEY", "ve"}}, {"no token 1:2"}},
        {"true\u00E9", {{"BOOLEAN", "true"}}, {"no token 1:4"}},
        {"1\u0661", {{"DEC_INT", "1"}}, {"no token 1:1"}},
        {"1979-05-27\u00A0", {{"LOCAL_DATE", "1979-05-27"}}, {"no token 1:10"}},
        {"a\u0085b\u2028c",
         {{"BARE_KEY", "a"}, {"BARE_KEY", "b"}, {"BARE_KEY", "c"}},
         {"no token 1:1", "no token 1:3"}},
    });
}

TEST(Characters, beyondTheClassesBreakStringsAndComments)
{
    // In a string the character goes with the failure and the one behind it with the
    // recovery; a comment just ends.
    const std::string face = utf8(0x1F600);
    expectLexed({
        {"\"a" + face + "bc", {{"BARE_KEY", "c"}}, {"mismatched character 1:2"}},
        {"\"a" + beyond + "bc", {{"BARE_KEY", "c"}}, {"mismatched character 1:2"}},
        {"'a" + face + "bc", {{"BARE_KEY", "c"}}, {"mismatched character 1:2"}},
        {"\"\"\"a" + face + "bc", {{"BARE_KEY", "c"}}, {"mismatched character 1:4"}},
        {"'''a" + face + "bc", {{"BARE_KEY", "c"}}, {"mismatched character 1:4"}},
        {"\"\"\"a\"" + face + "bc", {{"BARE_KEY", "c"}}, {"mismatched character 1:5"}},
        {"'''a''" + face + "bc", {{"BARE_KEY", "c"}}, {"mismatched character 1:6"}},
        {"# a" + face + "b\nc",
         {{"BARE_KEY", "b"}, {"NL", "\n"}, {"BARE_KEY", "c"}},
         {"no token 1:3"}},
        {"\"" + face + "b\"",
         {{"BARE_KEY", "b"}},
         {"no token 1:1", "no token 1:1", "no token 1:4"}},
        {"'" + face + "b", {{"BARE_KEY", "b"}}, {"no token 1:1", "no token 1:1"}},
        {"\"\"" + face, {{"BASIC_STRING", "\"\""}}, {"no token 1:2"}},
        {"\"\\" + face + "b", {{"BARE_KEY", "b"}}, {"no escape 35 1:2"}},
        {"\"\"\"\\" + face, {}, {"no escape 34 1:3", "no token 1:4"}},
    });
}

TEST(Characters, ofAByteOrderMarkCountOnlyElsewhereThanAtTheStart)
{
    const std::string mark = utf8(0xFEFF);
    expectLexed({
        {mark, {}},
        {mark + "a = 1", {{"BARE_KEY", "a"}, {"'='", "="}, {"DEC_INT", "1"}}},
        {mark + "@", {}, {"no token 1:0"}},
        {mark + mark + "a", {{"BARE_KEY", "a"}}, {"no token 1:0"}},
        {"a" + mark, {{"BARE_KEY", "a"}}, {"no token 1:1"}},
        {" " + mark + "a", {{"BARE_KEY", "a"}}, {"no token 1:1"}},
        {"\"" + mark + "\"", {{"BASIC_STRING", "\"" + mark + "\""}}},
    });
}

TEST(Bytes, ofValueZeroAreCharacters)
{
    expectOneToken("BASIC_STRING", {"\"\0\""s, "\"a\0b\""s});
    expectOneToken("LITERAL_STRING", {"'\0'"s, "'a\0b'"s});
    expectOneToken("ML_BASIC_STRING", {"\"\"\"\0a\"\0\"\"\""s});
    expectOneToken("ML_LITERAL_STRING", {"'''\0a'\0'''"s});
    expectLexed({
        {"# a\0b\nc"s, {{"NL", "\n"}, {"BARE_KEY", "c"}}},
        {"\0a\0"s, {{"BARE_KEY", "a"}}, {"no token 1:0", "no token 1:2"}},
        {"\"\\\0a"s, {{"BARE_KEY", "a"}}, {"no escape 35 1:2"}},
    });
}

TEST(Bytes, ofACharacterCutOffAtTheEndAreNoCharacter)
{
    expectLexed({
        {"\xC3", {}},
        {"a\xC3", {{"BARE_KEY", "a"}}},
        {"a\xE2\x82", {{"BARE_KEY", "a"}}},
        {"a\xF0\x9F\x98", {{"BARE_KEY", "a"}}},
        {"# a\xF0\x9F", {}},
        {"1.\xC3", {}, {"mismatched set 1:2"}},
        {"\"a\xC3", {}, {"mismatched character 1:2"}},
        {"'''a\xE2\x82", {}, {"mismatched character 1:4"}},
        {"\"\\\xC3", {}, {"no escape 35 1:2"}},
        {"@\xC3", {}, {"no token 1:0"}},
    });
}

TEST(Bytes, ofACharacterCutOffTakeThoseBehindThemIn)
{
    // The first byte tells the length, whatever follows.
    expectLexed({
        {"\"a\xC3\"", {}, {"mismatched character 1:3"}},
        {"\"a\xC3\" b\"", {{"BASIC_STRING", "\"a\xC3\" b\""}}},
        {"\"a\xE2\x82\" b\"", {{"BASIC_STRING", "\"a\xE2\x82\" b\""}}},
        {"\xC3"
         "ab",
         {{"BARE_KEY", "b"}},
         {"no token 1:0"}},
        {"# a\xC3\nb\nc", {{"NL", "\n"}, {"BARE_KEY", "c"}}},
    });
}

TEST(Bytes, aloneOfThoseBehindTheFirstAreCharacters)
{
    expectLexed({
        {"\x80", {}, {"no token 1:0"}},
        {"\"\x80\xBF\"", {{"BASIC_STRING", "\"\x80\xBF\""}}},
        {"a\xBFz", {{"BARE_KEY", "a"}, {"BARE_KEY", "z"}}, {"no token 1:1"}},
    });
}

TEST(Bytes, ofAFormTooLongAreTheCharacter)
{
    expectLexed({
        {"a\xC0\x8A"
         "b",
         {{"BARE_KEY", "a"}, {"NL", "\xC0\x8A"}, {"BARE_KEY", "b"}}},
        {"\xC1\x81\xE0\x81\x82", {{"BARE_KEY", "\xC1\x81\xE0\x81\x82"}}},
    });
}

TEST(Bytes, thatReadAsTheEndOfTheInputEndIt)
{
    // Taken as a character, the two bytes have the value that stands for the end.
    const std::string end = "\xC1\x3F";
    struct Case
    {
        LexerCase expected;
        std::size_t end;
    };
    const Case cases[] = {
        {{end + "a", {}}, 0},
        {{"a" + end + "b", {{"BARE_KEY", "a"}}}, 1},
        {{"1 " + end + "2", {{"DEC_INT", "1"}}}, 2},
        {{"# a" + end + "\nb", {}}, 3},
        // In a string they are taken in with the failure; then the input goes on.
        {{"\"ab" + end + "cd\"", {{"BARE_KEY", "d"}}, {"mismatched character 1:3", "no token 1:7"}},
         8},
        {{"\"" + end + "a", {}, {"no token 1:1"}}, 1},
        {{"\"\"\"a\"" + end + "bc", {{"BARE_KEY", "c"}}, {"mismatched character 1:5"}}, 9},
    };
    for (const Case& ended : cases)
    {
        expectLexed(ended.expected);
        EXPECT_EQ(lex(ended.expected.text).end, ended.end) << ended.expected.text;
    }
}
