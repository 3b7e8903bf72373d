#include "allocation_counter.h"

#include <atomic>
#include <cstddef>

namespace
{

// Without a counter nothing is counted, which would slow down what is measured elsewhere.
std::atomic<int> living{0};
std::atomic<long> allocationCount{0};
std::atomic<long> releaseCount{0};

bool isCounting()
{
    return living.load(std::memory_order_relaxed) != 0;
}

void countAllocation()
{
    if (isCounting())
    {
        ++allocationCount;
    }
}

void countRelease(const void* memory)
{
    if (isCounting() && memory != nullptr)
    {
        ++releaseCount;
    }
}

} // namespace

// glibc's own functions, which these stand before.  The standard library's operator new asks
// malloc() itself.
extern "C"
{
    void* __libc_malloc(std::size_t size);
    void* __libc_calloc(std::size_t count, std::size_t size);
    void* __libc_realloc(void* memory, std::size_t size);
    void* __libc_memalign(std::size_t alignment, std::size_t size);
    void __libc_free(void* memory);

    void* malloc(std::size_t size)
    {
        countAllocation();
        return __libc_malloc(size);
    }

    void* calloc(std::size_t count, std::size_t size)
    {
        countAllocation();
        return __libc_calloc(count, size);
    }

    void* realloc(void* memory, std::size_t size)
    {
        countAllocation();
        countRelease(memory);
        return __libc_realloc(memory, size);
    }

    void* aligned_alloc(std::size_t alignment, std::size_t size)
    {
        countAllocation();
        return __libc_memalign(alignment, size);
    }

    void free(void* memory)
    {
        countRelease(memory);
        __libc_free(memory);
    }
}

namespace test
{

AllocationCounter::AllocationCounter()
    : allocationsBefore_(allocationCount), releasesBefore_(releaseCount)
{
    ++living;
}

AllocationCounter::~AllocationCounter()
{
    --living;
}

long AllocationCounter::allocations() const
{
    return allocationCount - allocationsBefore_;
}

long AllocationCounter::releases() const
{
    return releaseCount - releasesBefore_;
}

} // namespace test
