#include <algorithm>
#include <cstdio>
#include <cstring>
#include <utility>

#include "commands.h"
#include "each_file.h"
#include "file_replacement.h"
#include "fix/fix.h"
#include "fix/unified_diff.h"
#include "log.h"
#include "silent_error_stream.h"

namespace tool
{
namespace
{

using fixing::FixOutcome;
using fixing::FixResult;

FixResult fixSilently(const std::string& text, const FixSwitches& switches)
{
    const HeldLog log;
    const SilentErrorStream silent;
    return fixing::fix(text, {switches.dropComments});
}

// Whether standard output is for the document, or the difference, alone.
bool printsContent(const std::string& name, const FixSwitches& switches)
{
    return switches.diff || (name == "-" && !switches.check);
}

void print(const std::string& text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
}

void explainResult(const std::string& name, const std::string& text, FixResult& result,
                   const Options& options)
{
    if (result.outcome == FixOutcome::failed)
    {
        std::fprintf(stderr,
                     "%s: error: internal error: the rewritten document is not accepted or would "
                     "mean something else\n",
                     printable(name).c_str());
        return;
    }
    Diagnosis diagnosis;
    diagnosis.errors = result.findings.size();
    diagnosis.findings = std::move(result.findings);
    diagnosis.findings.resize(std::min(diagnosis.errors, maxErrors));
    explain(name, text, diagnosis, options);
}

// Writes the fixed document to where it belongs.
Status write(const std::string& name, const std::string& before, const std::string& after,
             const FixSwitches& switches)
{
    if (switches.diff)
    {
        print(fixing::unifiedDiff(printable(name), before, after));
    }
    if (switches.diff || switches.check)
    {
        return switches.check ? rejected : accepted;
    }
    if (name == "-")
    {
        print(after);
        return accepted;
    }
    const int reason = replaceFile(name, after);
    if (reason != 0)
    {
        // NOLINTNEXTLINE(concurrency-mt-unsafe): the tool has one thread.
        const char* const words = std::strerror(reason);
        std::fprintf(stderr, "vorn-toml: %s: %s\n", printable(name).c_str(), words);
    }
    return reason == 0 ? accepted : unreadable;
}

Status fixFile(const std::string& name, Progress& progress, const Options& options)
{
    const std::optional<std::string> text = readInput(name, progress);
    if (!text)
    {
        return unreadable;
    }
    progress.work(text->size());
    FixResult result = fixSilently(*text, options.fix);
    progress.clear();
    Status status = accepted;
    const char* said = "unchanged";
    if (result.outcome == FixOutcome::fixed)
    {
        status = write(name, *text, result.text, options.fix);
        said = options.fix.check ? "would change" : "fixed";
    }
    else if (result.outcome == FixOutcome::unchanged)
    {
        if (name == "-" && printsContent(name, options.fix) && !options.fix.diff)
        {
            print(*text);
        }
    }
    else
    {
        explainResult(name, *text, result, options);
        status = rejected;
        said = "not fixed";
    }
    if (!printsContent(name, options.fix) && status != unreadable)
    {
        std::printf("%s: %s\n", printable(name).c_str(), said);
    }
    return status;
}

} // namespace

Status fixFiles(const Options& options)
{
    const bool hasInput =
        std::find(options.files.begin(), options.files.end(), "-") != options.files.end();
    if (hasInput && options.files.size() > 1)
    {
        std::fputs("vorn-toml: fix takes - alone\n", stderr);
        return usage;
    }
    return eachFile(options, true,
                    [&](const std::string& name, Progress& progress)
                    { return fixFile(name, progress, options); });
}

} // namespace tool
