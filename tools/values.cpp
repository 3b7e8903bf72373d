#include "commands.h"
#include "each_file.h"
#include "value_printer.h"

namespace tool
{

Status printValues(const Options& options)
{
    ValuePrinter printer(stdout);
    return eachFile(options, !isOutputTerminal(),
                    [&](const std::string& name, Progress& progress)
                    { return visitInput(name, progress, printer); });
}

} // namespace tool
