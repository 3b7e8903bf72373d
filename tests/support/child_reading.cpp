#include "child_reading.h"

#include <vorn/parsers/toml.h>

#include <fcntl.h>
#include <pthread.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <ctime>
#include <functional>
#include <optional>

#include "support/counting_visitor.h"
#include "support/log_recorder.h"
#include "support/memory_limit.h"

namespace test
{
namespace
{

// What the child tells through a pipe.
struct Report
{
    bool accepted = false;
    std::size_t calls = 0;
    std::size_t lines = 0;
    std::size_t logHash = 0;
    double seconds = 0;
    std::array<char, 200> lastMessage = {};
};

struct Task
{
    const std::string& text;
    const ChildLimits& limits;
    Report report;
};

[[noreturn]] void fail(const char* what)
{
    perror(what);
    _exit(2);
}

double processorSeconds()
{
    timespec time = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

void summarise(const std::vector<std::string>& messages, Report& report)
{
    std::string all;
    for (const std::string& message : messages)
    {
        all += message + '\n';
    }
    report.lines = messages.size();
    report.logHash = std::hash<std::string>()(all);
    if (!messages.empty())
    {
        std::strncpy(report.lastMessage.data(), messages.back().c_str(),
                     report.lastMessage.size() - 1);
    }
}

void* read(void* argument)
{
    auto& task = *static_cast<Task*>(argument);
    std::optional<LogRecorder> log;
    if (task.limits.recordsLog)
    {
        log.emplace();
    }
    CountingVisitor visitor;
    std::optional<MemoryLimit> memory;
    if (task.limits.memory != 0)
    {
        memory.emplace(task.limits.memory);
    }
    const double start = processorSeconds();
    task.report.accepted = vorn::parsers::toml::visitTomlTree(task.text, visitor);
    task.report.seconds = processorSeconds() - start;
    task.report.calls = visitor.calls;
    memory.reset();
    summarise(log ? log->messages() : std::vector<std::string>(), task.report);
    return nullptr;
}

void readOnThread(Task& task)
{
    pthread_attr_t attributes;
    pthread_t thread = {};
    if (pthread_attr_init(&attributes) != 0 ||
        pthread_attr_setstacksize(&attributes, task.limits.stack) != 0 ||
        pthread_create(&thread, &attributes, read, &task) != 0 ||
        pthread_join(thread, nullptr) != 0)
    {
        fail("a thread with a stack of that size");
    }
}

[[noreturn]] void runChild(const std::string& text, const ChildLimits& limits, int output)
{
    // The runtime's reports would drown the test's output.
    const int null = open("/dev/null", O_WRONLY);
    if (null < 0 || dup2(null, STDERR_FILENO) < 0)
    {
        fail("/dev/null");
    }
    const rlimit noCore = {0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    Task task = {text, limits, {}};
    if (limits.stack != 0)
    {
        readOnThread(task);
    }
    else
    {
        read(&task);
    }
    const bool written = write(output, &task.report, sizeof(task.report)) == sizeof(task.report);
    _exit(written ? 0 : 2);
}

} // namespace

ChildReading readInChild(const std::string& text, const ChildLimits& limits)
{
    int ends[2] = {-1, -1};
    ChildReading reading;
    if (pipe(ends) != 0)
    {
        return reading;
    }
    const pid_t child = fork();
    if (child == 0)
    {
        runChild(text, limits, ends[1]);
    }
    close(ends[1]);
    Report report;
    const bool told = ::read(ends[0], &report, sizeof(report)) == sizeof(report);
    close(ends[0]);
    int status = -1;
    rusage usage = {};
    if (wait4(child, &status, 0, &usage) == child)
    {
        reading.signal = WIFSIGNALED(status) ? WTERMSIG(status) : told ? 0 : -1;
        reading.peakKilobytes = usage.ru_maxrss;
    }
    reading.accepted = report.accepted;
    reading.calls = report.calls;
    reading.lines = report.lines;
    reading.logHash = report.logHash;
    reading.lastMessage = report.lastMessage.data();
    reading.seconds = report.seconds;
    return reading;
}

} // namespace test
