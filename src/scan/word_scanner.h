// Tokens made of key characters: bare keys, booleans, numbers, dates and times.
#pragma once

#include "token.h"

namespace vorn::parsers::toml
{

// The token at `begin` that starts with a letter, an underscore or a minus sign, or with a
// digit.
Token scanWord(const char* begin, const char* end) noexcept;
Token scanDigit(const char* begin, const char* end) noexcept;

// The token at `begin` that starts with a plus sign.
Token scanPlus(const char* begin, const char* end) noexcept;

} // namespace vorn::parsers::toml
