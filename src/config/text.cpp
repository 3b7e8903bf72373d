#include "text.h"

#include <cstddef>

#include "expectation.h"
#include "shown_text.h"

namespace vorn::parsers::toml::config
{
namespace
{

// The size of the character that a byte starts, in valid UTF-8.
std::size_t sizeBy(unsigned lead)
{
    return lead < 0x80 ? 1 : lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : 4;
}

void addHex(Text& out, std::uint32_t code, unsigned digits)
{
    out << (digits == 4 ? "\\u" : "\\U");
    while (digits-- > 0)
    {
        out.text += "0123456789ABCDEF"[code >> (4 * digits) & 0xfU];
    }
}

// JSON counts in 16 bits: a character beyond takes two.
void addJsonEscape(Text& out, std::uint32_t code)
{
    if (code >= 0x10000)
    {
        addHex(out, 0xd800 + ((code - 0x10000) >> 10U), 4);
        code = 0xdc00 + (code & 0x3ffU);
    }
    addHex(out, code, 4);
}

// Adds valid UTF-8 with escapes for what takes so many bytes, or more.
void addEscaped(Text& out, std::string_view text, std::size_t escapedSize)
{
    for (std::size_t at = 0; at < text.size();)
    {
        const auto lead = static_cast<unsigned char>(text[at]);
        const std::size_t size = sizeBy(lead);
        std::uint32_t code = lead & (0xffU >> size);
        for (std::size_t i = 1; i < size; ++i)
        {
            code = code << 6U | (static_cast<unsigned char>(text[at + i]) & 0x3fU);
        }
        if (size < escapedSize)
        {
            out << text.substr(at, size);
        }
        else if (escapedSize == 4)
        {
            addHex(out, code, 8);
        }
        else
        {
            addJsonEscape(out, code);
        }
        at += size;
    }
}

} // namespace

Text& Text::operator<<(const char* added)
{
    text += added;
    return *this;
}

Text& Text::operator<<(std::string_view added)
{
    text += added;
    return *this;
}

Text& Text::operator<<(std::int64_t number)
{
    return *this << limitText({true, number, 0});
}

void addForDocument(Text& out, std::string_view text)
{
    addEscaped(out, text, 4);
}

void addJson(Text& out, std::string_view text)
{
    // The escapes of TOML that this has are some of JSON's.
    addEscaped(out, quoted(text), 2);
}

void addComment(Text& out, std::string_view text)
{
    const std::string string = quoted(text);
    std::string plain;
    for (std::size_t at = 1; at + 1 < string.size(); ++at)
    {
        at += string[at] == '\\' && (string[at + 1] == '"' || string[at + 1] == '\\') ? 1 : 0;
        plain += string[at];
    }
    addEscaped(out, plain, 4);
}

void addCell(Text& out, std::string_view text)
{
    for (const char c : text)
    {
        out << (c == '|' ? "\\" : "");
        out.text += c == '\n' || c == '\r' ? ' ' : c;
    }
}

void addCode(Text& out, std::string_view text)
{
    // Within two backticks one is code.
    const bool hasBacktick = text.find('`') != std::string_view::npos;
    out << (hasBacktick ? "`` " : "`");
    addCell(out, text);
    out << (hasBacktick ? " ``" : "`");
}

} // namespace vorn::parsers::toml::config
