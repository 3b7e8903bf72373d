// Documents without a mistake that the recognisers do not read.
#pragma once

#include <optional>
#include <string>

#include "mistake.h"

namespace vorn::parsers::toml::diagnosis
{

// Why the library rejects a document in which no mistake was found, but which is not read
// directly: because it nests too deeply for the thread's stack, or there is not enough memory.
std::optional<Mistake> refusedDocument(const std::string& text);

// A document that is too large.
Mistake tooLarge();

} // namespace vorn::parsers::toml::diagnosis
