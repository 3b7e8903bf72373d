// Chooses the rule for the token at the input's position.
#pragma once

#include <antlr3.h>

#include "rules.h"

namespace vorn::parsers::toml
{

// Null if no token begins here; an exception is pending then.  The input stays where it is.
//
// The longest token wins, then the first in the grammar; the choice is made as soon as one
// rule is left, whether or not it will match.
rules::Rule predictToken(pANTLR3_LEXER lexer);

} // namespace vorn::parsers::toml
