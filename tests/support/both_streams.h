// A token window beside the runtime's own stream, which has all tokens.
//
// Include this header last, for the same reason as grammar/recognisers.h.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "support/window_pipeline.h"

namespace test
{

// What a window may not change of a token.
using Seen = std::tuple<ANTLR3_UINT32, ANTLR3_MARKER, ANTLR3_MARKER, ANTLR3_UINT32, ANTLR3_INT32,
                        ANTLR3_UINT32>;

inline Seen seen(pANTLR3_COMMON_TOKEN token)
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

inline Seen ahead(pANTLR3_TOKEN_STREAM stream, ANTLR3_INT32 place)
{
    return seen(stream->_LT(stream, place));
}

inline ANTLR3_UINT32 typeAhead(pANTLR3_TOKEN_STREAM stream, ANTLR3_INT32 place = 1)
{
    return stream->istream->_LA(stream->istream, place);
}

inline ANTLR3_MARKER indexIn(pANTLR3_TOKEN_STREAM stream)
{
    return stream->istream->index(stream->istream);
}

inline void consume(pANTLR3_TOKEN_STREAM stream)
{
    stream->istream->consume(stream->istream);
}

// Both streams of a text.
class BothStreams
{
public:
    explicit BothStreams(const std::string& text) : runtimes_(text), windows_(text)
    {
        silence(runtimes_.lexer());
        silence(windows_.lexer());
        // It fills itself with tokens when it is asked for one.
        runtimes()->_LT(runtimes(), 1);
    }

    pANTLR3_TOKEN_STREAM runtimes() const { return runtimes_.tokens()->tstream; }
    pANTLR3_TOKEN_STREAM windows() const { return windows_.stream(); }
    WindowPipeline& pipeline() { return windows_; }
    vorn::parsers::toml::TokenWindow& window() { return windows_.window(); }

    // How many tokens there are.
    ANTLR3_MARKER count() const
    {
        return static_cast<ANTLR3_MARKER>(runtimes()->istream->size(runtimes()->istream));
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
    ParserPipeline runtimes_;
    WindowPipeline windows_;
};

} // namespace test
