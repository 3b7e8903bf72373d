// Chooses the rule for the token at the input's position.
#pragma once

#include <antlr3.h>

#include "rules.h"

namespace vorn::parsers::toml
{

// Returns null if no token starts here; then an exception is pending.  The input stays where
// it is.
//
// The longest token wins, then the first in the grammar.  The choice ends as soon as one rule
// is left, whether or not that will match.
rules::Rule predictToken(pANTLR3_LEXER lexer);

} // namespace vorn::parsers::toml
