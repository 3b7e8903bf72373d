// Types of tokens in words.
#pragma once

#include <string_view>

#include "scan/token_type.h"

namespace vorn::parsers::toml::diagnosis
{

// "integer", "string", "'='", "end of the line", ...
std::string_view kindName(TokenType type);

} // namespace vorn::parsers::toml::diagnosis
