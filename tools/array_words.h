// Errors in arrays, in words.
#pragma once

#include "finding.h"
#include "place.h"
#include "syntax_words.h"
#include "words.h"

namespace tool
{

Words forArray(const Place& place, const DocumentToken& found, const TokenizedText& document);

// A line in an array that contains only a comment, or only spaces and tabs.
Finding lineWithoutElement(const Place& place, const TokenizedText& document);

} // namespace tool
