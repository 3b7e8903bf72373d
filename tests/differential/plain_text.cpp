#include "plain_text.h"

#include <algorithm>

namespace test
{
namespace
{

bool isContinuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// The number of bytes of the character at the text's beginning; 0 if there is none.
std::size_t characterLength(std::string_view text)
{
    const auto lead = static_cast<unsigned char>(text[0]);
    if (lead < 0x80)
    {
        return 1;
    }
    const std::size_t length = lead < 0xE0 ? 2 : 3;
    if (lead < 0xC2 || lead > 0xEF || text.size() < length ||
        !std::all_of(text.begin() + 1, text.begin() + length, isContinuation))
    {
        return 0;
    }
    const std::string_view start = text.substr(0, 2);
    const bool tooLong = lead == 0xE0 && start < "\xE0\xA0";
    const bool surrogate = lead == 0xED && start >= "\xED\xA0";
    return tooLong || surrogate ? 0 : length;
}

} // namespace

bool isPlainText(std::string_view text)
{
    while (!text.empty())
    {
        const std::size_t length = characterLength(text);
        if (length == 0)
        {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

} // namespace test
