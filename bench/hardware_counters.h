// The processor's own counters, as far as the kernel lets them be read.
#pragma once

#include <cstdint>

namespace bench
{

struct Counts
{
    std::uint64_t cycles;
    std::uint64_t instructions;
};

// Counts for the thread that makes it, outside of the kernel.  On many virtual machines there are
// no such counters.
class HardwareCounters
{
public:
    HardwareCounters();
    HardwareCounters(const HardwareCounters&) = delete;
    HardwareCounters& operator=(const HardwareCounters&) = delete;
    ~HardwareCounters();

    bool areThere() const { return cycles_ >= 0 && instructions_ >= 0; }
    void start();
    // What has been counted since the start.
    Counts stop();

private:
    int cycles_;
    int instructions_;
};

} // namespace bench
