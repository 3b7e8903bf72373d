#include "escaped.h"

namespace test
{

std::string escaped(const std::string& text)
{
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string result;
    for (const char c : text)
    {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\n')
        {
            result += "\\n";
        }
        else if (byte < 0x20 || byte >= 0x7F)
        {
            result += {'\\', 'x', digits[byte >> 4], digits[byte & 0xF]};
        }
        else
        {
            result += c == '\\' ? "\\\\" : std::string(1, c);
        }
    }
    return result;
}

} // namespace test
