// The tokens of valid lines, which the scanner finds without the lexer.
#pragma once

#include <cstddef>
#include <string_view>

namespace vorn::parsers::toml
{

// Goes over them, and adds their number to `count`.  The text is that of whole lines, and what
// follows it is a token or the document's end.
//
// Appends their own texts at `end`, where there is room for all of it, each up to its first NUL
// byte.  Returns where they end.
char* appendTokens(std::string_view lines, char* end, std::size_t& count) noexcept;

// How many there are.
std::size_t countTokens(std::string_view lines) noexcept;

} // namespace vorn::parsers::toml
