// The scanner on single bytes, and on random texts beside the lexer that the antlr3 tool makes.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "support/lexer_texts.h"
#include "support/scanning.h"

using namespace test;

namespace
{

// A character that is not ASCII may go on with the token in a malformed form of one that is.
bool mayGoOn(char c)
{
    return static_cast<signed char>(c) < 0;
}

} // namespace

TEST(Scanner, findsTokensOfOneByte)
{
    const std::string alone = ",.=[]{} \t\n#-_0123456789"
                              "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    for (int value = 0; value < 256; ++value)
    {
        const std::string byte(1, static_cast<char>(value));
        const bool isToken = alone.find(byte) != std::string::npos;
        EXPECT_EQ(scan(byte).length, isToken ? 1u : 0u) << value;
    }
}

TEST(Scanner, findsNoOtherTokensThanTheLexer)
{
    Texts texts(20230);
    int recognised = 0;
    int notRecognised = 0;
    constexpr int rounds = 6000 / VORN_TEST_STEP;
    for (int round = 0; round < rounds && !HasFailure(); ++round)
    {
        const std::string text = texts.fragmentsInARow();
        for (std::size_t at = 0; at < text.size(); ++at)
        {
            const FoundToken found = scan(std::string_view(text).substr(at));
            const std::size_t end = at + found.length;
            ++(found.length != 0 ? recognised : notRecognised);
            if (found.length != 0 && (end == text.size() || !mayGoOn(text[end])))
            {
                EXPECT_EQ(found, lexedByGrammar(text.substr(at)))
                    << "by the lexer, at " << at << " of " << testing::PrintToString(text);
            }
        }
    }
    EXPECT_GT(recognised, 3 * rounds);
    EXPECT_GT(notRecognised, rounds);
}
