#pragma once

#include <string>

#include "examination.h"

namespace tool
{

// The findings of a document as lines for a terminal: place, message, source, caret, hint.
std::string textReport(const std::string& name, const std::string& text,
                       const Examination& examination, bool colour);

} // namespace tool
