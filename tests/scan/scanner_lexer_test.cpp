// Wherever the scanner recognises a token, the lexer emits the same.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "support/scanning.h"

#include "support/lexer.h"

using namespace test;

namespace
{

// Pieces of tokens, whole ones and broken ones.
const std::vector<std::string> pieces = {
    "a",
    "-",
    "_",
    "e",
    "E",
    "x",
    "o",
    "b",
    "T",
    "t",
    "Z",
    "z",
    "0",
    "1",
    "7",
    "9",
    "12",
    "05",
    "1979",
    "07",
    ":",
    ".",
    ",",
    "=",
    "[",
    "]",
    "{",
    "}",
    "+",
    " ",
    "\t",
    "\n",
    "\r\n",
    "\r",
    "#",
    "\"",
    "'",
    "\"\"\"",
    "'''",
    "\\",
    "\\n",
    "\\u00e9",
    "\\\n",
    "true",
    "false",
    "inf",
    "nan",
    "0x",
    "0o",
    "0b",
    "1e",
    "1.5",
    "1_0",
    "07:32:00",
    "07:",
    "1979-05-27",
    "-05-27",
    "T07:32:00",
    " 07:32:00",
    "+07:00",
    ".5",
    "\xc3\xa9",
    "\xe2\x82\xac",
    "@",
    "key",
    " = ",
    "\"text\"",
    "'text'",
    "\xf0\x9f\x98\x80",
    "1979-05-27T07:32:00Z",
};

// The standard library's generators bring in <cmath>, whose NAN the recognisers redefine.
class Random
{
public:
    explicit Random(std::uint32_t seed) : state_(seed) {}

    std::size_t below(std::size_t limit)
    {
        state_ ^= state_ << 13;
        state_ ^= state_ >> 17;
        state_ ^= state_ << 5;
        return state_ % limit;
    }

private:
    std::uint32_t state_;
};

std::string generated(Random& random)
{
    std::string text;
    for (auto count = random.below(12) + 1; count > 0; --count)
    {
        text += pieces[random.below(pieces.size())];
    }
    return text;
}

bool isSkipped(TokenType type)
{
    return type == TokenType::blanks || type == TokenType::comment;
}

// Follows the scanner through the text as far as it recognises tokens, while the lexer's
// token source emits those that it does not skip; returns how many these are.
int followBoth(const std::string& text)
{
    const Lexer lexer(text);
    int count = 0;
    std::size_t at = 0;
    while (at < text.size())
    {
        const FoundToken found = scan(std::string_view(text).substr(at));
        if (found.type == TokenType::none)
        {
            return count;
        }
        if (!isSkipped(found.type))
        {
            const pANTLR3_COMMON_TOKEN token = lexer.next();
            EXPECT_EQ(static_cast<TokenType>(token->getType(token)), found.type) << "at " << at;
            EXPECT_EQ(lexer.offsetOf(token->getStartIndex(token)), at);
            EXPECT_EQ(lexer.offset(), at + found.length);
            EXPECT_EQ(lexer.recogniser()->getNumberOfSyntaxErrors(lexer.recogniser()), 0u);
            ++count;
        }
        at += found.length;
    }
    const pANTLR3_COMMON_TOKEN token = lexer.next();
    EXPECT_EQ(token->getType(token), ANTLR3_TOKEN_EOF);
    return count;
}

} // namespace

TEST(ScannerAndLexer, agreeAtEveryPlaceWhereTheScannerRecognisesAToken)
{
    Random random(20230);
    int recognised = 0;
    int notRecognised = 0;
    constexpr int rounds = 6000 / VORN_TEST_STEP;
    for (int round = 0; round < rounds && !testing::Test::HasFailure(); ++round)
    {
        const std::string text = generated(random);
        SCOPED_TRACE(testing::PrintToString(text));
        for (std::size_t at = 0; at < text.size(); ++at)
        {
            const FoundToken found = scan(std::string_view(text).substr(at));
            if (found.type != TokenType::none)
            {
                EXPECT_EQ(found, lexOnce(text.substr(at))) << "by the lexer, at " << at;
            }
            ++(found.type != TokenType::none ? recognised : notRecognised);
        }
    }
    EXPECT_GT(recognised, 3 * rounds);
    EXPECT_GT(notRecognised, rounds);
}

TEST(ScannerAndLexer, makeTheSameTokensOneAfterTheOther)
{
    Random random(4711);
    int tokens = 0;
    constexpr int rounds = 20000 / VORN_TEST_STEP;
    for (int round = 0; round < rounds && !testing::Test::HasFailure(); ++round)
    {
        const std::string text = generated(random);
        SCOPED_TRACE(testing::PrintToString(text));
        tokens += followBoth(text);
    }
    EXPECT_GT(tokens, rounds);
}
