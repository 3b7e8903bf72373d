#include "stack_room.h"

#include <pthread.h>

#include <algorithm>
#include <cstdint>

namespace vorn::parsers::toml
{
namespace
{

// What any stack has left, as far as this can be assumed.
constexpr std::size_t unknownRoom = std::size_t{32} * 1024;

// A main thread's stack grows as it is used.  Where it has no limit, other mappings end
// it; this much is free of them.
constexpr std::size_t mostRoom = std::size_t{64} * 1024 * 1024;

// What the parser has on the stack for an array or an inline table: some 290 bytes on
// 32-bit ARM, 540 on x86-64, with a compiler that optimises for size, and more otherwise.
constexpr std::size_t leastStackOfLevel = 64 * sizeof(void*);

// As deep as no stack is too small for.
constexpr unsigned safeLevels = 10;

} // namespace

std::size_t stackRoom() noexcept
{
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0)
    {
        return unknownRoom;
    }
    void* lowest = nullptr;
    std::size_t size = 0;
    const bool known = pthread_attr_getstack(&attributes, &lowest, &size) == 0;
    pthread_attr_destroy(&attributes);

    const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
    const auto begin = reinterpret_cast<std::uintptr_t>(lowest);
    if (!known || here < begin || here - begin >= size)
    {
        return unknownRoom;
    }
    return std::min<std::size_t>(here - begin, mostRoom);
}

bool mayHaveRoomForLevels(unsigned levels) noexcept
{
    return levels <= safeLevels || levels <= stackRoom() / leastStackOfLevel;
}

} // namespace vorn::parsers::toml
