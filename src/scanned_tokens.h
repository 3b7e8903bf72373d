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

// Scans a text for its tokens, blanks and comments left out.
class ScannedTokens
{
public:
    explicit ScannedTokens(const char* begin, const char* end) : at_(begin), end_(end) {}

    Lexeme next() noexcept
    {
        at_ = skip(at_, end_, blank);
        if (at_ != end_ && *at_ == '#' && !skipComments())
        {
            return {TokenType::none, {}};
        }
        if (at_ == end_)
        {
            return {TokenType::endOfInput, {}};
        }
        const char* const begin = at_;
        const Token token = scanToken(begin, end_);
        if (token.type == TokenType::none)
        {
            return {TokenType::none, {}};
        }
        at_ = token.end;
        return {token.type, {begin, static_cast<std::size_t>(at_ - begin)}};
    }

    // Behind the token that came last.
    const char* position() const noexcept { return at_; }

private:
    // A comment ends before a line break, so that no other can follow it.
    bool skipComments() noexcept
    {
        at_ = commentEnd(at_, end_);
        return at_ != nullptr;
    }

    const char* at_;
    const char* end_;
};

} // namespace vorn::parsers::toml
