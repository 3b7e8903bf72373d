// Measures how time and memory grow with a document, and prints the tables of
// docs/growth.md: vorn-growth [PROCESSOR]
//
// The logger is left out; what the runtime writes to standard error is thrown away.
#include <vorn/parsers/toml.h>
#include <vorn/utils/log.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <stdexcept>
#include <string>
#include <thread>

#include "tests/support/large_documents.h"

namespace
{

std::size_t loggedLines = 0;

} // namespace

// In the place of the utility library's.
void logInternal(const char*, const char*, const char*, int, int, int, int, const char*, ...)
{
    ++loggedLines;
}

namespace
{

using MakeText = std::string (*)(std::size_t size);

// A document that can be made in any size, about.
struct Document
{
    const char* name;
    bool accepted;
    std::size_t size; // the smallest that is measured
    MakeText make;
};

constexpr std::size_t kilobyte = 1000;
constexpr std::size_t megabyte = 1000 * kilobyte;

const Document growing[] = {
    {"lines of all kinds", true, 4 * megabyte, test::mixedDocument},
    {"one long string", true, 4 * megabyte,
     [](std::size_t size) { return test::enclosed("a = \"", "x", size, "\"\n"); }},
    {"one long key", true, 4 * megabyte,
     [](std::size_t size) { return test::enclosed("", "x", size, " = 1\n"); }},
    {"one long array", true, 4 * megabyte,
     [](std::size_t size) { return test::enclosed("a = [", "1,", size / 2, "1]\n"); }},
    {"one key of many parts", true, 4 * megabyte,
     [](std::size_t size) { return test::enclosed("a", ".a", size / 2, " = 1\n"); }},
    {"bad lines, `a 1`", false, 100 * kilobyte,
     [](std::size_t size) { return test::repeated("a 1\n", size / 4); }},
    {"bad characters, `@`", false, 100 * kilobyte,
     [](std::size_t size) { return test::repeated("@", size); }},
    {"lines of all kinds, then `@`", false, 250 * kilobyte,
     [](std::size_t size) { return test::mixedDocument(size) + "@"; }},
    {"one long string, not closed", false, 4 * megabyte,
     [](std::size_t size) { return test::enclosed("a = \"", "x", size, "\n"); }},
    {"one long key, without a value", false, 4 * megabyte,
     [](std::size_t size) { return test::enclosed("", "x", size, "\n"); }},
    {"one long array, not closed", false, 100 * kilobyte,
     [](std::size_t size) { return test::enclosed("a = [", "1,", size / 2, "1\n"); }},
    {"one key of many parts, without a value", false, 100 * kilobyte,
     [](std::size_t size) { return test::enclosed("a", ".a", size / 2, "\n"); }},
};

const Document hostile[] = {
    {"`a`, 4,000 dots, `=1`", false, 4'003,
     [](std::size_t) { return test::enclosed("a", ".", 4'000, "=1"); }},
    {"4,000 lines `a 1`", false, 16'000,
     [](std::size_t) { return test::repeated("a 1\n", 4'000); }},
    {"12,000 `[`", false, 12'000, [](std::size_t) { return test::repeated("[", 12'000); }},
    {"12,000 `{a=`", false, 36'000, [](std::size_t) { return test::repeated("{a=", 12'000); }},
    {"`a=`, 12,000 `[`", false, 12'002,
     [](std::size_t) { return test::enclosed("a=", "[", 12'000, ""); }},
    {"`a=`, 12,000 `{a=`", false, 36'002,
     [](std::size_t) { return test::enclosed("a=", "{a=", 12'000, ""); }},
};

// As large as documents get, and those of errors only that are still diagnosed.
const Document largest[] = {
    {"one string", true, 100 * megabyte,
     [](std::size_t size) { return test::enclosed("a = '", "x", size - 7, "'\n"); }},
    {"one key", true, 100 * megabyte,
     [](std::size_t size) { return test::enclosed("", "x", size - 5, " = 1\n"); }},
    {"one comment", true, 100 * megabyte,
     [](std::size_t size) { return test::enclosed("# ", "x", size - 3, "\n"); }},
    {"a million tables", true, 10 * megabyte,
     [](std::size_t size) { return test::repeated("[a.table]\n", size / 10); }},
    {"lines `a 1`", false, megabyte,
     [](std::size_t size) { return test::repeated("a 1\n", size / 4); }},
    {"lines `a = {}`", false, megabyte,
     [](std::size_t size) { return test::repeated("a = {}\n", size / 7); }},
    {"lines `'`", false, megabyte,
     [](std::size_t size) { return test::repeated("'\n", size / 2); }},
    {"`@`", false, megabyte, [](std::size_t size) { return test::repeated("@", size); }},
    {"`=`", false, megabyte, [](std::size_t size) { return test::repeated("=", size); }},
};

struct Cost
{
    double milliseconds;
    long kilobytes; // the most that the process had
    std::size_t lines;
};

// What a child process tells.
struct Report
{
    bool asExpected;
    double milliseconds;
    std::size_t lines;
};

double processorMilliseconds()
{
    timespec time = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

[[noreturn]] void runChild(const Document& document, std::size_t size, bool reads, int output)
{
    const int null = open("/dev/null", O_WRONLY);
    dup2(null, STDERR_FILENO);
    // The first use of the library brings in the pages of its code.
    vorn::parsers::toml::TomlTreeVisitor visitor;
    vorn::parsers::toml::visitTomlTree(test::mixedDocument(1000), visitor);
    const std::string text = document.make(size);
    Report report = {true, 0, 0};
    if (reads)
    {
        const double start = processorMilliseconds();
        const bool accepted = vorn::parsers::toml::visitTomlTree(text, visitor);
        report = {accepted == document.accepted, processorMilliseconds() - start, loggedLines};
    }
    const bool written = write(output, &report, sizeof(report)) == sizeof(report);
    _exit(written ? EXIT_SUCCESS : EXIT_FAILURE);
}

// Makes the text in a process of its own, and reads it if it is to.
Cost costOfChild(const Document& document, std::size_t size, bool reads)
{
    int ends[2] = {-1, -1};
    if (pipe(ends) != 0)
    {
        throw std::runtime_error("no pipe");
    }
    const pid_t child = fork();
    if (child == 0)
    {
        runChild(document, size, reads, ends[1]);
    }
    close(ends[1]);
    Report report = {};
    const bool told = read(ends[0], &report, sizeof(report)) == sizeof(report);
    close(ends[0]);
    int status = -1;
    rusage usage = {};
    if (wait4(child, &status, 0, &usage) != child || !told || !report.asExpected)
    {
        throw std::runtime_error(std::string(document.name) + ": not read as expected");
    }
    return {report.milliseconds, usage.ru_maxrss, report.lines};
}

// The quickest of some readings, and the memory beside the text.
Cost costOf(const Document& document, std::size_t size)
{
    constexpr int repetitions = 3;
    Cost least = costOfChild(document, size, true);
    for (int count = 1; count < repetitions; ++count)
    {
        const Cost cost = costOfChild(document, size, true);
        least.milliseconds = std::min(least.milliseconds, cost.milliseconds);
        least.kilobytes = std::min(least.kilobytes, cost.kilobytes);
    }
    least.kilobytes -= costOfChild(document, size, false).kilobytes;
    return least;
}

// With the digits that matter.
std::string rounded(double value)
{
    char text[32];
    std::snprintf(text, sizeof(text), "%.*f", value < 1 ? 3 : value < 10 ? 1 : 0, value);
    return text;
}

std::string sizeText(std::size_t bytes)
{
    return bytes >= megabyte ? rounded(static_cast<double>(bytes) / megabyte) + " MB"
                             : std::to_string(bytes / kilobyte) + " KB";
}

std::string megabytes(const Cost& cost)
{
    return rounded(static_cast<double>(cost.kilobytes) * 1024 / megabyte);
}

void printCaption(const char* processor)
{
    const std::time_t now = std::time(nullptr);
    char date[16];
    std::strftime(date, sizeof(date), "%F", std::gmtime(&now));
    std::printf("\n%s, %u CPUs; %s; %s.\n", processor, std::thread::hardware_concurrency(),
                VORN_COMPILER, date);
}

void printGrowth()
{
    constexpr std::size_t factors[] = {1, 2, 4, 8};
    std::printf("\n| document | size at 1 | ms at 1 | at 2 | at 4 | at 8 | MB at 1 | at 2 | at 4 | "
                "at 8 |\n|---|---:|---:|---:|---:|---:|---:|---:|---:|---:|\n");
    for (const Document& document : growing)
    {
        std::string times;
        std::string memory;
        for (const std::size_t factor : factors)
        {
            const Cost cost = costOf(document, factor * document.size);
            times += " | " + rounded(cost.milliseconds);
            memory += " | " + megabytes(cost);
        }
        std::printf("| %s, %s | %s%s%s |\n", document.accepted ? "accepted" : "rejected",
                    document.name, sizeText(document.size).c_str(), times.c_str(), memory.c_str());
    }
}

template <std::size_t count>
void printCosts(const Document (&documents)[count])
{
    const Document right = {"valid lines", true, 0, test::mixedDocument};
    std::printf("\n| document | bytes | log lines | ms | MB | ms of valid lines |\n"
                "|---|---:|---:|---:|---:|---:|\n");
    for (const Document& document : documents)
    {
        const Cost cost = costOf(document, document.size);
        std::printf("| %s, %s | %zu | %zu | %s | %s | %s |\n",
                    document.accepted ? "accepted" : "rejected", document.name, document.size,
                    cost.lines, rounded(cost.milliseconds).c_str(), megabytes(cost).c_str(),
                    rounded(costOf(right, document.size).milliseconds).c_str());
    }
}

} // namespace

int main(int argc, char** argv)
{
    try
    {
        // Children must not print what is not printed yet.
        std::setvbuf(stdout, nullptr, _IONBF, 0);
        printCaption(argc > 1 ? argv[1] : "unknown processor");
        printGrowth();
        printCosts(hostile);
        printCosts(largest);
        std::printf("\n");
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "vorn-growth: %s\n", error.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
