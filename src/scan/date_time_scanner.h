// Dates and times: their shapes, and what may follow them.
#pragma once

#include "token.h"

namespace vorn::parsers::toml
{

// Whether the text at `at` starts with a date.
bool beginsWithDate(const char* at, const char* end) noexcept;

// The token that starts with the date at `begin`: a date, a date-time or a bare key.
Token scanDate(const char* begin, const char* end) noexcept;

// The time at `begin`.
Token scanTime(const char* begin, const char* end) noexcept;

} // namespace vorn::parsers::toml
