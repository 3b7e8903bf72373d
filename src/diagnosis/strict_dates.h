// Dates and times that exist.
#pragma once

#include <string_view>

namespace vorn::parsers::toml::diagnosis
{

class StrictMistakes;

// Looks at a valid date-time, with an offset or without, or a date.
void checkDateTime(std::string_view text, StrictMistakes& mistakes);

// Looks at a valid time.
void checkTime(std::string_view text, StrictMistakes& mistakes);

} // namespace vorn::parsers::toml::diagnosis
