#include <sched.h>

#include <algorithm>
#include <cstdio>
#include <new>

#include "check_report.h"
#include "commands.h"
#include "file_list.h"
#include "input.h"
#include "ordered_work.h"

namespace tool
{
namespace
{

void diagnose(CheckedFile& checked, const std::string& name, Progress& progress,
              const CheckOptions& options)
{
    Content content = contentOf(name, progress);
    checked.problem = content.problem;
    checked.examination.status = unreadable;
    if (content.text)
    {
        progress.work(content.text->size());
        checked.text = std::move(*content.text);
        checked.examination = diagnosed(checked.text, {options.strict, options.all});
    }
}

FileReport checkFile(const std::string& name, Progress& progress, const CheckOptions& options,
                     const CheckReport& report)
{
    CheckedFile checked;
    checked.name = name == "-" ? options.standardInput : name;
    try
    {
        diagnose(checked, name, progress, options);
    }
    catch (const std::bad_alloc&)
    {
        checked.text = std::string();
        checked.problem = "not enough memory";
        checked.examination.status = unreadable;
    }
    progress.clear();
    FileReport file = report.of(checked);
    file.status = checked.examination.status;
    if (file.status == unreadable)
    {
        file.error = unreadableLine(name, checked.problem);
    }
    return file;
}

// Those that the process may use: std::thread counts those of the machine.
std::size_t countProcessors()
{
    cpu_set_t processors;
    return sched_getaffinity(0, sizeof processors, &processors) == 0
               ? static_cast<std::size_t>(CPU_COUNT(&processors))
               : 1;
}

// One for each processor, at most one for each file.  Standard input can be read once: if it is
// named more often, the first of its names has it.
unsigned threadsFor(const std::vector<std::string>& files)
{
    const bool isInputOnce = std::count(files.begin(), files.end(), "-") < 2;
    return isInputOnce ? static_cast<unsigned>(std::min(files.size(), countProcessors())) : 1;
}

} // namespace

Status check(const Options& options)
{
    const std::vector<std::string> files = filesOf(options.files);
    const unsigned threads = threadsFor(files);
    const std::unique_ptr<CheckReport> report = makeReport(options, files.size());
    // With several threads, only this one shows progress.
    Progress progress(files.size(), isErrorTerminal());
    Status worst = accepted;
    OrderedWork work;
    work.files = files.size();
    work.make = [&](std::size_t file)
    {
        Progress hidden(files.size(), false);
        return checkFile(files[file], threads > 1 ? hidden : progress, options.check, *report);
    };
    work.wait = [&](std::size_t file)
    {
        if (threads > 1)
        {
            progress.wait(file, files[file]);
        }
    };
    work.take = [&](const FileReport& file)
    {
        progress.clear();
        worst = std::max(worst, file.status);
        report->print(file);
    };
    workInOrder(work, threads);
    report->end();
    return worst;
}

} // namespace tool
