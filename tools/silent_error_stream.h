#pragma once

#include <cstdio>

namespace tool
{

// While one lives, everything that is printed on the C library's standard error stream is
// dropped: the runtime's reports, which are of no use here.  The descriptor stays as it is.  Only
// while there is one thread: the stream is that of the process.
class SilentErrorStream
{
public:
    SilentErrorStream() : stream_(stderr), nothing_(std::fopen("/dev/null", "w"))
    {
        if (nothing_ != nullptr)
        {
            stderr = nothing_;
        }
    }
    SilentErrorStream(const SilentErrorStream&) = delete;
    SilentErrorStream& operator=(const SilentErrorStream&) = delete;
    ~SilentErrorStream()
    {
        stderr = stream_;
        if (nothing_ != nullptr)
        {
            std::fclose(nothing_);
        }
    }

private:
    std::FILE* stream_;
    std::FILE* nothing_;
};

} // namespace tool
