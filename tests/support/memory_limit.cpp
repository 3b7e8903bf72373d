#include "memory_limit.h"

#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>

namespace test
{
namespace
{

constexpr bool canBeFilled = sizeof(void*) == 4;
// Few sizes: an emulator takes long to find that there is no room.
constexpr std::size_t pieces[] = {256 << 20, 16 << 20, 1 << 20, 64 << 10};

void setLimit(rlim_t most)
{
    rlimit limits = {};
    getrlimit(RLIMIT_AS, &limits);
    limits.rlim_cur = most;
    if (setrlimit(RLIMIT_AS, &limits) != 0)
    {
        std::abort();
    }
}

std::size_t addressSpaceInUse()
{
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

void* reserve(std::size_t size)
{
    return mmap(nullptr, size, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
}

} // namespace

MemoryLimit::MemoryLimit(std::size_t left)
{
    if (canBeFilled)
    {
        fill(left);
    }
    else
    {
        setLimit(addressSpaceInUse() + left);
    }
}

MemoryLimit::~MemoryLimit()
{
    if (!canBeFilled)
    {
        setLimit(RLIM_INFINITY);
    }
    for (const Mapping& mapping : filling_)
    {
        munmap(mapping.address, mapping.size);
    }
}

void MemoryLimit::fill(std::size_t left)
{
    filling_.reserve(1000);
    void* const hole = reserve(left);
    if (hole == MAP_FAILED)
    {
        std::abort();
    }
    for (const std::size_t size : pieces)
    {
        for (void* address = reserve(size); address != MAP_FAILED; address = reserve(size))
        {
            filling_.push_back({address, size});
        }
    }
    munmap(hole, left);
}

} // namespace test
