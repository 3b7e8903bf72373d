#pragma once

#include <string_view>

namespace vorn::parsers::toml::diagnosis
{

class StrictMistakes;

// Looks at a valid integer.
void checkInteger(std::string_view text, StrictMistakes& mistakes);

} // namespace vorn::parsers::toml::diagnosis
