// What the lexer makes of the texts of the tables: their tokens and errors, and in every kind
// of stream just what the lexer shows that the antlr3 tool makes from the grammar.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>

#include "support/lexer_run.h"
#include "tokens/token_table.h"

#include "support/lexer_agreement.h"

using namespace test;

namespace
{

constexpr std::size_t longestForAllStreams = 100;

class LexerTokens : public testing::TestWithParam<TokenTable>
{
};

// What is said of the scanner makes no difference to the lexer.
std::string kindForLexer(const std::string& kind)
{
    for (const std::string word : {"rare ", "malformed "})
    {
        if (kind.rfind(word, 0) == 0)
        {
            return kind.substr(word.size());
        }
    }
    return kind;
}

void expectPieces(const Row& expected, const Row& pieces)
{
    for (std::size_t index = 0; index < expected.size(); ++index)
    {
        const auto& [kind, text] = expected[index];
        if (kind == "rest")
        {
            return;
        }
        ASSERT_LT(index, pieces.size());
        if (kind == "fails")
        {
            EXPECT_TRUE(isError(pieces[index])) << pieces[index];
            return;
        }
        ASSERT_EQ(pieces[index], (Piece{kindForLexer(kind), text}));
    }
    EXPECT_EQ(pieces.size(), expected.size());
}

bool isHandedOut(const Piece& piece)
{
    return !isError(piece) && piece.kind != "WS" && piece.kind != "COMMENT" &&
           piece.kind != "unread";
}

} // namespace

TEST_P(LexerTokens, areThoseOfTheTable)
{
    for (const Row& row : GetParam().rows)
    {
        const std::string text = textOf(row);
        SCOPED_TRACE(testing::PrintToString(text));
        const LexerRun run = lex(text);
        expectPieces(row, run.pieces);
        Row tokens;
        std::copy_if(run.pieces.begin(), run.pieces.end(), std::back_inserter(tokens), isHandedOut);
        EXPECT_EQ(run.tokens, tokens);
        EXPECT_EQ(run.channels, 0U);
        EXPECT_EQ(run.errors, std::count_if(run.pieces.begin(), run.pieces.end(), isError));
    }
}

TEST_P(LexerTokens, areThoseOfTheGrammar)
{
    for (const Row& row : GetParam().rows)
    {
        const std::string text = textOf(row);
        for (const StreamKind kind : allStreamKinds)
        {
            if (kind == StreamKind::utf8 || text.size() <= longestForAllStreams)
            {
                ASSERT_TRUE(agree(text, kind));
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, LexerTokens, testing::ValuesIn(allTables()),
                         [](const auto& table) { return table.param.name; });
