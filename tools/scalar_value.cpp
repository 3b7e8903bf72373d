#include "scalar_value.h"

#include <vorn/parsers/toml.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>

namespace tool
{
namespace
{

namespace toml = vorn::parsers::toml;

const char* const nulByte = "holds a NUL byte";

void appendUtf8(std::string& value, std::uint32_t point)
{
    const auto append = [&value](std::uint32_t byte) { value += static_cast<char>(byte); };
    const auto appendTrail = [&](unsigned shift) { append(0x80 | ((point >> shift) & 0x3F)); };
    if (point < 0x80)
    {
        append(point);
        return;
    }
    if (point < 0x800)
    {
        append(0xC0 | (point >> 6));
    }
    else if (point < 0x10000)
    {
        append(0xE0 | (point >> 12));
        appendTrail(6);
    }
    else
    {
        append(0xF0 | (point >> 18));
        appendTrail(12);
        appendTrail(6);
    }
    appendTrail(0);
}

// The character whose number stands in `digits`, which follow \u or \U.
void appendCharacter(std::string& value, const std::string& digits)
{
    std::uint32_t point = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), point, 16);
    if (point > 0x10FFFF || (point >= 0xD800 && point <= 0xDFFF))
    {
        throw BadValue("U+" + digits + " is not a character");
    }
    appendUtf8(value, point);
}

// Appends what an escape stands for.  `at` is the place after the backslash.  Returns where
// the text goes on.
std::size_t appendEscape(std::string& value, const std::string& text, std::size_t at)
{
    switch (const char letter = text[at])
    {
    case 'b':
        value += '\b';
        break;
    case 'f':
        value += '\f';
        break;
    case 'n':
        value += '\n';
        break;
    case 'r':
        value += '\r';
        break;
    case 't':
        value += '\t';
        break;
    case 'u':
    case 'U':
    {
        const std::size_t count = letter == 'u' ? 4 : 8;
        appendCharacter(value, text.substr(at + 1, count));
        return std::min(at + 1 + count, text.size());
    }
    case '\r':
    case '\n':
        return std::min(text.find_first_not_of(" \t\r\n", at), text.size());
    case '\0':
        throw BadValue(nulByte);
    default: // a quote or a backslash
        value += letter;
    }
    return at + 1;
}

// Resolves all escapes from left to right in one pass, including backslashes at the ends of
// lines.  Only so is `\\` at the end of a line a backslash and a line break.
std::string withoutEscapes(const std::string& text)
{
    std::string value;
    for (std::size_t at = 0; at < text.size();)
    {
        const std::size_t backslash = std::min(text.find('\\', at), text.size());
        value.append(text, at, backslash - at);
        at = backslash < text.size() ? appendEscape(value, text, backslash + 1) : backslash;
    }
    return value;
}

void dropFirstLineBreak(std::string& value)
{
    const std::size_t carriageReturn = value.compare(0, 2, "\r\n") == 0 ? 1 : 0;
    if (value.compare(carriageReturn, 1, "\n") == 0)
    {
        value.erase(0, carriageReturn + 1);
    }
}

} // namespace

std::string stringValue(const std::string& text)
{
    const char quote = text[0];
    const bool multiline = text.compare(0, 3, std::string(3, quote)) == 0;
    const std::string delimiter(multiline ? 3 : 1, quote);
    std::string value = toml::unquote(text, delimiter);
    if (value.size() + 2 * delimiter.size() != text.size())
    {
        throw BadValue(nulByte);
    }
    if (multiline)
    {
        dropFirstLineBreak(value);
    }
    return quote == '"' ? withoutEscapes(value) : value;
}

double floatValue(const std::string& text)
{
    using Limits = std::numeric_limits<double>;
    if (text.find("nan") != std::string::npos)
    {
        return Limits::quiet_NaN();
    }
    if (text.find("inf") != std::string::npos)
    {
        return text.front() == '-' ? -Limits::infinity() : Limits::infinity();
    }
    return toml::parseFloat(text);
}

} // namespace tool
