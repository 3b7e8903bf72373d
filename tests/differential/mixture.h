// Documents that follow no grammar.
#pragma once

#include "random.h"
#include "token_generator.h"

#include <string>

namespace test
{

// Whole tokens in any order.
std::string mixtureOfTokens(Random& random, TokenGenerator& tokens);

// Lines with values that are nearly right.
std::string mixtureOfMistakes(Random& random, TokenGenerator& tokens);

// Words of characters that tokens are made of, and lines of any characters.
std::string mixtureOfCharacters(Random& random);

} // namespace test
