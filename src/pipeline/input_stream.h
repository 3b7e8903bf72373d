#pragma once

#include <antlr3.h>

#include <string>

namespace vorn::parsers::toml
{

// Whether the runtime can count the text's bytes, which it does in 32 bits.
bool isStreamable(const std::string& text) noexcept;

// A stream over the bytes of such a text, not a copy; null if it cannot be made.
pANTLR3_INPUT_STREAM openStream(const std::string& text);

} // namespace vorn::parsers::toml
