#pragma once

#include <antlr3.h>

#include <string_view>

namespace vorn::parsers::toml
{

// Whether the runtime can count the text's bytes, which it does in 32 bits.
bool isStreamable(std::string_view text) noexcept;

// A stream over the bytes of such a text, not a copy; null if it cannot be made.
pANTLR3_INPUT_STREAM openStream(std::string_view text);

} // namespace vorn::parsers::toml
