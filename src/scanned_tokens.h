#pragma once

#include <cstddef>
#include <string_view>

#include "grammar/character_class.h"
#include "grammar/scanner.h"
#include "grammar/string_scanner.h"

namespace vorn::parsers::toml
{

// A token with its text.
struct Lexeme
{
    TokenType type;
    std::string_view text;
};

// Goes over a text token by token, blanks and comments left out.  Tokens of one
// character are known by it, the others are scanned when they are taken.
class ScannedTokens
{
public:
    ScannedTokens(const char* begin, const char* end) : at_(begin), end_(end) { skipBlanks(); }

    bool atEnd() const noexcept { return at_ == end_; }

    // Whether the next token is, or begins with, this character.
    bool isNext(char c) const noexcept { return at_ != end_ && *at_ == c; }

    // Goes over a token of one character, if it is the next.
    bool take(char c) noexcept
    {
        if (!isNext(c))
        {
            return false;
        }
        ++at_;
        skipBlanks();
        return true;
    }

    // Goes over line breaks, if they come next.
    bool takeNewline() noexcept
    {
        return (isNext('\n') || isNext('\r')) && take().type == TokenType::newline;
    }

    // Goes over the next token, whatever it is; stays where none is recognised.
    Lexeme take() noexcept
    {
        if (at_ == end_)
        {
            return {TokenType::none, {}};
        }
        const char* const begin = at_;
        const Token token = scanToken(begin, end_);
        if (token.type == TokenType::none)
        {
            return {TokenType::none, {}};
        }
        at_ = token.end;
        const std::string_view text(begin, static_cast<std::size_t>(at_ - begin));
        skipBlanks();
        return {token.type, text};
    }

    // Before the next token.
    const char* position() const noexcept { return at_; }

private:
    // Also goes over a comment, which ends before a line break.  One that is not
    // recognised stays: no token begins with its character.
    void skipBlanks() noexcept
    {
        at_ = skip(at_, end_, blank);
        if (isNext('#'))
        {
            if (const char* const stop = commentEnd(at_, end_))
            {
                at_ = stop;
            }
        }
    }

    const char* at_;
    const char* end_;
};

} // namespace vorn::parsers::toml
