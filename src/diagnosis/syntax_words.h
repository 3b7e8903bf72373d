// The parser's errors in words.
#pragma once

#include "mistake.h"
#include "site.h"

namespace vorn::parsers::toml::diagnosis
{

Mistake mistakeAt(const Site& site);

} // namespace vorn::parsers::toml::diagnosis
