// What a token window knows of lines: which it passes over, and what it keeps of those before.
#include <gtest/gtest.h>

#include "pipeline/token_window.h"

#include <cstddef>
#include <string>

#include "grammar/runtime_string.h"
#include "pipeline/runtime_text.h"
#include "support/line_mixtures.h"
#include "support/text_generator.h"

#include "support/both_streams.h"

using namespace test;
using namespace vorn::parsers::toml;

namespace
{

std::string repeated(const std::string& text, std::size_t count)
{
    std::string all;
    for (; count > 0; --count)
    {
        all += text;
    }
    return all;
}

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

TEST(TokenWindow, passesOverValidLinesWhereTheParserStartsToReadOne)
{
    test::TextGenerator texts;
    std::size_t passed = 0;
    for (int count = 0; count < 2000 && !HasFailure(); ++count)
    {
        const std::string text = texts.mixture(test::linePieces, 16);
        SCOPED_TRACE(testing::PrintToString(text));
        BothStreams streams(text);
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
    EXPECT_EQ(window.enterLine(), "a = 1\n# c\n\n");
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

TEST(TokenWindow, keepsTheTokenOfTheLastError)
{
    const std::string text = "a = 1\nb = '\xc3\xa9'\n@ c\nd\n" + repeated("e ", 3000);
    for (const bool isAsked : {false, true})
    {
        BothStreams streams(text);
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
    BothStreams streams(text);
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
    BothStreams streams(text);
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
