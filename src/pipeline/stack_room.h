#pragma once

#include <cstddef>

namespace vorn::parsers::toml
{

// What the parser takes of the stack for an array or an inline table: some 290 bytes on
// 32-bit ARM, 540 on x86-64, with a compiler that optimises for size, and more otherwise.
constexpr std::size_t minStackOfLevel = 64 * sizeof(void*);
constexpr std::size_t maxStackOfLevel = 112 * sizeof(void*);

// A depth that fits any stack.
constexpr unsigned safeLevels = 10;

// The bytes of stack that the calling thread has left; little where that is not known,
// as on a stack that the thread was not started with.  Asking takes some time.
std::size_t stackRoom() noexcept;

// The levels of arrays and inline tables that the parser may get through with that, at most.
unsigned maxLevels() noexcept;

// Whether the parser may get through as many levels of arrays and inline tables with that.
// It stops by itself where it cannot; this is for what is far too much.
bool mayHaveRoomForLevels(unsigned levels) noexcept;

} // namespace vorn::parsers::toml
