#include "commands.h"
#include "event_printer.h"
#include "input.h"

namespace tool
{

Status printEvents(const std::string& name)
{
    const auto text = readInput(name);
    if (!text)
    {
        return unreadable;
    }
    EventPrinter printer(stdout);
    return vorn::parsers::toml::visitTomlTree(*text, printer) ? accepted : rejected;
}

} // namespace tool
