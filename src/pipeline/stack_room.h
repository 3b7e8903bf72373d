#pragma once

#include <cstddef>

namespace vorn::parsers::toml
{

// The bytes of stack that the calling thread has left; little where that is not known,
// as on a stack that the thread was not started with.  Asking takes some time.
std::size_t stackRoom() noexcept;

// Whether the parser may get through as many levels of arrays and inline tables with that.
// It stops by itself where it cannot; this is for what is far too much.
bool mayHaveRoomForLevels(unsigned levels) noexcept;

} // namespace vorn::parsers::toml
