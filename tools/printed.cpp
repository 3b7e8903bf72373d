#include "printed.h"

#include <algorithm>

namespace tool
{
namespace
{

void appendEscaped(std::string& line, unsigned char byte)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    switch (byte)
    {
    case '\n':
        line += "\\n";
        break;
    case '\r':
        line += "\\r";
        break;
    case '\t':
        line += "\\t";
        break;
    case '\\':
        line += "\\\\";
        break;
    default:
        if (byte >= 0x20 && byte <= 0x7e)
        {
            line += static_cast<char>(byte);
        }
        else
        {
            line += {'\\', 'x', digits[byte / 16], digits[byte % 16]};
        }
    }
}

} // namespace

std::string escaped(std::string_view text)
{
    std::string line;
    line.reserve(text.size());
    for (const char byte : text)
    {
        appendEscaped(line, static_cast<unsigned char>(byte));
    }
    return line;
}

void printEscaped(std::FILE* output, std::string_view text)
{
    // Block by block, since a text can be as large as its document.
    constexpr std::size_t block = 4096;
    for (; !text.empty(); text.remove_prefix(std::min(text.size(), block)))
    {
        const std::string line = escaped(text.substr(0, block));
        std::fwrite(line.data(), 1, line.size(), output);
    }
}

} // namespace tool
