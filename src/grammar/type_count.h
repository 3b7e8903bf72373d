#pragma once

namespace vorn::parsers::toml
{

// The types of Toml.g from 0 on: tokens, fragments, and the nodes of the parser.
inline constexpr int typeCount = 76;

} // namespace vorn::parsers::toml
