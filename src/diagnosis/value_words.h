// Tokens that are not the expected value, in words.
#pragma once

#include <string>
#include <string_view>

#include "site.h"
#include "words.h"

namespace vorn::parsers::toml::diagnosis
{

Words forValue(const Site& site);

// A text, shortened, as the content of a string.
std::string quotedContent(std::string_view text);

} // namespace vorn::parsers::toml::diagnosis
