#pragma once

#include <cstddef>
#include <string_view>

#include "recognition.h"
#include "valid_lines.h"

namespace vorn::parsers::toml::diagnosis
{

// Lines of a document that are not valid as they are, up to one that is.
struct DamagedPart
{
    Part part;
    bool isLast = false;            // nothing after it is read
    bool isLong = false;            // one statement, too long or too deep for the recognisers
    bool closesBrackets = false;    // whether that closes all that it opens
    bool hasUnclosedString = false; // of several lines: what follows means nothing
};

// Finds the part that starts with a statement that is not valid as it is.
DamagedPart damagedPart(std::string_view text, std::size_t begin, const ValidLines& lines);

} // namespace vorn::parsers::toml::diagnosis
