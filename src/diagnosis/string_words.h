// Errors in strings, in words.
#pragma once

#include <string_view>

#include "mistake.h"
#include "recognition.h"

namespace vorn::parsers::toml::diagnosis
{

// An error of a token that starts with a quote.
Mistake inString(const LexicalError& error, std::string_view text);

// Whether the error is in a multi-line string.  Then strings and the text between them are
// swapped in the rest of the document.
bool isInLongString(const LexicalError& error, std::string_view text);

} // namespace vorn::parsers::toml::diagnosis
