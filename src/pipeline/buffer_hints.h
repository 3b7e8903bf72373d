// Usual sizes of the runtime's buffers; they grow as needed.
#pragma once

namespace vorn::parsers::toml
{

constexpr unsigned tokenBufferHint = 1025;
constexpr unsigned nodeBufferHint = 90000;

} // namespace vorn::parsers::toml
