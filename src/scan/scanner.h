// Finds tokens in bytes.
//
// The scanner looks for the one token that starts at a position, by the grammar's own
// precedence: the longest text that any rule can go on with, then the first rule.  It
// recognises whole, well-formed tokens only: not what the lexer would report as an error,
// nor a few rarities.
#pragma once

#include "character_class.h"
#include "token.h"
#include "word_scanner.h"

namespace vorn::parsers::toml
{

// A token that starts with none of the characters of bare keys.
Token scanMark(const char* begin, const char* end) noexcept;

// The token that starts at `begin`, which is before `end`.  Reads nothing from `end` on.
inline Token scanToken(const char* begin, const char* end) noexcept
{
    if (is(*begin, digit))
    {
        return scanDigit(begin, end);
    }
    return is(*begin, keyCharacter) ? scanWord(begin, end) : scanMark(begin, end);
}

} // namespace vorn::parsers::toml
