#include "event_printer.h"

#include <string_view>

namespace tool
{
namespace
{

void printEscaped(std::FILE* output, unsigned char byte)
{
    switch (byte)
    {
    case '\n':
        std::fputs("\\n", output);
        break;
    case '\r':
        std::fputs("\\r", output);
        break;
    case '\t':
        std::fputs("\\t", output);
        break;
    case '\\':
        std::fputs("\\\\", output);
        break;
    default:
        if (byte >= 0x20 && byte <= 0x7e)
        {
            std::fputc(byte, output);
        }
        else
        {
            std::fprintf(output, "\\x%02X", byte);
        }
    }
}

void printEscaped(std::FILE* output, std::string_view text)
{
    for (const char byte : text)
    {
        printEscaped(output, static_cast<unsigned char>(byte));
    }
}

} // namespace

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
