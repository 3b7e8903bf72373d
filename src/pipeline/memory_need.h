// The memory that the recognisers need.  The runtime does not survive an allocation that
// fails, so that what they will need is checked before they start.
#pragma once

#include <cstddef>

#include "document_survey.h"

namespace vorn::parsers::toml
{

// What is needed before the document is known, and for its survey.
std::size_t memoryForSurvey(std::size_t documentSize) noexcept;

// What is needed for the rest, at most.
std::size_t memoryForReading(std::size_t documentSize, const DocumentSurvey& seen) noexcept;

// Whether this much memory can be had, now.
bool isMemoryLeft(std::size_t size) noexcept;

} // namespace vorn::parsers::toml
