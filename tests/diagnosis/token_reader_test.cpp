#include "diagnosis/lexer_cursor.h"
#include "diagnosis/token_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace toml = vorn::parsers::toml;
using toml::TokenType;
using toml::diagnosis::DocumentToken;
using toml::diagnosis::LexerCursor;
using toml::diagnosis::TokenReader;

namespace
{

std::vector<std::string> tokensOf(const std::string& text, std::size_t begin = 0)
{
    TokenReader reader(text, begin, TokenReader::Errors::all);
    std::vector<std::string> tokens;
    for (DocumentToken token = reader.next(); token.type != TokenType::endOfInput;
         token = reader.next())
    {
        tokens.push_back(text.substr(token.begin, token.end - token.begin));
    }
    return tokens;
}

std::size_t errorsOf(const std::string& text, TokenReader::Errors errors)
{
    TokenReader reader(text, 0, errors);
    while (reader.next().type != TokenType::endOfInput)
    {
    }
    return reader.errors().size();
}

} // namespace

TEST(TokenReader, readsTheTokensOfTheLexer)
{
    using Tokens = std::vector<std::string>;
    EXPECT_EQ(tokensOf(""), Tokens());
    EXPECT_EQ(tokensOf("a.b = [1, 'c'] # d\n\n"),
              (Tokens{"a", ".", "b", "=", "[", "1", ",", "'c'", "]", "\n\n"}));
    EXPECT_EQ(tokensOf("a = 1\nb = 2\n", 6), (Tokens{"b", "=", "2", "\n"}));
    // A byte order mark is none but at the start.
    EXPECT_EQ(tokensOf("\xef\xbb\xbf"
                       "a"),
              (Tokens{"a"}));
    EXPECT_EQ(errorsOf("\xef\xbb\xbf"
                       "a",
                       TokenReader::Errors::all),
              0U);
    EXPECT_EQ(errorsOf("b\n\xef\xbb\xbf"
                       "a",
                       TokenReader::Errors::all),
              1U);
}

TEST(TokenReader, endsWhereTheLexerFindsTheEnd)
{
    const std::string text = "a = \xc1?\nb = 1\n";
    TokenReader reader(text, 0, TokenReader::Errors::all);
    reader.next();
    reader.next();
    const DocumentToken end = reader.next();
    EXPECT_EQ(end.type, TokenType::endOfInput);
    EXPECT_EQ(end.begin, 4U);
    EXPECT_EQ(end.end, 4U);
}

TEST(TokenReader, keepsOnlyIndependentErrorsIfItIsTold)
{
    EXPECT_EQ(errorsOf("@@ @ a @\n@\n", TokenReader::Errors::all), 5U);
    EXPECT_EQ(errorsOf("@@ @ a @\n@\n", TokenReader::Errors::independent), 2U);
    EXPECT_EQ(errorsOf("'''a", TokenReader::Errors::independent), 1U);
    // After one in a string of several lines, all of them follow.
    EXPECT_EQ(errorsOf("\"\"\"\\q\n@\n@\n", TokenReader::Errors::independent), 1U);
    // But one in such a string is told, too, where it comes after another.
    EXPECT_EQ(errorsOf("@ \"\"\"\\q\n@\n", TokenReader::Errors::independent), 2U);
}

TEST(LexerCursor, knowsTheTokensOfOneCharacter)
{
    const std::string text = "[]{},.=";
    LexerCursor cursor(text, 0);
    for (const char c : text)
    {
        EXPECT_FALSE(cursor.isNext('a'));
        EXPECT_TRUE(cursor.isNext(c)) << c;
        EXPECT_TRUE(cursor.take(c)) << c;
    }
    EXPECT_TRUE(cursor.atEnd());
    EXPECT_FALSE(cursor.take('='));
}

TEST(LexerCursor, knowsTheTokenThatWasRefused)
{
    const std::string text = "a = 1 ]\n";
    LexerCursor cursor(text, 0);
    EXPECT_FALSE(cursor.isNext('='));
    EXPECT_EQ(cursor.take().text, "a");
    // Nothing has asked for the next one yet.
    EXPECT_EQ(cursor.refused().begin, 0U);
    EXPECT_TRUE(cursor.isNext('='));
    EXPECT_EQ(cursor.refused().begin, 0U);
    EXPECT_TRUE(cursor.take('='));
    EXPECT_EQ(cursor.refused().begin, 4U);
    EXPECT_EQ(cursor.take().type, TokenType::decInt);
    EXPECT_EQ(cursor.refused().begin, 4U);
    EXPECT_FALSE(cursor.takeNewline());
    EXPECT_EQ(cursor.refused().begin, 6U);
    EXPECT_TRUE(cursor.take(']'));
    EXPECT_TRUE(cursor.takeNewline());
    EXPECT_TRUE(cursor.atEnd());
    EXPECT_EQ(cursor.take().type, TokenType::endOfInput);
    EXPECT_EQ(cursor.position(), text.data() + text.size());
}
