#pragma once

#include <cstddef>

namespace vorn::parsers::toml
{

// The bytes of stack that the calling thread has left; little where that is not known,
// as on a stack that the thread was not started with.  Asking takes some time.
std::size_t stackRoom() noexcept;

} // namespace vorn::parsers::toml
