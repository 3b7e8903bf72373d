// A token stream that lexes on demand and forgets.
#include <gtest/gtest.h>

#include "pipeline/token_window.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "support/line_mixtures.h"
#include "support/text_generator.h"

#include "support/both_streams.h"

using namespace test;
using namespace vorn::parsers::toml;

namespace
{

const std::string longStatement = []
{
    std::string text = "a = [";
    for (int count = 0; count < 3000; ++count)
    {
        text += "12, ";
    }
    return text + "]";
}();

const std::string sample = "[a.'b'] # c\n\nd = [1, {e = \"f\"}]\n@ g = = 'h\ni\n";

} // namespace

TEST(TokenWindow, hasTheTokensOfTheRuntimesStream)
{
    for (const std::string& text : {std::string(), std::string("a"), std::string("@"), sample})
    {
        SCOPED_TRACE(testing::PrintToString(text));
        const BothStreams streams(text);
        streams.expectSame();
        while (!streams.areAtEnd())
        {
            streams.consumeBoth();
            streams.expectSame();
        }
        // At the end it stays.
        streams.consumeBoth();
        streams.expectSame();
        EXPECT_EQ(indexIn(streams.windows()), streams.count());
    }
}

// As decisions and repairs do it: look ahead, go on, and go back a few tokens.
TEST(TokenWindow, goesBackAFewTokensAsTheRuntimesStreamDoes)
{
    test::TextGenerator texts;
    for (int count = 0; count < 1000 && !HasFailure(); ++count)
    {
        const std::string text = texts.mixture(test::linePieces, 20);
        SCOPED_TRACE(testing::PrintToString(text));
        const BothStreams streams(text);
        ANTLR3_MARKER furthest = 0;
        while (furthest < streams.count())
        {
            const pANTLR3_INT_STREAM window = streams.windows()->istream;
            const pANTLR3_INT_STREAM runtimes = streams.runtimes()->istream;
            const ANTLR3_MARKER mark = window->mark(window);
            ASSERT_EQ(mark, runtimes->mark(runtimes));
            for (std::size_t steps = texts.below(4); steps > 0; --steps)
            {
                streams.expectSame();
                streams.consumeBoth();
            }
            streams.expectSame();
            furthest = std::max(furthest, indexIn(streams.windows()));
            if (furthest - mark < 4 && texts.chance())
            {
                window->rewind(window, mark);
                runtimes->rewind(runtimes, mark);
                EXPECT_EQ(indexIn(streams.windows()), mark);
            }
            else if (furthest > 3)
            {
                const ANTLR3_MARKER place = furthest - static_cast<ANTLR3_MARKER>(texts.below(4));
                window->seek(window, place);
                runtimes->seek(runtimes, place);
            }
            streams.expectSame();
            // So that it ends.
            streams.consumeBoth();
            streams.consumeBoth();
            furthest = std::max(furthest, indexIn(streams.windows()));
        }
    }
}

// The parsing is ended by a seek to the end.  What it has taken last it still has.
TEST(TokenWindow, isAtTheEndOfTheInputAfterASeekToItsSize)
{
    const BothStreams streams(sample);
    const pANTLR3_TOKEN_STREAM stream = streams.windows();
    for (int step = 0; step < 5; ++step)
    {
        consume(stream);
    }
    const Seen last = ahead(stream, -1);
    stream->istream->seek(stream->istream, stream->istream->size(stream->istream));
    const ANTLR3_MARKER end = indexIn(stream);
    for (int round = 0; round < 3; ++round)
    {
        for (const ANTLR3_INT32 place : {1, 2, 3})
        {
            EXPECT_EQ(typeAhead(stream, place), ANTLR3_TOKEN_EOF);
        }
        EXPECT_EQ(ahead(stream, -1), last);
        consume(stream);
        EXPECT_EQ(indexIn(stream), end);
    }
}

TEST(TokenWindow, hasNothingBeforeTheFirstToken)
{
    const std::string text = "a b";
    const BothStreams streams(text);
    const pANTLR3_TOKEN_STREAM stream = streams.windows();
    EXPECT_EQ(stream->_LT(stream, -1), nullptr);
    consume(stream);
    EXPECT_NE(stream->_LT(stream, -1), nullptr);
    EXPECT_EQ(stream->_LT(stream, -2), nullptr);
}

// Tokens that have been looked at, but not taken, are lexed again; the last one that was taken
// stays.
TEST(TokenWindow, forgetsTokensWithoutAnyLoss)
{
    BothStreams streams(sample);
    const ANTLR3_TOKEN_FACTORY& factory = *streams.pipeline().lexer().state()->tokFactory;
    streams.window().forget();
    while (!streams.areAtEnd())
    {
        streams.expectSame();
        streams.window().forget();
        EXPECT_EQ(factory.nextToken, 0u);
        streams.expectSame();
        streams.consumeBoth();
        streams.window().forget();
        streams.window().forget();
    }
    streams.expectSame();
}

TEST(TokenWindow, forgetsTheStringsOfItsTokens)
{
    BothStreams streams(sample);
    const ANTLR3_STRING_FACTORY& strings = *streams.windows()->tokenSource->strFactory;
    const ANTLR3_UINT32 before = strings.index;
    for (int step = 0; step < 4; ++step)
    {
        const pANTLR3_COMMON_TOKEN token = streams.windows()->_LT(streams.windows(), 1);
        token->toString(token);
        consume(streams.windows());
    }
    EXPECT_GT(strings.index, before);
    streams.window().forget();
    EXPECT_EQ(strings.index, before);
}

// Trees of a statement have all of its tokens.
TEST(TokenWindow, keepsAllTokensOfAStatementUnlessTheyAreRecycled)
{
    BothStreams streams(longStatement);
    std::vector<std::pair<pANTLR3_COMMON_TOKEN, Seen>> tokens;
    for (; !streams.areAtEnd(); streams.consumeBoth())
    {
        tokens.emplace_back(streams.windows()->_LT(streams.windows(), 1),
                            ahead(streams.runtimes(), 1));
    }
    ASSERT_EQ(tokens.size(), 6004u);
    for (const auto& [token, expected] : tokens)
    {
        ASSERT_EQ(seen(token), expected);
    }
    EXPECT_GT(streams.pipeline().lexer().state()->tokFactory->thisPool, 0);
}

TEST(TokenWindow, recyclesTheTokensOfAStatementThatIsLong)
{
    BothStreams streams(longStatement);
    streams.window().recycleFor(streams.pipeline().recogniser());
    for (; !streams.areAtEnd(); streams.consumeBoth())
    {
        streams.expectSame();
        ASSERT_EQ(streams.pipeline().lexer().state()->tokFactory->thisPool, 0);
    }
    streams.expectSame();
    EXPECT_EQ(streams.window().longestStatement(), 6004u);
}

TEST(TokenWindow, startsAgain)
{
    BothStreams streams(sample);
    const pANTLR3_BASE_RECOGNIZER parser = streams.pipeline().recogniser();
    streams.window().recycleFor(parser);
    for (const ANTLR3_INT32 steps : {0, 1, 3, 100})
    {
        for (ANTLR3_INT32 step = 0; step < steps; ++step)
        {
            streams.expectSame();
            streams.consumeBoth();
        }
        streams.window().restart();
        streams.runtimes()->istream->seek(streams.runtimes()->istream, 0);
        EXPECT_EQ(streams.pipeline().lexer().state()->tokFactory->nextToken, 0u);
        streams.expectSame();
    }
    // The parser that reads again has trees, with all tokens.
    antlr3RecognitionExceptionNew(parser);
    void* const failed = parser->state->exception->token;
    streams.window().forget();
    EXPECT_EQ(parser->state->exception->token, failed);
}
