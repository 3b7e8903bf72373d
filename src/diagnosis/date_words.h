// Dates and times as they are written elsewhere, in words.
#pragma once

#include <optional>
#include <string_view>

#include "words.h"

namespace vorn::parsers::toml::diagnosis
{

// Words for a value that is not one, if it looks like a date or a time.
std::optional<Words> forDate(std::string_view value);

} // namespace vorn::parsers::toml::diagnosis
