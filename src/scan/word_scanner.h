// Tokens made of key characters: bare keys, booleans, numbers, dates and times.
#pragma once

#include "token.h"

namespace vorn::parsers::toml
{

// The token that begins at `begin` with a key character: a letter, an underscore or a
// minus sign in the first case, a digit in the second.
Token scanWord(const char* begin, const char* end) noexcept;
Token scanDigit(const char* begin, const char* end) noexcept;

// The token that begins at `begin` with a plus sign.
Token scanPlus(const char* begin, const char* end) noexcept;

} // namespace vorn::parsers::toml
