// A lexer whose errors nobody hears of.
#include <gtest/gtest.h>

#include "pipeline/unreported_errors.h"

#include <string>
#include <vector>

#include "support/line_mixtures.h"
#include "support/recognition_errors.h"
#include "support/text_generator.h"

#include "support/window_pipeline.h"

using vorn::parsers::toml::UnreportedErrors;

namespace
{

ANTLR3_UINT32 errorsOf(const test::Lexer& lexer)
{
    return lexer.recogniser()->getNumberOfSyntaxErrors(lexer.recogniser());
}

// Where tokens are, and what they are.
std::vector<std::string> tokensOf(const test::Lexer& lexer)
{
    std::vector<std::string> tokens;
    for (auto* token = lexer.next(); token->type != ANTLR3_TOKEN_EOF; token = lexer.next())
    {
        tokens.push_back(std::to_string(token->type) + " at " +
                         std::to_string(lexer.offsetOf(token->start)) + " to " +
                         std::to_string(lexer.offsetOf(token->stop)));
    }
    return tokens;
}

} // namespace

TEST(UnreportedErrors, areNeitherDisplayedNorCounted)
{
    const std::string text = "@ a 'x\n @ b @ @";
    const test::Lexer lexer(text);
    test::ErrorKinds kinds;
    test::collectErrors(lexer.recogniser(), kinds);
    lexer.next();
    EXPECT_EQ(kinds.size(), 1u);
    {
        const UnreportedErrors unreported(lexer.recogniser());
        while (lexer.next()->line == 1)
        {
        }
        EXPECT_EQ(lexer.state()->exception, nullptr);
    }
    EXPECT_EQ(kinds.size(), 1u);
    EXPECT_EQ(errorsOf(lexer), 1u);
    // Those after it are again.
    EXPECT_EQ(lexer.next()->type, ANTLR3_TOKEN_EOF);
    EXPECT_EQ(kinds.size(), 3u);
    EXPECT_EQ(errorsOf(lexer), 3u);
}

TEST(UnreportedErrors, changeNoToken)
{
    test::TextGenerator texts;
    for (int count = 0; count < 3000 && !HasFailure(); ++count)
    {
        const std::string text = texts.mixture(test::linePieces, 12);
        SCOPED_TRACE(testing::PrintToString(text));
        const test::Lexer reporting(text);
        test::silence(reporting);
        const test::Lexer quiet(text);
        const UnreportedErrors unreported(quiet.recogniser());
        EXPECT_EQ(tokensOf(quiet), tokensOf(reporting));
        EXPECT_EQ(errorsOf(quiet), 0u);
    }
}
