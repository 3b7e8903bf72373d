#include "escapes.h"

#include <cstdio>

#include "characters.h"

namespace tool::fixing
{
namespace
{

unsigned valueOf(char digit)
{
    if (isDigit(digit))
    {
        return static_cast<unsigned>(digit - '0');
    }
    return static_cast<unsigned>((digit >= 'a' ? digit - 'a' : digit - 'A') + 10);
}

bool isCharacter(char32_t code)
{
    return code < 0xD800 || (code > 0xDFFF && code <= 0x10FFFF);
}

// The escape with so many hexadecimal digits.
Escape numberedAt(std::string_view text, std::size_t at, std::size_t count)
{
    const std::string_view digits = text.substr(at + 2, count);
    char32_t code = 0;
    for (const char digit : digits)
    {
        if (!isHexDigit(digit))
        {
            return {0, 0};
        }
        code = code * 16 + valueOf(digit);
    }
    const bool isWhole = digits.size() == count && isCharacter(code);
    return isWhole ? Escape{count + 2, code} : Escape{0, 0};
}

} // namespace

Escape escapeAt(std::string_view text, std::size_t at)
{
    constexpr std::string_view letters = "btnfr\"\\";
    constexpr std::string_view meant = "\b\t\n\f\r\"\\";
    const char letter = at + 1 < text.size() ? text[at + 1] : '\0';
    if (letter == 'u' || letter == 'U')
    {
        return numberedAt(text, at, letter == 'u' ? 4 : 8);
    }
    const std::size_t found = letters.find(letter);
    return found == std::string_view::npos ? Escape{0, 0}
                                           : Escape{2, static_cast<char32_t>(meant[found])};
}

void appendCharacter(std::string& text, char32_t code)
{
    const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
    const auto continuation = [&](unsigned shift) { append(0x80U | ((code >> shift) & 0x3FU)); };
    if (code < 0x80)
    {
        append(code);
    }
    else if (code < 0x800)
    {
        append(0xC0U | (code >> 6U));
        continuation(0);
    }
    else if (code < 0x10000)
    {
        append(0xE0U | (code >> 12U));
        continuation(6);
        continuation(0);
    }
    else
    {
        append(0xF0U | (code >> 18U));
        continuation(12);
        continuation(6);
        continuation(0);
    }
}

void appendEscaped(std::string& text, char32_t code)
{
    char escape[16] = {};
    std::snprintf(escape, sizeof(escape), "\\U%08X", static_cast<unsigned>(code));
    text += escape;
}

} // namespace tool::fixing
