#pragma once

#include <string>
#include <vector>

#include "examination.h"

namespace tool
{

// The findings of a document as lines for a terminal: place, message, source, caret, hint.
std::string textReport(const std::string& name, const std::string& text,
                       const std::vector<Finding>& findings, bool colour);

} // namespace tool
