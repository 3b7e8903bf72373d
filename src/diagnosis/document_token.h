#pragma once

#include <cstddef>

#include "scan/token_type.h"

namespace vorn::parsers::toml::diagnosis
{

// A token that the parser gets, with the offsets of its bytes in the document.
struct DocumentToken
{
    TokenType type;
    std::size_t begin;
    std::size_t end;
};

} // namespace vorn::parsers::toml::diagnosis
