#include "stack_room.h"

#include <pthread.h>
#include <sys/auxv.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

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
constexpr std::size_t maxRoom = std::size_t{64} * 1024 * 1024;

std::uintptr_t here() noexcept
{
    return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
}

bool isMainThread() noexcept
{
    return syscall(SYS_gettid) == getpid();
}

// Where /proc is not mounted the C library does not know the main thread's stack.  It ends
// below the program's name, and may be as large as the limit of the process.
std::size_t roomOfMainThread() noexcept
{
    // What is not known stays zero, and leaves no room.
    const auto end = static_cast<std::uintptr_t>(getauxval(AT_EXECFN));
    rlimit limit = {};
    getrlimit(RLIMIT_STACK, &limit);
    const auto size = static_cast<std::size_t>(std::min<rlim_t>(limit.rlim_cur, maxRoom));
    const std::size_t used = end - here();
    return used < size ? size - used : unknownRoom;
}

} // namespace

std::size_t stackRoom() noexcept
{
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0)
    {
        return isMainThread() ? roomOfMainThread() : unknownRoom;
    }
    void* start = nullptr;
    std::size_t size = 0;
    const bool known = pthread_attr_getstack(&attributes, &start, &size) == 0;
    pthread_attr_destroy(&attributes);

    const auto lowest = reinterpret_cast<std::uintptr_t>(start);
    if (!known || here() < lowest || here() - lowest >= size)
    {
        return unknownRoom;
    }
    return std::min<std::size_t>(here() - lowest, maxRoom);
}

unsigned maxLevels() noexcept
{
    return std::max(safeLevels, static_cast<unsigned>(stackRoom() / minStackOfLevel));
}

bool mayHaveRoomForLevels(unsigned levels) noexcept
{
    return levels <= safeLevels || levels <= maxLevels();
}

} // namespace vorn::parsers::toml
