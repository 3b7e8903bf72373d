// The scanner's token types have the grammar's numbers.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <string>

#include "scan/token_type.h"
#include "support/generated_file.h"

using vorn::parsers::toml::TokenType;

namespace
{

const std::map<std::string, TokenType> types = {
    {"BARE_KEY", TokenType::bareKey},
    {"BASIC_STRING", TokenType::basicString},
    {"BIN_INT", TokenType::binInt},
    {"BOOLEAN", TokenType::boolean},
    {"COMMENT", TokenType::comment},
    {"DEC_INT", TokenType::decInt},
    {"FLOAT", TokenType::floating},
    {"HEX_INT", TokenType::hexInt},
    {"INF", TokenType::inf},
    {"LITERAL_STRING", TokenType::literalString},
    {"LOCAL_DATE", TokenType::localDate},
    {"LOCAL_DATE_TIME", TokenType::localDateTime},
    {"LOCAL_TIME", TokenType::localTime},
    {"ML_BASIC_STRING", TokenType::mlBasicString},
    {"ML_LITERAL_STRING", TokenType::mlLiteralString},
    {"NAN", TokenType::nan},
    {"NL", TokenType::newline},
    {"OCT_INT", TokenType::octInt},
    {"OFFSET_DATE_TIME", TokenType::offsetDateTime},
    {"WS", TokenType::blanks},
    {"','", TokenType::comma},
    {"'.'", TokenType::dot},
    {"'='", TokenType::equals},
    {"'['", TokenType::openBracket},
    {"']'", TokenType::closeBracket},
    {"'{'", TokenType::openBrace},
    {"'}'", TokenType::closeBrace},
};

} // namespace

TEST(TokenType, hasTheNumbersOfTheVocabulary)
{
    const std::string vocabulary = test::generatedFile("Toml.tokens");
    for (const auto& [name, type] : types)
    {
        const std::string line = '\n' + name + '=' + std::to_string(static_cast<int>(type)) + '\n';
        EXPECT_NE(('\n' + vocabulary).find(line), std::string::npos) << line;
    }
    EXPECT_EQ(static_cast<int>(TokenType::endOfInput), -1);
    EXPECT_EQ(static_cast<int>(TokenType::none), 0);
}

TEST(TokenType, hasEveryTokenOfTheLexer)
{
    // The alternatives of the dispatch, which follow each other in its comment.
    const std::string lexer = test::generatedFile("TomlLexer.c");
    std::smatch dispatch;
    ASSERT_TRUE(std::regex_search(lexer, dispatch, std::regex("1:1: Tokens : \\(([^;]*)\\);")));
    const std::string alternatives = dispatch[1];
    const std::regex word("\\w+");
    std::size_t count = 0;
    for (std::sregex_iterator match(alternatives.begin(), alternatives.end(), word), end;
         match != end; ++match, ++count)
    {
        const std::string name = match->str();
        const bool known =
            name.rfind("T__", 0) == 0 ? name >= "T__69" && name <= "T__75" : types.count(name) == 1;
        EXPECT_TRUE(known) << name;
    }
    EXPECT_EQ(count, types.size());
}
