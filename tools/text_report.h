#pragma once

#include <string>
#include <string_view>

#include "diagnosis.h"

namespace tool
{

// The findings of a document as lines for a terminal: place, message, source, caret, hint.
std::string textReport(const std::string& name, std::string_view text, const Diagnosis& diagnosis,
                       bool colour);

// Why a document has no diagnosis.
std::string refusalMessage(Refusal refusal);

} // namespace tool
