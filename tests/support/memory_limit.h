#pragma once

#include <cstddef>
#include <vector>

namespace test
{

// While this lives the process can get about this much more memory, and no more.
//
// It is the address space that is limited.  Emulators let no limit on it be set, but that
// of a 32-bit process is so small that it can be filled instead.
class MemoryLimit
{
public:
    explicit MemoryLimit(std::size_t left); // the process ends where there is less
    MemoryLimit(const MemoryLimit&) = delete;
    MemoryLimit& operator=(const MemoryLimit&) = delete;
    ~MemoryLimit();

private:
    struct Mapping
    {
        void* address;
        std::size_t size;
    };

    void fill(std::size_t left);

    std::vector<Mapping> filling_;
};

} // namespace test
