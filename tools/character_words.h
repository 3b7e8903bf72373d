// Characters that are not allowed where they are, in words.
#pragma once

#include <cstddef>
#include <string_view>

#include "finding.h"
#include "utf8.h"

namespace tool
{

// A character above U+FFFF.
Finding highCharacter(std::size_t at, const Character& character);

// Bytes that are not valid UTF-8.
Finding malformedBytes(std::string_view text, std::size_t at, Severity severity);

Finding loneCarriageReturn(std::size_t at);

// A character that no token starts with.
Finding strayCharacter(std::string_view text, std::size_t at);

} // namespace tool
