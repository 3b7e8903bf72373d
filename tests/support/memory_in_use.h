#pragma once

#include <malloc.h>

#include <cstddef>

namespace test
{

// How much the heap holds, with what it keeps for the next small request.
inline std::size_t memoryInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

} // namespace test
