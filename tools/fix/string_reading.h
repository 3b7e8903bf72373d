// Strings of TOML 1.0.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "mistake.h"
#include "piece.h"

namespace tool::fixing
{

struct StringReading
{
    PieceKind kind = PieceKind::basicString;
    std::size_t end = 0;
    std::optional<Mistake> mistake;
};

// Reads the string that starts with a quote at an offset.
StringReading readString(std::string_view text, std::size_t at);

} // namespace tool::fixing
