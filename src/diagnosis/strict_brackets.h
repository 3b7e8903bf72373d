#pragma once

#include <string_view>

namespace vorn::parsers::toml::diagnosis
{

class StrictMistakes;

// Looks at the brackets around the key of an array of tables, in a valid header.
void checkBrackets(std::string_view key, StrictMistakes& mistakes);

} // namespace vorn::parsers::toml::diagnosis
