#include "hardware_counters.h"

#include <linux/perf_event.h>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <stdexcept>

namespace bench
{
namespace
{

// Negative if the kernel has no such counter for us.  The first of a group is started and stopped
// for all.
int openCounter(std::uint64_t event, int first)
{
    perf_event_attr attributes = {};
    attributes.size = sizeof(attributes);
    attributes.type = PERF_TYPE_HARDWARE;
    attributes.config = event;
    attributes.disabled = first < 0;
    attributes.exclude_kernel = 1;
    attributes.exclude_hv = 1;
    return static_cast<int>(syscall(SYS_perf_event_open, &attributes, 0, -1, first, 0));
}

std::uint64_t countOf(int counter)
{
    std::uint64_t count = 0;
    if (read(counter, &count, sizeof(count)) != sizeof(count))
    {
        throw std::runtime_error("a counter of the processor cannot be read");
    }
    return count;
}

} // namespace

HardwareCounters::HardwareCounters()
    : cycles_(openCounter(PERF_COUNT_HW_CPU_CYCLES, -1)),
      instructions_(cycles_ < 0 ? -1 : openCounter(PERF_COUNT_HW_INSTRUCTIONS, cycles_))
{
}

HardwareCounters::~HardwareCounters()
{
    for (const int counter : {cycles_, instructions_})
    {
        if (counter >= 0)
        {
            close(counter);
        }
    }
}

void HardwareCounters::start()
{
    ioctl(cycles_, PERF_EVENT_IOC_RESET, PERF_IOC_FLAG_GROUP);
    ioctl(cycles_, PERF_EVENT_IOC_ENABLE, PERF_IOC_FLAG_GROUP);
}

Counts HardwareCounters::stop()
{
    ioctl(cycles_, PERF_EVENT_IOC_DISABLE, PERF_IOC_FLAG_GROUP);
    return {countOf(cycles_), countOf(instructions_)};
}

} // namespace bench
