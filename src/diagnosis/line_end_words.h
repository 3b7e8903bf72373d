// What follows a pair or a header on its line, in words.
#pragma once

#include <string>

#include "site.h"
#include "words.h"

namespace vorn::parsers::toml::diagnosis
{

Words forLineEnd(const Site& site);

// ", found the word 'a'".
std::string foundIn(const Site& site);

} // namespace vorn::parsers::toml::diagnosis
