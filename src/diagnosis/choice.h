// Which errors of the recognisers are mistakes of their own.
#pragma once

#include <string_view>
#include <vector>

#include "mistake.h"
#include "recognition.h"

namespace vorn::parsers::toml::diagnosis
{

// Adds the mistakes in a part of a document, in their order: of the errors that the recognisers
// have found those that do not follow from an earlier one.  Returns whether what comes after the
// part means anything: after a mistake in a multi-line string it does not.
bool addMistakes(std::string_view text, const Recognition& found, std::vector<Mistake>& mistakes);

// Where the lexer finds the end.  If that is before the text's, bytes that are not UTF-8 read as
// the end, and are the mistake.
Mistake missingLineBreak(std::string_view text, std::size_t end);

} // namespace vorn::parsers::toml::diagnosis
