#include "characters.h"

#include <clocale>
#include <cstdint>
#include <cstdio>
#include <cwchar>
#include <memory>

#include "scan/utf8.h"

namespace vorn::parsers::toml::diagnosis
{

namespace
{

// The C library's widths of characters, whatever the locale of the user is.
class Widths
{
public:
    Widths() : locale_(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {}
    Widths(const Widths&) = delete;
    Widths& operator=(const Widths&) = delete;
    ~Widths()
    {
        if (locale_ != nullptr)
        {
            freelocale(locale_);
        }
    }

    // -1 for what is not printable.
    int of(char32_t code) const
    {
        if (locale_ == nullptr)
        {
            return 1; // Only where the C library lacks that locale.  GCOVR_EXCL_LINE
        }
        const locale_t before = uselocale(locale_);
        const int width = wcwidth(static_cast<wchar_t>(code));
        uselocale(before);
        return width;
    }

private:
    locale_t locale_;
};

// What turns the direction of writing around, or takes no room: a line would not look as it is.
bool isUnseen(char32_t code)
{
    return (code >= 0x200B && code <= 0x200F) || (code >= 0x202A && code <= 0x202E) ||
           (code >= 0x2060 && code <= 0x206F) || code == 0x2028 || code == 0x2029 ||
           code == 0xFEFF || code == 0x00AD || code == 0x061C ||
           (code >= 0xE0000 && code <= 0xE0FFF);
}

std::string escape(const char* format, unsigned value)
{
    char text[16] = {};
    std::snprintf(text, sizeof(text), format, value);
    return text;
}

} // namespace

Character characterAt(std::string_view text, std::size_t at)
{
    const auto first = static_cast<unsigned char>(text[at]);
    if (isAscii(text[at]))
    {
        return {first, 1, true};
    }
    const char* const begin = text.data() + at;
    const char* const stop = sequenceEnd(begin, text.data() + text.size(), Utf8Range::whole);
    if (stop == nullptr)
    {
        return {first, 1, false};
    }
    const auto length = static_cast<std::size_t>(stop - begin);
    char32_t code = first & (0xFFU >> (length + 1));
    for (const char* next = begin + 1; next != stop; ++next)
    {
        code = (code << 6U) | (static_cast<unsigned char>(*next) & 0x3FU);
    }
    return {code, length, true};
}

std::size_t findMalformed(std::string_view text, std::size_t from)
{
    while (from < text.size())
    {
        if (isAscii(text[from]))
        {
            ++from;
            continue;
        }
        const Character character = characterAt(text, from);
        if (!character.isWellFormed)
        {
            return from;
        }
        from += character.length;
    }
    return std::string_view::npos;
}

std::size_t countCharacters(std::string_view text)
{
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); at += characterAt(text, at).length)
    {
        ++count;
    }
    return count;
}

std::size_t characterBegin(std::string_view text, std::size_t at)
{
    for (std::size_t offset = 0; offset < 4 && offset <= at; ++offset)
    {
        const Character character = characterAt(text, at - offset);
        if (character.isWellFormed)
        {
            return character.length > offset ? at - offset : at;
        }
    }
    return at;
}

std::string codeName(char32_t code)
{
    return escape("U+%04X", static_cast<unsigned>(code));
}

ShownCharacter shown(std::string_view text, const Character& character, std::size_t at)
{
    static const Widths widths;
    const auto code = static_cast<unsigned>(character.code);
    if (code == '\t')
    {
        return {"    ", 4};
    }
    if (!character.isWellFormed || code < 0x20 || code == 0x7F)
    {
        return {escape("\\x%02X", code), 4};
    }
    if (code < 0x7F)
    {
        return {std::string(1, static_cast<char>(code)), 1};
    }
    const int width = widths.of(character.code);
    if (code < 0xA0 || width < 0 || isUnseen(character.code))
    {
        std::string escaped = escape(code > 0xFFFF ? "\\U%08X" : "\\u%04X", code);
        const auto columns = static_cast<unsigned>(escaped.size());
        return {std::move(escaped), columns};
    }
    return {std::string(text.substr(at, character.length)), static_cast<unsigned>(width)};
}

std::string printable(std::string_view text)
{
    std::string result;
    for (std::size_t at = 0; at < text.size();)
    {
        const Character character = characterAt(text, at);
        result += shown(text, character, at).text;
        at += character.length;
    }
    return result;
}

} // namespace vorn::parsers::toml::diagnosis
