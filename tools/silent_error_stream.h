#pragma once

#include <cstdio>

namespace tool
{

// While one lives, nothing of what is printed on the C library's standard error stream
// arrives.  The runtime prints there about each error, in words that are of no use here; the
// descriptor stays as it is.
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
