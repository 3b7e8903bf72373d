#include "strict_escapes.h"

#include <numeric>

#include "scan/escape.h"
#include "strict_mistakes.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

constexpr std::uint32_t lastCharacter = 0x10FFFF;

constexpr bool isSurrogate(std::uint32_t code)
{
    return code >= 0xD800 && code <= 0xDFFF;
}

std::uint32_t hexDigitValue(char c)
{
    const auto code = static_cast<unsigned char>(c);
    // Letters of both cases have their place in the lower four bits.
    return c <= '9' ? code - unsigned{'0'} : (code & 0xFU) + 9;
}

std::uint32_t shortEscapeCode(char c)
{
    switch (c)
    {
    case 'b':
        return '\b';
    case 'f':
        return '\f';
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    default:
        return static_cast<unsigned char>(c);
    }
}

} // namespace

Escape nextEscape(std::string_view text, std::size_t at)
{
    const std::size_t backslash = text.find('\\', at);
    if (backslash == std::string_view::npos)
    {
        return {};
    }
    const char kind = text[backslash + 1];
    const int digits = escapeDigits(static_cast<unsigned char>(kind));
    if (digits <= 0)
    {
        return {text.substr(backslash, 2), shortEscapeCode(kind)};
    }
    const auto count = static_cast<std::size_t>(digits);
    const std::string_view number = text.substr(backslash + 2, count);
    const auto code =
        std::accumulate(number.begin(), number.end(), std::uint32_t{0},
                        [](std::uint32_t value, char c) { return value << 4 | hexDigitValue(c); });
    return {text.substr(backslash, 2 + count), code};
}

void appendCharacter(std::string& text, std::uint32_t code)
{
    const auto append = [&text](std::uint32_t byte) { text += static_cast<char>(byte & 0xFF); };
    if (code < 0x80)
    {
        append(code);
        return;
    }
    if (code > lastCharacter)
    {
        // No character starts with this byte.
        append(0xFF);
        append(code >> 24);
        append(code >> 16);
        append(code >> 8);
        append(code);
        return;
    }
    if (code < 0x800)
    {
        append(0xC0 | code >> 6);
    }
    else
    {
        if (code < 0x10000)
        {
            append(0xE0 | code >> 12);
        }
        else
        {
            append(0xF0 | code >> 18);
            append(0x80 | (code >> 12 & 0x3F));
        }
        append(0x80 | (code >> 6 & 0x3F));
    }
    append(0x80 | (code & 0x3F));
}

void checkEscapes(std::string_view text, StrictMistakes& mistakes)
{
    std::size_t at = 0;
    for (Escape escape = nextEscape(text, at); !escape.text.empty(); escape = nextEscape(text, at))
    {
        if (escape.text == "\\'")
        {
            mistakes.add(escapedApostrophe, escape.text);
        }
        else if (isSurrogate(escape.code))
        {
            mistakes.add(escapedSurrogate, escape.text, escape.text);
        }
        else if (escape.code > lastCharacter)
        {
            mistakes.add(escapeTooHigh, escape.text, escape.text);
        }
        at = static_cast<std::size_t>(escape.text.data() - text.data()) + escape.text.size();
    }
}

} // namespace vorn::parsers::toml::diagnosis
