// The lexer's errors in words.
#pragma once

#include <string_view>

#include "finding.h"
#include "recognition.h"

namespace tool
{

Finding findingOf(const LexicalError& error, std::string_view text);

// Whether the error is in a string of several lines: then all that follows is read inside out.
bool isInLongString(const LexicalError& error, std::string_view text);

} // namespace tool
