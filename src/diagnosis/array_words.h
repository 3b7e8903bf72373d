// Errors in arrays, in words.
#pragma once

#include "mistake.h"
#include "site.h"
#include "words.h"

namespace vorn::parsers::toml::diagnosis
{

Words forArray(const Site& site);

// A line in an array that contains only a comment, or only spaces and tabs.
Mistake lineWithoutElement(const Site& site);

} // namespace vorn::parsers::toml::diagnosis
