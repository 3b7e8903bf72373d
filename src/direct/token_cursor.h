#pragma once

#include <cstddef>
#include <string_view>

#include "scan/scanner.h"
#include "scan/string_scanner.h"

namespace vorn::parsers::toml
{

// A token with its text.
struct TakenToken
{
    TokenType type;
    std::string_view text;
};

// The reader inlines everything else; what is rare, or long, stays a function of its own.

// The end of line breaks, carriage returns among them; null if there are none.
[[gnu::noinline]] inline const char* newlineEnd(const char* begin, const char* end) noexcept
{
    const Token token = scanToken(begin, end);
    return token.type == TokenType::newline ? token.end : nullptr;
}

// The end of blanks and of a comment after them, which ends before a line break.  A comment
// that is not recognised is not skipped: no token starts with its character.
[[gnu::noinline]] inline const char* skippedEnd(const char* begin, const char* end) noexcept
{
    const char* const at = skip(begin, end, blank);
    const char* const stop = *at == '#' ? commentEnd(at, end) : nullptr;
    return stop != nullptr ? stop : at;
}

// Goes over a NUL-terminated text token by token, without blanks and comments.  A token of one
// character is known by it; the others are scanned when they are taken.
//
// No token starts with NUL: to ask for a token needs no check for the end.
class TokenCursor
{
public:
    // `*end` is the terminator.
    TokenCursor(const char* begin, const char* end) noexcept : at_(begin), end_(end)
    {
        skipBlanks();
    }

    bool atEnd() const noexcept { return at_ == end_; }

    // Whether the next token is, or starts with, this character.
    bool isNext(char c) const noexcept { return *at_ == c; }

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
        // No other token starts with a character as low.
        if (byte() > '\r')
        {
            return false;
        }
        const char* at = at_;
        while (*at == '\n')
        {
            ++at;
        }
        if (at == at_ || *at == '\r')
        {
            at = newlineEnd(at_, end_);
        }
        if (at == nullptr)
        {
            return false;
        }
        at_ = at;
        skipBlanks();
        return true;
    }

    // Goes over the next token, whatever it is; stays if none is recognised.
    TakenToken take() noexcept
    {
        const char* const begin = at_;
        const Token token = scanToken(begin, end_);
        if (token.type == TokenType::none)
        {
            return {TokenType::none, {}};
        }
        at_ = token.end;
        skipBlanks();
        return {token.type, {begin, static_cast<std::size_t>(token.end - begin)}};
    }

    // Before the next token.
    const char* position() const noexcept { return at_; }

private:
    unsigned char byte() const noexcept { return static_cast<unsigned char>(*at_); }

    // Also goes over a comment.  Mostly there is just one blank.
    void skipBlanks() noexcept
    {
        if (isNext(' '))
        {
            ++at_;
        }
        if (is(*at_, skipped))
        {
            at_ = skippedEnd(at_, end_);
        }
    }

    const char* at_;
    const char* end_;
};

} // namespace vorn::parsers::toml
