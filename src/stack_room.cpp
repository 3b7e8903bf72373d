#include "stack_room.h"

#include <pthread.h>

#include <algorithm>
#include <cstdint>

namespace vorn::parsers::toml
{
namespace
{

// What any stack has left, as far as this can be assumed.
constexpr std::size_t unknownRoom = 32 * 1024;

// A main thread's stack grows as it is used.  Where it has no limit, other mappings end
// it; this much is free of them.
constexpr std::size_t mostRoom = 64 * 1024 * 1024;

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

} // namespace vorn::parsers::toml
