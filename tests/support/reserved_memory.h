#pragma once

#include <sys/mman.h>

#include <cstddef>
#include <stdexcept>

namespace test
{

// Addresses of which only those take memory that are written to.
class ReservedMemory
{
public:
    explicit ReservedMemory(std::size_t size)
        : size_(size), memory_(mmap(nullptr, size, PROT_READ | PROT_WRITE,
                                    MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0))
    {
        if (memory_ == MAP_FAILED)
        {
            throw std::runtime_error("no addresses");
        }
    }
    ReservedMemory(const ReservedMemory&) = delete;
    ReservedMemory& operator=(const ReservedMemory&) = delete;
    ~ReservedMemory() { munmap(memory_, size_); }

    char* begin() const { return static_cast<char*>(memory_); }

private:
    std::size_t size_;
    void* memory_;
};

} // namespace test
