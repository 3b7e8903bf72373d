// The tokens of valid lines, which the scanner finds without the lexer.
#pragma once

#include <cstddef>
#include <string_view>

namespace vorn::parsers::toml
{

// How many there are.  The text is that of whole lines, and what follows it is a token or the
// document's end.
std::size_t countTokens(std::string_view lines) noexcept;

// Appends their texts at `end`, where there is room, each up to its first NUL byte.  Returns
// where they end, and adds their number to `count`.
char* appendTokens(std::string_view lines, char* end, std::size_t& count) noexcept;

} // namespace vorn::parsers::toml
