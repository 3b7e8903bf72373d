#pragma once

#include <cstddef>
#include <string_view>

#include "scan/scanner.h"
#include "scan/string_scanner.h"
#include "scan/utf8.h"

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

// Few tokens start with a character as low as blanks and the start of comments.
constexpr bool mayBeSkipped(char c)
{
    return static_cast<unsigned char>(c) <= '#';
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

    // Goes over line breaks, if they come next.  Bytes after them that are not ASCII may be a
    // malformed line break, which to the lexer goes on with them; no token starts with such bytes.
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
        if (at == nullptr || !isAscii(*at))
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
        const Token token = scanToken(at_, end_);
        return token.type != TokenType::none ? TakenToken{token.type, goOver(token.end)}
                                             : TakenToken{TokenType::none, {}};
    }

    // Before the next token.
    const char* position() const noexcept { return at_; }

protected:
    // Goes over a token that ends at `stop`, and returns its text.
    std::string_view goOver(const char* stop) noexcept
    {
        const char* const begin = at_;
        at_ = stop;
        skipBlanks();
        return {begin, static_cast<std::size_t>(stop - begin)};
    }

    // To the start of a token.
    void goTo(const char* at) noexcept { at_ = at; }

    const char* end() const noexcept { return end_; }

private:
    unsigned char byte() const noexcept { return static_cast<unsigned char>(*at_); }

    // Also goes over a comment.  Mostly there is just one blank, if any.
    void skipBlanks() noexcept
    {
        if (isNext(' '))
        {
            ++at_;
        }
        if (mayBeSkipped(*at_) && is(*at_, skipped))
        {
            at_ = skippedEnd(at_, end_);
        }
    }

    const char* at_;
    const char* end_;
};

} // namespace vorn::parsers::toml
