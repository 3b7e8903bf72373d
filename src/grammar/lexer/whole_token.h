// Takes tokens whole, by the scanner, instead of character by character.
#pragma once

#include <antlr3.h>

namespace vorn::parsers::toml
{

// Matches the token at the input's position if the input is bytes of UTF-8 in memory and
// the scanner recognises the token.  Otherwise changes nothing; the caller falls back to the
// rules.
bool takeWholeToken(pANTLR3_LEXER lexer);

} // namespace vorn::parsers::toml
