// Finds tokens in bytes.
//
// A position is scanned for the one token that begins there, by the grammar's own
// precedence: the longest text that any rule can go on with, then the first rule.  The
// scanner recognises whole, well-formed tokens only.  Whatever the lexer would report
// as an error, and a few rarities besides, it does not recognise.
#pragma once

#include "token_type.h"

namespace vorn::parsers::toml
{

struct Token
{
    TokenType type; // none: not recognised
    const char* end;
};

// The token that begins at `begin`, which is before `end`.  Reads nothing at or behind
// `end`.
Token scanToken(const char* begin, const char* end) noexcept;

} // namespace vorn::parsers::toml
