#include "child_cost.h"

#include <vorn/parsers/toml.h>
#include <vorn/parsers/toml_diagnosis.h>
#include <vorn/utils/log.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "processor_time.h"
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

namespace bench
{
namespace
{

namespace toml = vorn::parsers::toml;

// What a child process tells.
struct Report
{
    bool asExpected;
    double milliseconds;
    std::size_t lines;
};

// The number of lines logged, or of findings; and whether the document was accepted.
std::size_t used(const std::string& text, Use use, bool& accepted)
{
    if (use == Use::visit)
    {
        toml::TomlTreeVisitor visitor;
        accepted = toml::visitTomlTree(text, visitor);
        return loggedLines;
    }
    toml::DiagnosisOptions options;
    options.maxFindings = use == Use::diagnoseAll ? 0 : options.maxFindings;
    const std::size_t findings = toml::diagnose(text, options).size();
    accepted = findings == 0;
    return findings;
}

[[noreturn]] void runChild(const Document& document, std::size_t size, Use use, int output)
{
    const int null = open("/dev/null", O_WRONLY);
    dup2(null, STDERR_FILENO);
    // The first use of the libraries brings in the pages of their code.
    bool accepted = document.accepted;
    used(test::mixedDocument(1000), Use::visit, accepted);
    used("a = []\n@\n", Use::diagnose, accepted);
    const std::string text = document.make(size);
    Report report = {true, 0, 0};
    if (use != Use::none)
    {
        const double start = processorMilliseconds();
        const std::size_t lines = used(text, use, accepted);
        report = {accepted == document.accepted, processorMilliseconds() - start, lines};
    }
    const bool written = write(output, &report, sizeof(report)) == sizeof(report);
    _exit(written ? EXIT_SUCCESS : EXIT_FAILURE);
}

// Makes the text in a process of its own, and uses it.
Cost costOfChild(const Document& document, std::size_t size, Use use)
{
    int ends[2] = {-1, -1};
    if (pipe(ends) != 0)
    {
        throw std::runtime_error("no pipe");
    }
    const pid_t child = fork();
    if (child == 0)
    {
        runChild(document, size, use, ends[1]);
    }
    close(ends[1]);
    Report report = {};
    const bool told = read(ends[0], &report, sizeof(report)) == sizeof(report);
    close(ends[0]);
    int status = -1;
    rusage usage = {};
    if (wait4(child, &status, 0, &usage) != child || !told || !report.asExpected)
    {
        throw std::runtime_error(document.name + ": not read as expected");
    }
    return {report.milliseconds, usage.ru_maxrss, report.lines};
}

} // namespace

Cost costOf(const Document& document, std::size_t size, Use use)
{
    constexpr int repetitions = 3;
    Cost least = costOfChild(document, size, use);
    for (int count = 1; count < repetitions; ++count)
    {
        const Cost cost = costOfChild(document, size, use);
        least.milliseconds = std::min(least.milliseconds, cost.milliseconds);
        least.kilobytes = std::min(least.kilobytes, cost.kilobytes);
    }
    least.kilobytes -= costOfChild(document, size, Use::none).kilobytes;
    return least;
}

} // namespace bench
