// Errors in strings, in words.
#pragma once

#include <string_view>

#include "lexical_error.h"
#include "mistake.h"

namespace vorn::parsers::toml::diagnosis
{

// An error of a token that starts with a quote.
Mistake inString(const LexicalError& error, std::string_view text);

} // namespace vorn::parsers::toml::diagnosis
