// Takes tokens whole, by the scanner, instead of character by character.
#pragma once

#include <antlr3.h>

namespace vorn::parsers::toml
{

// Matches the token at the input's position if the input is bytes of UTF-8 in memory and
// the scanner recognises it.  Else nothing has happened, and the rules must have their say.
bool takeWholeToken(pANTLR3_LEXER lexer);

} // namespace vorn::parsers::toml
