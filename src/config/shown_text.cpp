#include "shown_text.h"

#include <cstddef>
#include <cstdint>

#include "utf8.h"

namespace vorn::parsers::toml::config
{
namespace
{

constexpr char digits[] = "0123456789ABCDEF";

// A character, or a byte that is part of none.
struct Character
{
    std::uint32_t code;
    std::size_t size;
    bool isValid;
};

Character characterAt(std::string_view text)
{
    const std::size_t size = characterLength(text, 0);
    return size > 1 ? Character{readCharacter(text, 0).code, size, true}
                    : Character{static_cast<unsigned char>(text[0]), 1, isAscii(text[0])};
}

// Control characters, and those that turn the direction of what follows or have no width.
bool isInvisible(std::uint32_t code)
{
    return code < 0x20 || (code >= 0x7f && code < 0xa0) || code == 0xad || code == 0xfeff ||
           (code >= 0x200b && code <= 0x200f) || (code >= 0x2028 && code <= 0x202e) ||
           (code >= 0x2060 && code <= 0x206f);
}

void addHex(std::string& text, std::uint32_t code, unsigned count)
{
    while (count-- > 0)
    {
        text += digits[code >> (4 * count) & 0xfU];
    }
}

std::string escape(std::uint32_t code)
{
    std::string text = code == '\t' ? "\\t" : code == '\n' ? "\\n" : code == '\r' ? "\\r" : "";
    if (text.empty())
    {
        text = "\\u";
        addHex(text, code, 4);
    }
    return text;
}

// Adds the first character of a text.
void addPrintable(std::string& result, std::string_view text)
{
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
        const std::size_t size = characterAt(text).size;
        addPrintable(result, text);
        text.remove_prefix(size);
    }
    return result;
}

std::string printable(std::string_view text)
{
    std::string result;
    while (!text.empty())
    {
        const std::size_t size = characterAt(text).size;
        addPrintable(result, text);
        text.remove_prefix(size);
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
