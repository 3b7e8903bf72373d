#pragma once

#include <malloc.h>

namespace test
{

// From now on the program keeps memory that it has given back: the runtime asks for some
// megabytes for each document, and having them from the system takes most of a reading's time.
inline void keepMemory()
{
    constexpr int most = 64 * 1024 * 1024;
    mallopt(M_MMAP_THRESHOLD, most);
    mallopt(M_TRIM_THRESHOLD, most);
}

} // namespace test
