#include "commands.h"
#include "event_printer.h"
#include "input.h"

namespace tool
{

Status printEvents(const std::string& name)
{
    EventPrinter printer(stdout);
    return visitInput(name, printer);
}

} // namespace tool
