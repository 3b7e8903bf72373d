#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdio>

namespace tool
{

// The program's streams, while one lives.  Both of its outputs are written line by line, so that
// lines that go to the same place arrive in the order in which they were printed.
class StandardStreams
{
public:
    StandardStreams();
    StandardStreams(const StandardStreams&) = delete;
    StandardStreams& operator=(const StandardStreams&) = delete;
    ~StandardStreams();

    // Why the first failed write to standard output failed, as an errno; 0 if all that has been
    // printed is written.
    int outputFailure() const;

private:
    static ssize_t write(void* streams, const char* bytes, std::size_t size);

    std::FILE* const output_;
    int failure_ = 0;
};

} // namespace tool
