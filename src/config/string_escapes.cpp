#include "string_escapes.h"

#include <cstdint>

#include "digits.h"

namespace vorn::parsers::toml::config
{
namespace
{

constexpr std::uint32_t lastCharacter = 0x10FFFF;
constexpr std::uint32_t noCharacter = 0xFFFFFFFF;

// In UTF-8.
void appendCharacter(std::string& content, std::uint32_t code)
{
    const auto append = [&content](std::uint32_t byte) { content += static_cast<char>(byte); };
    const auto appendRest = [&append, code](unsigned shift)
    { append(0x80U | (code >> shift & 0x3FU)); };
    if (code < 0x80)
    {
        append(code);
        return;
    }
    if (code < 0x800)
    {
        append(0xC0U | code >> 6);
    }
    else
    {
        if (code < 0x10000)
        {
            append(0xE0U | code >> 12);
        }
        else
        {
            append(0xF0U | code >> 18);
            appendRest(12);
        }
        appendRest(6);
    }
    appendRest(0);
}

// The character whose number the digits are; noCharacter if there is none.
std::uint32_t numbered(std::string_view digits, std::size_t count)
{
    if (digits.size() < count)
    {
        return noCharacter;
    }
    std::uint32_t code = 0;
    for (const char c : digits.substr(0, count))
    {
        const unsigned digit = digitValue(c);
        if (digit == noDigit)
        {
            return noCharacter;
        }
        code = code << 4 | digit;
    }
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    return isSurrogate || code > lastCharacter ? noCharacter : code;
}

std::uint32_t named(char c)
{
    switch (c)
    {
    case '"':
    case '\'':
    case '\\':
        return static_cast<unsigned char>(c);
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
        return noCharacter;
    }
}

} // namespace

std::size_t lineBreakLength(std::string_view text, std::size_t at)
{
    const std::string_view rest = text.substr(at, 2);
    return rest == "\r\n" ? 2 : (!rest.empty() && rest[0] == '\n') ? 1 : 0;
}

std::size_t appendEscaped(std::string& content, std::string_view text, std::size_t at)
{
    const std::string_view escape = text.substr(at + 1);
    const char kind = escape.empty() ? '\0' : escape[0];
    const std::size_t digits = kind == 'u' ? 4 : kind == 'U' ? 8 : 0;
    const std::uint32_t code = digits != 0 ? numbered(escape.substr(1), digits) : named(kind);
    if (code == noCharacter)
    {
        return 0;
    }
    appendCharacter(content, code);
    return 2 + digits;
}

std::size_t joinedLength(std::string_view text, std::size_t at)
{
    std::size_t length = lineBreakLength(text, at + 1);
    if (length == 0)
    {
        return 0;
    }
    std::size_t end = at + 1;
    for (; length != 0; end += length)
    {
        const bool isBlank = end < text.size() && (text[end] == ' ' || text[end] == '\t');
        length = isBlank ? 1 : lineBreakLength(text, end);
    }
    return end - at;
}

} // namespace vorn::parsers::toml::config
