// The lexer's errors in words.
#pragma once

#include <string_view>

#include "lexical_error.h"
#include "mistake.h"
#include "string_words.h"

namespace vorn::parsers::toml::diagnosis
{

Mistake mistakeOf(const LexicalError& error, std::string_view text);

} // namespace vorn::parsers::toml::diagnosis
