#include "utf8.h"

namespace vorn::parsers::toml::config
{
namespace
{

unsigned byteAt(std::string_view text, std::size_t at)
{
    return static_cast<unsigned char>(text[at]);
}

// How many bytes after it the parser takes along with a byte.
std::size_t followers(unsigned first)
{
    return first < 0xC0   ? 0
           : first < 0xE0 ? 1
           : first < 0xF0 ? 2
           : first < 0xF8 ? 3
           : first < 0xFC ? 4
                          : 5;
}

} // namespace

std::size_t byteOrderMarkLength(std::string_view document)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return document.substr(0, mark.size()) == mark ? mark.size() : 0;
}

std::size_t characterLength(std::string_view document, std::size_t at)
{
    const unsigned first = byteAt(document, at);
    const std::size_t count = followers(first);
    if (count == 0 || first < 0xC2 || first > 0xF4 || document.size() - at <= count)
    {
        return 1;
    }
    for (std::size_t next = 1; next <= count; ++next)
    {
        if ((byteAt(document, at + next) & 0xC0) != 0x80)
        {
            return 1;
        }
    }
    // The second byte tells overlong forms, surrogates and what is too high.
    const unsigned second = byteAt(document, at + 1);
    const bool isOverlong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
    const bool isOther = (first == 0xED && second >= 0xA0) || (first == 0xF4 && second >= 0x90);
    return isOverlong || isOther ? 1 : count + 1;
}

ReadCharacter readCharacter(std::string_view document, std::size_t at)
{
    constexpr std::uint32_t endOfInput = 0xFFFFFFFF;
    const std::size_t count = followers(byteAt(document, at));
    if (document.size() - at <= count)
    {
        return {endOfInput, document.size() - at};
    }
    // It adds the bytes up, and takes the marks of well-formed ones off in the end.
    constexpr std::uint32_t marks[] = {0, 0x3080, 0xE2080, 0x3C82080, 0xFA082080, 0x82082080};
    std::uint32_t code = 0;
    for (std::size_t next = 0; next <= count; ++next)
    {
        code = (code << 6) + byteAt(document, at + next);
    }
    return {code - marks[count], count + 1};
}

} // namespace vorn::parsers::toml::config
