// Finds tokens in bytes.
//
// A position is scanned for the one token that begins there, by the grammar's own
// precedence: the longest text that any rule can go on with, then the first rule.  The
// scanner recognises whole, well-formed tokens only.  Whatever the lexer would report
// as an error, and a few rarities besides, it does not recognise.
#pragma once

#include "character_class.h"
#include "token.h"
#include "word_scanner.h"

namespace vorn::parsers::toml
{

// A token that begins with a mark: not with what words and numbers without a plus sign
// begin with.
Token scanMark(const char* begin, const char* end) noexcept;

// The token that begins at `begin`, which is before `end`.  Reads nothing at or behind
// `end`.
inline Token scanToken(const char* begin, const char* end) noexcept
{
    if (is(*begin, digit))
    {
        return scanDigit(begin, end);
    }
    return is(*begin, keyCharacter) ? scanWord(begin, end) : scanMark(begin, end);
}

} // namespace vorn::parsers::toml
