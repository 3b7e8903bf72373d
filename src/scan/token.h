#pragma once

#include "token_type.h"

namespace vorn::parsers::toml
{

struct Token
{
    TokenType type; // none: not recognised
    const char* end;
};

} // namespace vorn::parsers::toml
