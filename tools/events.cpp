#include "commands.h"
#include "each_file.h"
#include "event_printer.h"

namespace tool
{

Status printEvents(const Options& options)
{
    EventPrinter printer(stdout);
    return eachFile(options, !isOutputTerminal(),
                    [&](const std::string& name, Progress& progress)
                    { return visitInput(name, progress, printer); });
}

} // namespace tool
