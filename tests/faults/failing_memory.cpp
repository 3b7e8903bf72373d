#include "failing_memory.h"

#include <link.h>

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

namespace
{

std::atomic<long> blockCount{0};

// What fails.  The tests that fail memory have one thread.
bool isCounting = false;
long requestCount = 0;
long firstFailure = 0;
long lastFailure = 0;
std::size_t failingSize = 0; // 0: none
long requestsOfSize = 0;
long firstFailureOfSize = 0;
long lastFailureOfSize = 0;

// Where the runtime's code is.
struct Range
{
    std::uintptr_t begin = 0;
    std::uintptr_t end = 0;
};

Range findRuntime()
{
    Range range;
    const auto look = [](dl_phdr_info* object, std::size_t, void* found)
    {
        if (std::strstr(object->dlpi_name, "libantlr3c") == nullptr)
        {
            return 0;
        }
        for (int index = 0; index < object->dlpi_phnum; ++index)
        {
            const auto& segment = object->dlpi_phdr[index];
            if (segment.p_type == PT_LOAD && (segment.p_flags & PF_X) != 0)
            {
                const std::uintptr_t begin = object->dlpi_addr + segment.p_vaddr;
                *static_cast<Range*>(found) = {begin, begin + segment.p_memsz};
            }
        }
        return 1;
    };
    dl_iterate_phdr(look, &range);
    return range;
}

Range runtime;

bool isFailingSize(std::size_t size)
{
    if (failingSize == 0 || size != failingSize)
    {
        return false;
    }
    ++requestsOfSize;
    return requestsOfSize >= firstFailureOfSize && requestsOfSize <= lastFailureOfSize;
}

bool fails(const void* caller, std::size_t size)
{
    if (isFailingSize(size))
    {
        return true;
    }
    const auto address = reinterpret_cast<std::uintptr_t>(caller);
    return (address < runtime.begin || address >= runtime.end) && test::hasToFail();
}

// Counts a block that has been had.
void* counted(void* memory)
{
    blockCount += memory != nullptr ? 1 : 0;
    return memory;
}

void* failure()
{
    errno = ENOMEM;
    return nullptr;
}

} // namespace

// glibc's own functions, which these stand before.
extern "C"
{
    void* __libc_malloc(std::size_t size);
    void* __libc_calloc(std::size_t count, std::size_t size);
    void* __libc_realloc(void* memory, std::size_t size);
    void* __libc_memalign(std::size_t alignment, std::size_t size);
    void __libc_free(void* memory);

    void* malloc(std::size_t size)
    {
        return fails(__builtin_return_address(0), size) ? failure() : counted(__libc_malloc(size));
    }

    void* calloc(std::size_t count, std::size_t size)
    {
        return fails(__builtin_return_address(0), count * size)
                   ? failure()
                   : counted(__libc_calloc(count, size));
    }

    void* realloc(void* memory, std::size_t size)
    {
        if (fails(__builtin_return_address(0), size))
        {
            return failure();
        }
        void* const larger = __libc_realloc(memory, size);
        return memory == nullptr ? counted(larger) : larger;
    }

    void* aligned_alloc(std::size_t alignment, std::size_t size)
    {
        return fails(__builtin_return_address(0), size) ? failure()
                                                        : counted(__libc_memalign(alignment, size));
    }

    void free(void* memory)
    {
        blockCount -= memory != nullptr ? 1 : 0;
        __libc_free(memory);
    }
}

namespace test
{

FailingMemory::FailingMemory(long number, Failing failing)
    : number_(number), blocksBefore_(blockCount)
{
    runtime = findRuntime();
    requestCount = 0;
    firstFailure = number == 0 ? 1 : number;
    lastFailure = number == 0                ? 0
                  : failing == Failing::once ? number
                                             : std::numeric_limits<long>::max();
    isCounting = true;
}

FailingMemory::~FailingMemory()
{
    isCounting = false;
}

long FailingMemory::requests() const
{
    return requestCount;
}

bool FailingMemory::hasFailed() const
{
    return number_ != 0 && requestCount >= number_;
}

long FailingMemory::blocks() const
{
    return blockCount - blocksBefore_;
}

FailingBlock::FailingBlock(std::size_t size, long number, Failing failing)
    : blocksBefore_(blockCount)
{
    requestsOfSize = 0;
    firstFailureOfSize = number;
    lastFailureOfSize = failing == Failing::once ? number : std::numeric_limits<long>::max();
    failingSize = size;
}

FailingBlock::~FailingBlock()
{
    failingSize = 0;
}

bool FailingBlock::hasFailed() const
{
    return requestsOfSize >= firstFailureOfSize;
}

long FailingBlock::blocks() const
{
    return blockCount - blocksBefore_;
}

bool hasToFail()
{
    if (!isCounting)
    {
        return false;
    }
    ++requestCount;
    return requestCount >= firstFailure && requestCount <= lastFailure;
}

SparedMemory::SparedMemory() : wasCounting_(isCounting)
{
    isCounting = false;
}

SparedMemory::~SparedMemory()
{
    isCounting = wasCounting_;
}

bool isRuntimeKnown()
{
    const Range range = findRuntime();
    return range.begin < range.end;
}

} // namespace test
