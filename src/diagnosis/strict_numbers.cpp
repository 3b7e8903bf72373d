#include "strict_numbers.h"

#include <cstdint>
#include <limits>

#include "strict_mistakes.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

unsigned radixOf(std::string_view text)
{
    const char mark = text.size() > 2 && text[0] == '0' ? text[1] : '\0';
    return mark == 'x' ? 16 : mark == 'o' ? 8 : mark == 'b' ? 2 : 10;
}

unsigned digitValue(char c)
{
    const auto code = static_cast<unsigned char>(c);
    return c <= '9' ? code - unsigned{'0'} : (code & 0xFU) + 9;
}

// Whether digits with underscores between them are more than a number.
bool isMore(std::string_view digits, unsigned radix, std::uint64_t than)
{
    std::uint64_t value = 0;
    for (const char c : digits)
    {
        if (c == '_')
        {
            continue;
        }
        if (__builtin_mul_overflow(value, radix, &value) ||
            __builtin_add_overflow(value, digitValue(c), &value) || value > than)
        {
            return true;
        }
    }
    return false;
}

} // namespace

void checkInteger(std::string_view text, StrictMistakes& mistakes)
{
    constexpr auto max = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    const unsigned radix = radixOf(text);
    const bool isNegative = text[0] == '-';
    const std::size_t prefix = radix != 10 ? 2 : isNegative || text[0] == '+' ? 1 : 0;
    if (isMore(text.substr(prefix), radix, isNegative ? max + 1 : max))
    {
        mistakes.add(integerOutOfRange, text);
    }
}

} // namespace vorn::parsers::toml::diagnosis
