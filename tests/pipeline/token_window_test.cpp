// A token stream that lexes on demand and forgets, beside the runtime's own, which has all tokens.
#include <gtest/gtest.h>

#include "pipeline/token_window.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "grammar/runtime_string.h"
#include "pipeline/runtime_text.h"
#include "support/line_mixtures.h"
#include "support/text_generator.h"

#include "support/window_pipeline.h"

using namespace vorn::parsers::toml;

namespace
{

// What the window may not change of a token.
using Seen = std::tuple<ANTLR3_UINT32, ANTLR3_MARKER, ANTLR3_MARKER, ANTLR3_UINT32, ANTLR3_INT32,
                        ANTLR3_UINT32>;

Seen seen(pANTLR3_COMMON_TOKEN token)
{
    if (token == nullptr)
    {
        return {};
    }
    // (The runtime gives the end of the input the number of tokens for a place.)
    const bool isLexed = token->type != ANTLR3_TOKEN_EOF;
    return {token->type, isLexed ? token->start : 0, isLexed ? token->stop : 0,
            token->line, token->charPosition,        token->channel};
}

Seen ahead(pANTLR3_TOKEN_STREAM stream, ANTLR3_INT32 place)
{
    return seen(stream->_LT(stream, place));
}

ANTLR3_UINT32 typeAhead(pANTLR3_TOKEN_STREAM stream, ANTLR3_INT32 place = 1)
{
    return stream->istream->_LA(stream->istream, place);
}

ANTLR3_MARKER indexIn(pANTLR3_TOKEN_STREAM stream)
{
    return stream->istream->index(stream->istream);
}

void consume(pANTLR3_TOKEN_STREAM stream)
{
    stream->istream->consume(stream->istream);
}

// Both streams of a text.
class Streams
{
public:
    explicit Streams(const std::string& text) : runtimes_(text), windows_(text)
    {
        test::silence(runtimes_.lexer());
        test::silence(windows_.lexer());
        // It fills itself with tokens when it is asked for one.
        runtimes()->_LT(runtimes(), 1);
    }

    pANTLR3_TOKEN_STREAM runtimes() const { return runtimes_.tokens()->tstream; }
    pANTLR3_TOKEN_STREAM windows() const { return windows_.stream(); }
    test::WindowPipeline& pipeline() { return windows_; }
    TokenWindow& window() { return windows_.window(); }

    ANTLR3_UINT32 count() const
    {
        return runtimes_.tokens()->tstream->istream->size(runtimes()->istream);
    }

    void expectSame() const
    {
        EXPECT_EQ(indexIn(windows()), indexIn(runtimes()));
        for (const ANTLR3_INT32 place : {-1, 1, 2})
        {
            EXPECT_EQ(ahead(windows(), place), ahead(runtimes(), place)) << place;
            if (place > 0)
            {
                EXPECT_EQ(typeAhead(windows(), place), typeAhead(runtimes(), place)) << place;
            }
        }
    }
    void consumeBoth() const
    {
        consume(windows());
        consume(runtimes());
    }
    bool areAtEnd() const { return typeAhead(runtimes()) == ANTLR3_TOKEN_EOF; }

    // Goes to the runtime's token that is next in the window.
    void followWindow() const
    {
        while (!areAtEnd() && ahead(runtimes(), 1) != ahead(windows(), 1))
        {
            consume(runtimes());
        }
    }

private:
    test::ParserPipeline runtimes_;
    test::WindowPipeline windows_;
};

std::string repeated(const std::string& text, std::size_t count)
{
    std::string all;
    for (; count > 0; --count)
    {
        all += text;
    }
    return all;
}

const std::string sample = "[a.'b'] # c\n\nd = [1, {e = \"f\"}]\n@ g = = 'h\ni\n";

// A parser's exception at its next token.
pANTLR3_COMMON_TOKEN failAtNext(pANTLR3_BASE_RECOGNIZER parser)
{
    antlr3RecognitionExceptionNew(parser);
    return static_cast<pANTLR3_COMMON_TOKEN>(parser->state->exception->token);
}

pANTLR3_COMMON_TOKEN tokenOfError(pANTLR3_BASE_RECOGNIZER parser)
{
    return static_cast<pANTLR3_COMMON_TOKEN>(parser->state->exception->token);
}

} // namespace

TEST(TokenWindow, hasTheTokensOfTheRuntimesStream)
{
    for (const std::string& text : {std::string(), std::string("a"), std::string("@"), sample})
    {
        SCOPED_TRACE(testing::PrintToString(text));
        const Streams streams(text);
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
        const Streams streams(text);
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
    const Streams streams(sample);
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
    const Streams streams("a b");
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
    Streams streams(sample);
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
    Streams streams(sample);
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
    const std::string text = "a = [" + repeated("12, ", 3000) + "]";
    Streams streams(text);
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
    const std::string text = "a = [" + repeated("12, ", 3000) + "]";
    Streams streams(text);
    streams.window().recycleFor(streams.pipeline().recogniser());
    for (; !streams.areAtEnd(); streams.consumeBoth())
    {
        streams.expectSame();
        ASSERT_EQ(streams.pipeline().lexer().state()->tokFactory->thisPool, 0);
    }
    streams.expectSame();
    EXPECT_EQ(streams.window().longestStatement(), 6004u);
}

TEST(TokenWindow, passesOverValidLinesWhereTheParserStartsToReadOne)
{
    test::TextGenerator texts;
    std::size_t passed = 0;
    for (int count = 0; count < 2000 && !HasFailure(); ++count)
    {
        const std::string text = texts.mixture(test::linePieces, 16);
        SCOPED_TRACE(testing::PrintToString(text));
        Streams streams(text);
        bool atLineStart = true;
        for (;;)
        {
            // The parser may have looked ahead.
            ahead(streams.windows(), static_cast<ANTLR3_INT32>(1 + texts.below(2)));
            const Seen last = ahead(streams.windows(), -1);
            const bool hasPassed = !streams.window().enterLine().empty();
            ASSERT_TRUE(atLineStart || !hasPassed);
            passed += hasPassed ? 1 : 0;
            EXPECT_EQ(ahead(streams.windows(), -1), last);
            streams.followWindow();
            EXPECT_EQ(ahead(streams.windows(), 1), ahead(streams.runtimes(), 1));
            EXPECT_EQ(ahead(streams.windows(), 2), ahead(streams.runtimes(), 2));
            if (streams.areAtEnd())
            {
                break;
            }
            // The index counts what was passed, whether there has been an index before or not.
            if (texts.chance())
            {
                EXPECT_EQ(streams.window().indexOf(*streams.windows()->_LT(streams.windows(), 1)),
                          static_cast<std::size_t>(indexIn(streams.runtimes())));
            }
            atLineStart = isNewline(typeAhead(streams.windows()));
            streams.consumeBoth();
        }
    }
    EXPECT_GT(passed, 500u);
}

TEST(TokenWindow, givesTheTextThatItPassesOver)
{
    const std::string text = "a = 1\n# c\n\nb\nc = 2\nd = 3\n";
    test::WindowPipeline pipeline(text);
    TokenWindow& window = pipeline.window();
    EXPECT_EQ(window.enterLine(), "a = 1\n# c");
    EXPECT_EQ(typeAhead(pipeline.stream()), static_cast<ANTLR3_UINT32>(NL));
    consume(pipeline.stream());
    EXPECT_EQ(window.enterLine(), "");
    consume(pipeline.stream());
    EXPECT_EQ(window.enterLine(), "") << "within a line";
    consume(pipeline.stream());
    EXPECT_EQ(window.enterLine(), "c = 2\nd = 3\n");
    EXPECT_EQ(typeAhead(pipeline.stream()), ANTLR3_TOKEN_EOF);
}

TEST(TokenWindow, knowsTheLongestStatementThatWasTaken)
{
    const std::string text = "a b c\nd\ne f g h\ni";
    test::WindowPipeline pipeline(text);
    TokenWindow& window = pipeline.window();
    const auto take = [&](int count)
    {
        window.enterLine();
        for (; count > 0; --count)
        {
            consume(pipeline.stream());
        }
        return window.longestStatement();
    };
    EXPECT_EQ(window.longestStatement(), 0u);
    EXPECT_EQ(take(4), 4u);
    EXPECT_EQ(take(2), 4u);
    EXPECT_EQ(take(5), 5u);
    // What has been looked at does not count, nor do tokens after the end.
    ahead(pipeline.stream(), 1);
    EXPECT_EQ(take(0), 5u);
    const pANTLR3_INT_STREAM stream = pipeline.stream()->istream;
    stream->seek(stream, stream->size(stream));
    EXPECT_EQ(window.longestStatement(), 5u);
    // It is known also when the document is read again.
    window.restart();
    EXPECT_EQ(window.longestStatement(), 5u);
    EXPECT_EQ(take(2), 5u);
}

TEST(TokenWindow, startsAgain)
{
    Streams streams(sample);
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
    const pANTLR3_COMMON_TOKEN failed = failAtNext(parser);
    streams.window().forget();
    EXPECT_EQ(tokenOfError(parser), failed);
}

TEST(TokenWindow, keepsTheTokenOfTheLastError)
{
    const std::string text = "a = 1\nb = '\xc3\xa9'\n@ c\nd\n" + repeated("e ", 3000);
    for (const bool isAsked : {false, true})
    {
        Streams streams(text);
        const pANTLR3_BASE_RECOGNIZER parser = streams.pipeline().recogniser();
        streams.window().recycleFor(parser);
        EXPECT_EQ(streams.window().enterLine().size(), 15u);
        streams.followWindow();
        EXPECT_EQ(indexIn(streams.runtimes()), 8);
        const pANTLR3_COMMON_TOKEN failed = failAtNext(parser);
        EXPECT_FALSE(streams.window().isKept(*failed));
        if (isAsked)
        {
            EXPECT_EQ(streams.window().indexOf(*failed), 8u);
        }
        const Seen expected = ahead(streams.runtimes(), 1);
        EXPECT_EQ(seen(failed), expected);
        while (!streams.areAtEnd())
        {
            streams.consumeBoth();
            if (isNewline(typeAhead(streams.windows(), 1)))
            {
                consume(streams.windows());
                consume(streams.runtimes());
                streams.window().enterLine();
                ASSERT_TRUE(streams.window().isKept(*tokenOfError(parser)));
            }
            ASSERT_EQ(seen(tokenOfError(parser)), expected);
        }
        // The index is the document's, and has been counted once.
        EXPECT_EQ(tokenOfError(parser)->index, 8);
        EXPECT_EQ(streams.window().indexOf(*tokenOfError(parser)), 8u);
        EXPECT_EQ(lexeme(*tokenOfError(parser)), "c");
    }
}

TEST(TokenWindow, keepsTheTextOfATokenThatWasMissing)
{
    const std::string text = "a b\nc\nd\n";
    Streams streams(text);
    const pANTLR3_BASE_RECOGNIZER parser = streams.pipeline().recogniser();
    streams.window().recycleFor(parser);
    consume(streams.windows());
    const pANTLR3_COMMON_TOKEN failed = failAtNext(parser);
    // As the runtime makes one up, with the longest of names.
    ANTLR3_COMMON_TOKEN missing = *failed;
    const std::string name = "<missing OFFSET_DATE_TIME>";
    missing.setText8(&missing, reinterpret_cast<pANTLR3_UINT8>(const_cast<char*>(name.data())));
    missing.index = 0;
    parser->state->exception->token = &missing;
    consume(streams.windows());
    consume(streams.windows());
    for (int line = 0; line < 2; ++line)
    {
        streams.window().enterLine();
        const pANTLR3_COMMON_TOKEN kept = tokenOfError(parser);
        ASSERT_TRUE(streams.window().isKept(*kept));
        EXPECT_EQ(kept->index, 0);
        EXPECT_STREQ(characters(kept->getText(kept)), name.c_str());
        consume(streams.windows());
        consume(streams.windows());
    }
}

TEST(TokenWindow, leavesTheEndOfTheInputToItsSource)
{
    const std::string text = "a\n";
    Streams streams(text);
    const pANTLR3_BASE_RECOGNIZER parser = streams.pipeline().recogniser();
    streams.window().recycleFor(parser);
    consume(streams.windows());
    consume(streams.windows());
    const pANTLR3_COMMON_TOKEN failed = failAtNext(parser);
    ASSERT_EQ(failed->type, ANTLR3_TOKEN_EOF);
    streams.window().enterLine();
    EXPECT_EQ(tokenOfError(parser), failed);
    EXPECT_FALSE(streams.window().isKept(*failed));
    EXPECT_EQ(streams.window().indexOf(*failed), static_cast<std::size_t>(failed->index));
}
