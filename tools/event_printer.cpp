#include "event_printer.h"

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

} // namespace

void EventPrinter::print(const char* operation)
{
    std::fprintf(output_, "%s\n", operation);
}

void EventPrinter::print(const char* operation, const char* text)
{
    std::fprintf(output_, "%s ", operation);
    for (; *text != '\0'; ++text)
    {
        printEscaped(output_, static_cast<unsigned char>(*text));
    }
    std::fputc('\n', output_);
}

} // namespace tool
