#pragma once

#include <fcntl.h>
#include <unistd.h>

namespace test
{

// It is the same again when all files that were opened meanwhile are closed.
inline int lowestFreeDescriptor()
{
    const int file = open("/dev/null", O_RDONLY | O_CLOEXEC);
    close(file);
    return file;
}

} // namespace test
