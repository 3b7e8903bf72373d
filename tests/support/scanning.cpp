#include "scanning.h"

#include <gtest/gtest.h>

#include "scan/scanner.h"
#include "support/guarded_memory.h"

#include "support/lexer.h"

extern "C" pTomlLexer referenceTomlLexerNew(pANTLR3_INPUT_STREAM input);

namespace test
{
namespace
{

constexpr std::size_t longestText = 1 << 18;

std::string nameOf(TokenType type)
{
    return reinterpret_cast<const char*>(TomlParserTokenNames[static_cast<std::size_t>(type)]);
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
    return stream << nameOf(token.type) << " of " << token.length << " bytes";
}

TokenType typeOf(const std::string& name)
{
    auto type = static_cast<int>(std::size(TomlParserTokenNames)) - 1;
    while (type > 0 && nameOf(static_cast<TokenType>(type)) != name)
    {
        --type;
    }
    return static_cast<TokenType>(type);
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

FoundToken lexedByGrammar(const std::string& text)
{
    const InputStream input = openInput(text);
    const std::unique_ptr<TomlLexer, FreeRecogniser> lexer(referenceTomlLexerNew(input.get()));
    lexer->mTokens(lexer.get());
    const ANTLR3_RECOGNIZER_SHARED_STATE& state = *lexer->pLexer->rec->state;
    if (state.error == ANTLR3_TRUE)
    {
        return {};
    }
    return {static_cast<TokenType>(state.type),
            static_cast<std::size_t>(static_cast<const char*>(input->nextChar) -
                                     static_cast<const char*>(input->data))};
}

} // namespace test
