// The lexer's errors in words.
#pragma once

#include <string_view>

#include "finding.h"
#include "recognition.h"

namespace tool
{

Finding findingOf(const LexicalError& error, std::string_view text);

// Whether the error is in a multi-line string.  Then strings and the text between them are
// swapped in the rest of the document.
bool isInLongString(const LexicalError& error, std::string_view text);

} // namespace tool
