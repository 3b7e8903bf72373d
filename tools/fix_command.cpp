#include <algorithm>
#include <cstdio>
#include <cstring>
#include <utility>

#include "commands.h"
#include "diagnosis/source_lines.h"
#include "each_file.h"
#include "file_replacement.h"
#include "fix/fix.h"
#include "fix/unified_diff.h"
#include "shown_text.h"

namespace tool
{
namespace
{

using fixing::FixOutcome;
using fixing::FixResult;

// Whether standard output is for the document, or the difference, alone.
bool printsContent(const std::string& name, const FixSwitches& switches)
{
    return switches.diff || (name == "-" && !switches.check);
}

void print(const std::string& text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
}

// Counts the lines and columns of findings.
void locate(const std::string& text, std::vector<fixing::Finding>& findings)
{
    const vorn::parsers::toml::diagnosis::SourceLines lines(text);
    for (fixing::Finding& finding : findings)
    {
        const auto begin = lines.placeOf(finding.begin);
        const auto end = lines.placeOf(finding.end);
        finding.line = begin.line;
        finding.column = begin.column;
        finding.endLine = end.line;
        finding.endColumn = end.column;
    }
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
    constexpr std::size_t maxShown = 20;
    Examination examination;
    examination.status = rejected;
    examination.findings = std::move(result.findings);
    examination.more = examination.findings.size() > maxShown ? "there are more errors" : "";
    examination.findings.resize(std::min(examination.findings.size(), maxShown));
    locate(text, examination.findings);
    explain(name, text, examination, options);
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
    FixResult result = fixing::fix(*text, {options.fix.dropComments});
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
