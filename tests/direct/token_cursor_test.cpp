// The tokens of a text, without its blanks and comments.
#include <gtest/gtest.h>

#include "direct/token_cursor.h"

#include <string>
#include <utility>
#include <vector>

#include "support/guarded_memory.h"

using namespace std::string_literals;
using vorn::parsers::toml::TakenToken;
using vorn::parsers::toml::TokenCursor;
using vorn::parsers::toml::TokenType;

namespace
{

using Tokens = std::vector<std::pair<TokenType, std::string>>;

const std::pair<TokenType, std::string> nothing = {TokenType::none, ""};

// All tokens up to the end of the text, or up to what is not recognised.
Tokens tokensOf(const std::string& text)
{
    test::GuardedMemory memory(text.size() + 1);
    TokenCursor scanned(memory.holdTerminated(text), memory.terminator());
    Tokens tokens;
    while (!scanned.atEnd())
    {
        const char* const position = scanned.position();
        const TakenToken lexeme = scanned.take();
        tokens.emplace_back(lexeme.type, lexeme.text);
        if (lexeme.type == TokenType::none)
        {
            EXPECT_EQ(scanned.position(), position);
            return tokens;
        }
        EXPECT_EQ(lexeme.text.data(), position);
    }
    EXPECT_EQ(scanned.take().type, TokenType::none) << "at the end";
    EXPECT_EQ(scanned.position(), memory.terminator());
    return tokens;
}

struct Case
{
    std::string text;
    Tokens tokens;
};

void expectTokens(const std::vector<Case>& cases)
{
    for (const auto& [text, tokens] : cases)
    {
        EXPECT_EQ(tokensOf(text), tokens) << testing::PrintToString(text);
    }
}

const std::pair<TokenType, std::string> a = {TokenType::bareKey, "a"};
const std::pair<TokenType, std::string> equals = {TokenType::equals, "="};
const std::pair<TokenType, std::string> one = {TokenType::decInt, "1"};
const std::pair<TokenType, std::string> newline = {TokenType::newline, "\n"};

} // namespace

TEST(TokenCursor, endWithTheText)
{
    expectTokens({{"", {}},
                  {" ", {}},
                  {" \t ", {}},
                  {"#", {}},
                  {"# c", {}},
                  {" # c \t", {}},
                  {"a", {a}},
                  {"a ", {a}},
                  {"a # c", {a}},
                  {"\n", {newline}}});
}

TEST(TokenCursor, comeWithoutBlanksAndComments)
{
    expectTokens({{"a=1\n", {a, equals, one, newline}},
                  {" a\t=  1 \n", {a, equals, one, newline}},
                  {"a = 1 # c\n", {a, equals, one, newline}},
                  {"a#=1\n=1", {a, newline, equals, one}},
                  {"# c\r\na", {newline, a}},
                  {"#\n#\n", {newline, newline}},
                  {"\n \n", {newline, newline}},
                  {"# \xc3\xa9 \0 c\na"s, {newline, a}}});
}

TEST(TokenCursor, endWhereNothingIsRecognised)
{
    expectTokens({{"@", {nothing}},
                  {"a @", {a, nothing}},
                  {"a = 'x\n", {a, equals, nothing}},
                  {"# \xff\na", {nothing}},
                  {"a # \xf0\x9f\x98\x80\n", {a, nothing}},
                  {"# c\n\r", {nothing}},
                  {"# c\n \r", {newline, nothing}},
                  {"#\xc3", {nothing}},
                  {" \r", {nothing}}});
}

TEST(TokenCursor, areKnownByTheirFirstCharacter)
{
    for (const char c : {',', '.', '=', '[', ']', '{', '}', 'a', '"', '\n'})
    {
        SCOPED_TRACE(c);
        for (const std::string blanks : {"", " ", "\t \t", " # c", "#"})
        {
            // A comment ends before a line break only.
            if (blanks.find('#') != std::string::npos && c != '\n')
            {
                continue;
            }
            const std::string text = blanks + c;
            const TokenCursor scanned(text.data(), text.data() + text.size());
            EXPECT_FALSE(scanned.atEnd());
            for (int value = 0; value < 256; ++value)
            {
                const char other = static_cast<char>(value);
                EXPECT_EQ(scanned.isNext(other), other == c) << value;
            }
            EXPECT_EQ(scanned.position(), text.data() + blanks.size());
        }
    }
}

TEST(TokenCursor, ofOneCharacterAreTakenIfTheyAreNext)
{
    for (const char mark : {',', '.', '=', '[', ']', '{', '}'})
    {
        SCOPED_TRACE(mark);
        const std::string text = std::string(" ") + mark + " # c\n" + mark + 'a';
        TokenCursor scanned(text.data(), text.data() + text.size());
        EXPECT_FALSE(scanned.take('a'));
        EXPECT_EQ(scanned.position(), text.data() + 1);
        EXPECT_TRUE(scanned.take(mark));
        EXPECT_EQ(scanned.position(), text.data() + 6);
        EXPECT_FALSE(scanned.take(mark));
        EXPECT_TRUE(scanned.takeNewline());
        EXPECT_TRUE(scanned.take(mark));
        EXPECT_FALSE(scanned.take(mark));
        EXPECT_EQ(scanned.take().type, TokenType::bareKey);
        EXPECT_TRUE(scanned.atEnd());
        EXPECT_FALSE(scanned.take(mark));
        EXPECT_FALSE(scanned.isNext(mark));
    }
}

TEST(TokenCursor, ofLineBreaksAreTakenIfTheyAreNext)
{
    struct LineBreaks
    {
        std::string text;
        bool taken;
        std::size_t position; // then
    };
    for (const auto& [text, taken, position] : std::vector<LineBreaks>{{"\n", true, 1},
                                                                       {"\r\n", true, 2},
                                                                       {"\n\r\n\n", true, 4},
                                                                       {" \n a", true, 3},
                                                                       {"\n# c\n", true, 4},
                                                                       {"# c\r\n", true, 5},
                                                                       {"\n @", true, 2},
                                                                       {"", false, 0},
                                                                       {" ", false, 1},
                                                                       {"a", false, 0},
                                                                       {"\r", false, 0},
                                                                       {"\n\r", false, 0},
                                                                       {"@", false, 0},
                                                                       {"#\xff\n", false, 0}})
    {
        SCOPED_TRACE(testing::PrintToString(text));
        test::GuardedMemory memory(text.size() + 1);
        const char* const begin = memory.holdTerminated(text);
        TokenCursor scanned(begin, memory.terminator());
        EXPECT_EQ(scanned.takeNewline(), taken);
        EXPECT_EQ(scanned.position(), begin + position);
    }
}

// Bytes that are not ASCII may be a malformed line break, with which the lexer goes on: \xC0\x8A is
// one in two bytes, \xF8\x80\x80\x80\x8A in five.
TEST(TokenCursor, ofLineBreaksAreNotTakenWhereTheyMayGoOn)
{
    for (const std::string lineBreaks : {"\n", "\r\n", "\n\n", "\n\r\n", "# c\n"})
    {
        for (const std::string after : {"\xc0\x8a", "\xf8\x80\x80\x80\x8a", "\xc3\xa9",
                                        "\xe2\x82\xac", "\x80", "\xff", "\xc0"})
        {
            const std::size_t start = lineBreaks.find_first_of("\r\n");
            for (const std::string blank : {"", " "})
            {
                const std::string text = lineBreaks + blank + after;
                SCOPED_TRACE(testing::PrintToString(text));
                test::GuardedMemory memory(text.size() + 1);
                const char* const begin = memory.holdTerminated(text);
                TokenCursor scanned(begin, memory.terminator());
                // A blank between them ends the token.
                EXPECT_EQ(scanned.takeNewline(), !blank.empty());
                EXPECT_EQ(scanned.position(),
                          begin + (blank.empty() ? start : lineBreaks.size() + 1));
            }
        }
    }
}

TEST(TokenCursor, haveTheTextWhereItStands)
{
    const std::string text = " key = 'value' # c\n";
    TokenCursor scanned(text.data(), text.data() + text.size());
    for (const std::size_t place : {1u, 5u, 7u, 18u})
    {
        EXPECT_EQ(scanned.position(), text.data() + place);
        EXPECT_EQ(scanned.take().text.data(), text.data() + place);
    }
    EXPECT_EQ(scanned.position(), text.data() + text.size());
}
