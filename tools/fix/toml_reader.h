// Reads TOML 1.0, without loss: comments, blanks and line breaks are pieces, too.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "mistake.h"
#include "piece.h"

namespace tool::fixing
{

struct Reading
{
    std::vector<Piece> pieces;      // in order; all of the text if there is no mistake
    std::optional<Mistake> mistake; // the first one
};

// Only the form is checked: a key may occur twice, and there may be a month 13.  Nesting is
// limited by memory alone.
Reading readToml(std::string_view text);

} // namespace tool::fixing
