// Numbers, booleans, dates and times of TOML 1.0.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "piece.h"

namespace tool::fixing
{

// The end of what reads as one word at an offset: of all characters that such values are made
// of, with the blank between a date and a time.
std::size_t wordEnd(std::string_view text, std::size_t at);

// What kind of value a word is, if it is one.  Only the form counts: months and hours are in no
// range.
std::optional<PieceKind> kindOfWord(std::string_view word);

} // namespace tool::fixing
