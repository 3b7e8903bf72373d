// Tokens that are not the expected value, in words.
#pragma once

#include <string>
#include <string_view>

#include "syntax_words.h"
#include "words.h"

namespace tool
{

Words forValue(const DocumentToken& found, const TokenizedText& document);

// A text, shortened, as the content of a string.
std::string quotedContent(std::string_view text);

} // namespace tool
