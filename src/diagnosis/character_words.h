// Characters that are not allowed where they are, in words.
#pragma once

#include <cstddef>
#include <string_view>

#include "characters.h"
#include "mistake.h"

namespace vorn::parsers::toml::diagnosis
{

// A character above U+FFFF.
Mistake highCharacter(std::size_t at, const Character& character);

// Bytes that are not valid UTF-8.
Mistake malformedBytes(std::string_view text, std::size_t at, Severity severity);

Mistake loneCarriageReturn(std::size_t at);

// A character that no token starts with.
Mistake strayCharacter(std::string_view text, std::size_t at);

} // namespace vorn::parsers::toml::diagnosis
