// Statements that are too long, or nest too deeply, for the parser.
#pragma once

#include <optional>
#include <string_view>

#include "damaged_part.h"
#include "mistake.h"

namespace vorn::parsers::toml::diagnosis
{

// The first mistake in a part that is one statement; none if it is valid.
std::optional<Mistake> firstMistake(std::string_view text, const DamagedPart& part);

} // namespace vorn::parsers::toml::diagnosis
