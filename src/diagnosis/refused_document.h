// Documents without a mistake that the recognisers do not read.
#pragma once

#include <optional>
#include <string>

#include "mistake.h"
#include "valid_lines.h"

namespace vorn::parsers::toml::diagnosis
{

// Why the library rejects a document in which no mistake was found, but which is not read
// directly: because it nests too deeply for the thread's stack, or there is not enough memory.
// Only what is not valid by itself goes through the recognisers.
std::optional<Mistake> refusedDocument(const std::string& text, const ValidLines& lines);

// A document that is too large.
Mistake tooLarge();

} // namespace vorn::parsers::toml::diagnosis
