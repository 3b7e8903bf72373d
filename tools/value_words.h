// What stands where a value is due, in words.
#pragma once

#include <string>
#include <string_view>

#include "syntax_words.h"
#include "words.h"

namespace tool
{

Words forValue(const DocumentToken& found, const TokenizedText& document);

// A text as the content of a string, shortened.
std::string quotedContent(std::string_view text);

} // namespace tool
