#include "scanning.h"

#include <gtest/gtest.h>

#include "scan/scanner.h"
#include "support/guarded_memory.h"

#include "support/lexer.h"

namespace test
{
namespace
{

constexpr std::size_t longestText = 1 << 16;

void expectBeginningsScanned(const std::string& text)
{
    for (std::size_t length = 1; length < text.size(); ++length)
    {
        const FoundToken found = scan(text.substr(0, length));
        EXPECT_LE(found.length, length);
    }
}

void expectNothingFound(const std::string& text)
{
    EXPECT_EQ(scan(text), FoundToken());
    expectBeginningsScanned(text);
}

} // namespace

bool operator==(const FoundToken& left, const FoundToken& right)
{
    return left.type == right.type && left.length == right.length;
}

std::ostream& operator<<(std::ostream& stream, const FoundToken& token)
{
    if (token.type == TokenType::none)
    {
        return stream << "nothing";
    }
    return stream << TomlParserTokenNames[static_cast<std::size_t>(token.type)] << " of "
                  << token.length << " bytes";
}

FoundToken scan(std::string_view text)
{
    static GuardedMemory memory(longestText);
    const char* const begin = memory.hold(text);
    const vorn::parsers::toml::Token token = vorn::parsers::toml::scanToken(begin, memory.end());
    if (token.type == TokenType::none)
    {
        EXPECT_EQ(token.end, nullptr) << "of nothing";
        return {};
    }
    return {token.type, static_cast<std::size_t>(token.end - begin)};
}

FoundToken lexOnce(const std::string& text)
{
    const Lexer lexer(text);
    const pANTLR3_RECOGNIZER_SHARED_STATE state = lexer.state();
    lexer.get()->mTokens(lexer.get());
    if (state->error == ANTLR3_TRUE)
    {
        return {};
    }
    return {static_cast<TokenType>(state->type), lexer.offset()};
}

void expectScanned(TokenType type, const std::vector<ScannedCase>& cases)
{
    for (const auto& [token, behind] : cases)
    {
        const std::string text = token + behind;
        SCOPED_TRACE(testing::PrintToString(text));
        const FoundToken expected = {type, token.size()};
        EXPECT_EQ(scan(text), expected);
        EXPECT_EQ(lexOnce(text), expected) << "by the lexer";
        expectBeginningsScanned(text);
    }
}

void expectNotRecognised(const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        SCOPED_TRACE(testing::PrintToString(text));
        expectNothingFound(text);
        EXPECT_EQ(lexOnce(text), FoundToken()) << "by the lexer";
    }
}

void expectLeftToLexer(const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        SCOPED_TRACE(testing::PrintToString(text));
        expectNothingFound(text);
        EXPECT_NE(lexOnce(text).type, TokenType::none);
    }
}

} // namespace test
