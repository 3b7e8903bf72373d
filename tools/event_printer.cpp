#include "event_printer.h"

#include "printed.h"

namespace tool
{

void EventPrinter::event(const char* operation)
{
    std::fprintf(output_, "%s\n", operation);
}

void EventPrinter::event(const char* operation, const char* text)
{
    const std::optional<std::string> converted = value(operation, text);
    std::fprintf(output_, "%s ", operation);
    printEscaped(output_, text);
    if (converted)
    {
        std::fputs(" -> ", output_);
        printEscaped(output_, *converted);
    }
    std::fputc('\n', output_);
}

std::optional<std::string> EventPrinter::value(const char*, const char*)
{
    return std::nullopt;
}

} // namespace tool
