#include "memory_peak.h"

#include <fcntl.h>
#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <stdexcept>

#include "child_result.h"

namespace test
{
namespace
{

using MakeText = std::function<std::string()>;
using UseText = std::function<bool(const std::string&)>;

// The kernel adds pages to a process's count 32 at a time, those of files and others separately:
// the peak that it tells may lack so many kilobytes, which is much for a small document.
constexpr long uncounted = 256;

// In kilobytes.  It takes no memory itself.
long statusOf(const char* name)
{
    std::array<char, 8192> status = {};
    const int file = open("/proc/self/status", O_RDONLY);
    const ssize_t size = read(file, status.data(), status.size() - 1);
    close(file);
    const char* line = size > 0 ? std::strstr(status.data(), name) : nullptr;
    return line != nullptr ? std::strtol(line + std::strlen(name), nullptr, 10) : -1;
}

bool resetPeak()
{
    const int file = open("/proc/self/clear_refs", O_WRONLY);
    const bool done = write(file, "5", 1) == 1;
    close(file);
    return done;
}

// How many pages were not there when they were used, in kilobytes.
long faultsSoFar()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_minflt * (sysconf(_SC_PAGESIZE) / 1024);
}

// In kilobytes; negative where it is not known.
long measure(const MakeText& makeText, const UseText& use, Heap heap)
{
    // Otherwise the heap changes its mind whenever a larger block is freed.
    mallopt(M_MMAP_THRESHOLD, heap == Heap::fresh ? 128 * 1024 : 32 * 1024 * 1024);
    const std::string text = makeText();
    // What the measurement itself needs is there before it starts.
    const bool isUsable = use(text) && faultsSoFar() > 0 && statusOf("VmHWM:") > 0;
    malloc_trim(0);
    if (!isUsable || !resetPeak())
    {
        return -1;
    }
    const long before = statusOf("VmRSS:");
    const long faultsBefore = faultsSoFar();
    const bool isUsed = use(text);
    const long faults = faultsSoFar() - faultsBefore;
    const long peak = statusOf("VmHWM:") - before;
    // A page that is given back and used again is more than one fault.
    return isUsed ? std::min(faults, peak + uncounted) : -1;
}

} // namespace

bool canMeasurePeaks()
{
    return resetPeak() && statusOf("VmHWM:") > 0;
}

long peakBesideText(const MakeText& makeText, const UseText& use, Heap heap)
{
    const auto peak = resultOfChild([&] { return measure(makeText, use, heap); });
    if (peak.value_or(-1) < 0)
    {
        throw std::runtime_error("a text was not used as expected");
    }
    return *peak;
}

} // namespace test
