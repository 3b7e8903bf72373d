// What the scanner makes of the texts of the tables: wherever the lexer has a token, the same;
// nothing where the lexer fails, and where the table says that the token is left to the lexer.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "support/scanning.h"
#include "tokens/token_table.h"

using namespace test;

namespace
{

constexpr std::size_t following = 200;    // bytes that the scanner may look at after a piece
constexpr std::size_t longestCutOff = 60; // texts cut off at every byte

class ScannerTokens : public testing::TestWithParam<TokenTable>
{
};

bool isRecognised(const Piece& piece)
{
    return !isError(piece) && piece.kind != "unread" && piece.kind.rfind("rare ", 0) != 0;
}

bool isMalformed(const Piece& piece)
{
    return piece.kind.rfind("malformed ", 0) == 0;
}

void expectScanned(const Row& row, const std::string& text)
{
    std::size_t at = 0;
    for (const Piece& piece : row)
    {
        if (piece.kind == "rest")
        {
            break;
        }
        const std::string_view rest =
            std::string_view(text).substr(at, piece.text.size() + following);
        const FoundToken expected =
            isRecognised(piece) ? FoundToken{typeOf(piece.kind), piece.text.size()} : FoundToken();
        const FoundToken found = scan(rest);
        if (isMalformed(piece))
        {
            ASSERT_LT(found.length, piece.text.size());
            ASSERT_LT(static_cast<signed char>(piece.text[found.length]), 0);
        }
        else
        {
            ASSERT_EQ(found, expected) << "at " << at;
        }
        at += piece.text.size();
    }
}

} // namespace

TEST_P(ScannerTokens, areThoseOfTheTable)
{
    for (const Row& row : GetParam().rows)
    {
        const std::string text = textOf(row);
        SCOPED_TRACE(testing::PrintToString(text));
        expectScanned(row, text);
    }
}

TEST_P(ScannerTokens, areFoundWithoutALookAfterTheEnd)
{
    for (const Row& row : GetParam().rows)
    {
        const std::string text = textOf(row).substr(0, longestCutOff);
        for (std::size_t length = 1; length < text.size(); ++length)
        {
            EXPECT_LE(scan(text.substr(0, length)).length, length);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, ScannerTokens, testing::ValuesIn(allTables()),
                         [](const auto& table) { return table.param.name; });
