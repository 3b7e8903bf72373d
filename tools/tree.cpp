#include "commands.h"
#include "dot_printer.h"
#include "each_file.h"
#include "tree_printer.h"

namespace tool
{
namespace
{

Status drawTree(const std::string& name, Progress& progress, const Options& options)
{
    const std::optional<std::string> text = readInput(name, progress);
    if (!text)
    {
        return unreadable;
    }
    progress.work(text->size());
    Examination examination;
    if (options.dot)
    {
        DotPrinter printer(stdout, name);
        examination = examine(*text, printer);
    }
    else
    {
        TreePrinter printer(stdout);
        examination = examine(*text, printer);
    }
    progress.clear();
    explain(name, *text, examination, options);
    return examination.status;
}

} // namespace

Status printTrees(const Options& options)
{
    return eachFile(options, !isOutputTerminal(),
                    [&](const std::string& name, Progress& progress)
                    { return drawTree(name, progress, options); });
}

} // namespace tool
