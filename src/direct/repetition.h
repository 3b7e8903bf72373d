#pragma once

#include "record_entry.h"
#include "visitor_calls.h"

namespace vorn::parsers::toml
{

// Repeats recorded entries to the visitor.  `text` is the end of the text before them; returns the
// end of their last one.
const char* repeat(const RecordEntry* entry, const RecordEntry* end, const char* text,
                   VisitorCalls calls);

} // namespace vorn::parsers::toml
