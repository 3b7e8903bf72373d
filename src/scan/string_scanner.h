// Tokens that hold free text: strings and comments.
#pragma once

#include "token.h"

namespace vorn::parsers::toml
{

// The string that starts at `begin`: with a quotation mark, or with an apostrophe.
Token scanBasic(const char* begin, const char* end) noexcept;
Token scanLiteral(const char* begin, const char* end) noexcept;

// The end of the comment that starts at `begin`: its line feed or the end of the text.
// Null if the comment is not recognised.
const char* commentEnd(const char* begin, const char* end) noexcept;

} // namespace vorn::parsers::toml
