#pragma once

#include "event_record.h"
#include "nesting_stack.h"

namespace vorn::parsers::toml
{

// Reads lines from the end of those that a record has up to `end`, where the text or a token ends.
// Returns whether all are valid; otherwise the record has those before the first that is not.
[[gnu::noinline]] bool readLines(const char* end, NestingStack nesting, EventRecord& record);

} // namespace vorn::parsers::toml
