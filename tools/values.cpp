#include "commands.h"
#include "input.h"
#include "value_printer.h"

namespace tool
{

Status printValues(const std::string& name)
{
    ValuePrinter printer(stdout);
    return visitInput(name, printer);
}

} // namespace tool
