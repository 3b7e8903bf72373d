#include "shown_text.h"

#include <cstddef>
#include <cstdint>

namespace vorn::parsers::toml::config
{
namespace
{

constexpr char digits[] = "0123456789ABCDEF";

// A character, or a byte that is part of none.
struct Character
{
    char32_t code;
    std::size_t size;
    bool isValid;
};

std::size_t sizeBy(unsigned char lead)
{
    return lead < 0x80   ? 1
           : lead < 0xc2 ? 0
           : lead < 0xe0 ? 2
           : lead < 0xf0 ? 3
           : lead < 0xf5 ? 4
                         : 0;
}

Character characterAt(std::string_view text)
{
    const auto lead = static_cast<unsigned char>(text[0]);
    const std::size_t size = sizeBy(lead);
    const Character byte{lead, 1, lead < 0x80};
    if (size < 2 || size > text.size())
    {
        return byte;
    }
    char32_t code = lead & (0x7fU >> size);
    for (std::size_t i = 1; i < size; ++i)
    {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xc0U) != 0x80)
        {
            return byte;
        }
        code = code << 6U | (next & 0x3fU);
    }
    const bool isTooLong = (size == 3 && code < 0x800) || (size == 4 && code < 0x10000);
    const bool isNone = code > 0x10ffff || (code >= 0xd800 && code <= 0xdfff);
    return isTooLong || isNone ? byte : Character{code, size, true};
}

// Control characters, and those that turn the direction of what follows or have no width.
bool isInvisible(char32_t code)
{
    return code < 0x20 || (code >= 0x7f && code < 0xa0) || code == 0xad || code == 0xfeff ||
           (code >= 0x200b && code <= 0x200f) || (code >= 0x2028 && code <= 0x202e) ||
           (code >= 0x2060 && code <= 0x206f);
}

void addHex(std::string& text, char32_t code, unsigned count)
{
    while (count-- > 0)
    {
        text += digits[code >> (4 * count) & 0xfU];
    }
}

std::string escape(char32_t code)
{
    std::string text = code == '\t' ? "\\t" : code == '\n' ? "\\n" : code == '\r' ? "\\r" : "";
    if (text.empty())
    {
        text = "\\u";
        addHex(text, code, 4);
    }
    return text;
}

} // namespace

std::string shown(std::string_view text)
{
    constexpr std::size_t max = 60;
    std::string result;
    while (!text.empty())
    {
        if (result.size() >= max)
        {
            return result + "...";
        }
        const Character character = characterAt(text);
        if (!character.isValid)
        {
            result += "\\x";
            addHex(result, character.code, 2);
        }
        else if (isInvisible(character.code))
        {
            result += escape(character.code);
        }
        else
        {
            result += text.substr(0, character.size);
        }
        text.remove_prefix(character.size);
    }
    return result;
}

std::string quoted(std::string_view value)
{
    std::string result = "\"";
    while (!value.empty())
    {
        const Character character = characterAt(value);
        if (!character.isValid)
        {
            result += "\\uFFFD";
        }
        else if (isInvisible(character.code))
        {
            result += escape(character.code);
        }
        else
        {
            result += value[0] == '"' || value[0] == '\\' ? "\\" : "";
            result += value.substr(0, character.size);
        }
        value.remove_prefix(character.size);
    }
    return result + '"';
}

} // namespace vorn::parsers::toml::config
