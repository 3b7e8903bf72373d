#pragma once

#include <antlr3.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "document_lines.h"
#include "grammar/lexer/input_position.h"

namespace vorn::parsers::toml
{

// Makes a parser's token stream lex on demand, and forget its tokens.
//
// The runtime's stream fills itself with all tokens before the parser gets the first.  This one
// has those that the parser may look at again: the last one that it has taken, and few more, since
// no decision looks further ahead than two tokens.  Trees keep the others of their statement: they
// stay as long as it, unless recycleFor() says that there are no trees.
class TokenWindow
{
public:
    // Replaces what the stream does, which has not been used and does not outlive this.
    TokenWindow(pANTLR3_COMMON_TOKEN_STREAM tokens, DocumentLines& lines) noexcept;
    TokenWindow(const TokenWindow&) = delete;
    TokenWindow& operator=(const TokenWindow&) = delete;
    ~TokenWindow() = default;

    // Lexes the document from its start, from now on.
    void restart() noexcept;

    // What this parser has taken it does not need again.  Only its last error, which the runtime
    // may report again, has a token.
    void recycleFor(pANTLR3_BASE_RECOGNIZER parser) noexcept { parser_ = parser; }

    // Where the parser starts to read a line: forgets its tokens and their strings, and passes over
    // valid lines.  Returns their text.
    std::string_view enterLine();
    // The first of these alone.
    void forget() noexcept;

    // How many tokens were taken between two lines, at most.
    std::size_t longestStatement() const noexcept
    {
        return std::max(longestStatement_,
                        static_cast<std::size_t>(std::min(tokens_->p, end_) - statement_));
    }

    // The index in the document of a token that the parser knows.  One that was missing has none.
    std::size_t indexOf(const ANTLR3_COMMON_TOKEN& token) noexcept;
    // Whether it is that of an error before, which has its index already.
    bool isKept(const ANTLR3_COMMON_TOKEN& token) const noexcept { return &token == &ofError_; }
    // The number is known already.
    void setIndexOf(const ANTLR3_COMMON_TOKEN& token, std::size_t index) noexcept;

private:
    using Index = decltype(ANTLR3_COMMON_TOKEN_STREAM::p);

    // A token, and where the lexer was after it.
    struct Lexed
    {
        pANTLR3_COMMON_TOKEN token;
        InputPosition after;
    };

    void recycle() noexcept;
    void keepTokenOfError() noexcept;
    void countPassed() noexcept;

    static TokenWindow& of(pANTLR3_TOKEN_STREAM stream) noexcept;
    static pANTLR3_COMMON_TOKEN lookAhead(pANTLR3_TOKEN_STREAM stream, ANTLR3_INT32 place);
    static void consume(pANTLR3_INT_STREAM stream);
    static ANTLR3_UINT32 size(pANTLR3_INT_STREAM stream);

    Lexed& at(Index index) noexcept { return window_[static_cast<std::size_t>(index) % places]; }
    // Whether there is a token of this index.
    bool reach(Index index);
    pANTLR3_COMMON_TOKEN endOfInput() const noexcept
    {
        return &tokens_->tstream->tokenSource->eofToken;
    }
    pANTLR3_TOKEN_FACTORY factory() const noexcept
    {
        return lines_.lexer()->rec->state->tokFactory;
    }

    static constexpr std::size_t places = 8;
    // After all tokens that a document can have.
    static constexpr Index afterAll = 0x7FFFFF00;

    pANTLR3_COMMON_TOKEN_STREAM tokens_;
    DocumentLines& lines_;
    std::array<Lexed, places> window_;
    Index end_ = 0;            // after the last token of the window
    ANTLR3_COMMON_TOKEN last_; // that was taken before the others were forgotten
    const ANTLR3_UINT32 keptStrings_;
    pANTLR3_BASE_RECOGNIZER parser_ = nullptr; // whose tokens are recycled, if they are
    ANTLR3_COMMON_TOKEN ofError_;
    std::array<char, 32> textOfError_; // where it is one that was missing
    Index statement_ = 0;              // where it started
    std::size_t longestStatement_ = 0;
    std::string_view uncounted_; // lines that were passed last
    std::size_t passedTokens_ = 0;
};

} // namespace vorn::parsers::toml
