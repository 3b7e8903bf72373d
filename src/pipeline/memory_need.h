// The memory that the recognisers need.  The runtime does not survive an allocation that
// fails, so that what they will need is checked before they start.
#pragma once

#include <cstddef>

#include "document_survey.h"

namespace vorn::parsers::toml
{

// What is needed before the document is known, and for its survey.
std::size_t memoryForSurvey(std::size_t documentSize) noexcept;

// What is needed to find the errors, where there are as many brackets in lines that are not valid.
std::size_t memoryForErrors(std::size_t documentSize, std::size_t brackets) noexcept;

// What is needed to walk over a statement of so many tokens, beyond that.
std::size_t memoryForWalk(std::size_t tokens) noexcept;

// What is needed to read the document at once.
std::size_t memoryForReading(std::size_t documentSize, const DocumentSurvey& seen) noexcept;

// Whether this much memory can be had, now.
bool isMemoryLeft(std::size_t size) noexcept;

} // namespace vorn::parsers::toml
