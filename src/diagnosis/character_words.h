// Characters that are not allowed where they are, in words.
#pragma once

#include <cstddef>
#include <string_view>

#include "characters.h"
#include "encoding_words.h"
#include "mistake.h"

namespace vorn::parsers::toml::diagnosis
{

// A character above U+FFFF.
Mistake highCharacter(std::size_t at, const Character& character);

Mistake loneCarriageReturn(std::size_t at);

// A character that no token starts with.
Mistake strayCharacter(std::string_view text, std::size_t at);

} // namespace vorn::parsers::toml::diagnosis
