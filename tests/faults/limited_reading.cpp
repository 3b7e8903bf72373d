#include "limited_reading.h"

#include <vorn/parsers/toml.h>

#include <fcntl.h>
#include <malloc.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <new>

#include "quiet_log.h"
#include "support/counting_visitor.h"

namespace test
{
namespace
{

using vorn::parsers::toml::FilePath;
using vorn::parsers::toml::visitTomlTree;

// What the child tells through a pipe.
struct Report
{
    bool accepted = false;
    bool hasThrown = false;
    std::size_t calls = 0;
    std::size_t lines = 0;
    std::array<char, 100> lastMessage = {};
};

[[noreturn]] void fail(const char* what)
{
    std::perror(what);
    _exit(2);
}

std::size_t addressSpaceInUse()
{
    std::size_t pages = 0;
    std::FILE* const file = std::fopen("/proc/self/statm", "r");
    if (file == nullptr || std::fscanf(file, "%zu", &pages) != 1)
    {
        fail("/proc/self/statm");
    }
    std::fclose(file);
    return pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

void limit(decltype(RLIMIT_AS) resource, rlim_t most)
{
    const rlimit limits = {most, most};
    if (setrlimit(resource, &limits) != 0)
    {
        fail("setrlimit");
    }
}

[[noreturn]] void runChild(const std::string& text, std::size_t memory, const char* path,
                           int output)
{
    // The runtime's reports would drown the test's output.
    const int null = open("/dev/null", O_WRONLY);
    if (null < 0 || dup2(null, STDERR_FILENO) < 0)
    {
        fail("/dev/null");
    }
    limit(RLIMIT_CORE, 0);
    CountingVisitor visitor;
    const FilePath file(path != nullptr ? path : "");
    Report report;
    clearLog();
    if (memory != 0)
    {
        // What the parent has freed does not help.
        malloc_trim(0);
        limit(RLIMIT_AS, addressSpaceInUse() + memory);
    }
    try
    {
        report.accepted =
            path != nullptr ? visitTomlTree(file, visitor) : visitTomlTree(text, visitor);
    }
    catch (const std::bad_alloc&)
    {
        report.hasThrown = true;
    }
    report.calls = visitor.calls;
    report.lines = loggedLines();
    std::strncpy(report.lastMessage.data(), lastMessage(), report.lastMessage.size() - 1);
    _exit(write(output, &report, sizeof(report)) == sizeof(report) ? 0 : 2);
}

bool beginsWith(const std::string& text, const char* beginning)
{
    return text.compare(0, std::strlen(beginning), beginning) == 0;
}

} // namespace

const char* nameOf(Ending ending)
{
    static constexpr std::array<const char*, endings> names = {
        "accepted",    "diagnosed",      "too large", "too deep",
        "not created", "std::bad_alloc", "crashed",   "other"};
    return names.at(static_cast<std::size_t>(ending));
}

LimitedReading readLimited(const std::string& text, std::size_t memory, const char* path)
{
    int ends[2] = {-1, -1};
    LimitedReading reading;
    if (pipe(ends) != 0)
    {
        return reading;
    }
    const pid_t child = fork();
    if (child == 0)
    {
        runChild(text, memory, path, ends[1]);
    }
    close(ends[1]);
    Report report;
    const bool told = read(ends[0], &report, sizeof(report)) == sizeof(report);
    close(ends[0]);
    int status = -1;
    if (waitpid(child, &status, 0) == child)
    {
        reading.signal = WIFSIGNALED(status) ? WTERMSIG(status) : told ? 0 : -1;
    }
    reading.accepted = report.accepted;
    reading.hasThrown = report.hasThrown;
    reading.calls = report.calls;
    reading.lines = report.lines;
    reading.lastMessage = report.lastMessage.data();
    return reading;
}

Ending endingOf(const LimitedReading& reading, const LimitedReading& unlimited)
{
    if (reading.signal != 0)
    {
        return Ending::crashed;
    }
    if (reading.hasThrown)
    {
        return Ending::badAlloc;
    }
    const bool isSame = reading.calls == unlimited.calls && reading.lines == unlimited.lines &&
                        reading.accepted == unlimited.accepted &&
                        reading.lastMessage == unlimited.lastMessage;
    if (isSame)
    {
        return reading.accepted ? Ending::accepted : Ending::diagnosed;
    }
    if (reading.accepted || reading.calls != 0)
    {
        return Ending::other;
    }
    if (beginsWith(reading.lastMessage, "Failed to create toml "))
    {
        return Ending::notCreated;
    }
    const bool isAlone = reading.lines == 1;
    if (isAlone && beginsWith(reading.lastMessage, "Failed: input TOML is too large to diagnose"))
    {
        return Ending::tooLarge;
    }
    if (isAlone && beginsWith(reading.lastMessage, "Failed: input TOML is nested too deeply"))
    {
        return Ending::tooDeep;
    }
    return Ending::other;
}

} // namespace test
