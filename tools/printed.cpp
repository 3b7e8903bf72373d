#include "printed.h"

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

void printEscaped(std::FILE* output, std::string_view text)
{
    for (const char byte : text)
    {
        printEscaped(output, static_cast<unsigned char>(byte));
    }
}

} // namespace tool
