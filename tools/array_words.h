// Errors of arrays, whose rules of lines surprise most, in words.
#pragma once

#include "finding.h"
#include "place.h"
#include "syntax_words.h"
#include "words.h"

namespace tool
{

Words forArray(const Place& place, const DocumentToken& found, const TokenizedText& document);

// A line, in an array, with a comment or with blanks only.
Finding lineWithoutElement(const Place& place, const TokenizedText& document);

} // namespace tool
