#include <vorn/parsers/toml_values.h>

#include <limits>

#include "digits.h"

namespace vorn::parsers::toml
{
namespace
{

unsigned radixOf(char mark)
{
    return mark == 'x' ? 16 : mark == 'o' ? 8 : mark == 'b' ? 2 : 10;
}

// The number that digits with single underscores between them make.  No value if it is larger
// than `max`, or anything else is there.
std::optional<std::uint64_t> numberOf(std::string_view digits, unsigned radix, std::uint64_t max)
{
    std::uint64_t value = 0;
    bool isAfterDigit = false;
    for (const char c : digits)
    {
        if (c == '_' && isAfterDigit)
        {
            isAfterDigit = false;
            continue;
        }
        const unsigned digit = config::digitValue(c);
        if (digit >= radix || __builtin_mul_overflow(value, radix, &value) ||
            __builtin_add_overflow(value, digit, &value) || value > max)
        {
            return std::nullopt;
        }
        isAfterDigit = true;
    }
    return isAfterDigit ? std::optional(value) : std::nullopt;
}

} // namespace

std::optional<std::int64_t> integerValue(std::string_view text) noexcept
{
    constexpr auto max = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    const char first = text.empty() ? '\0' : text[0];
    const unsigned radix = first == '0' && text.size() > 1 ? radixOf(text[1]) : 10;
    const bool isNegative = first == '-';
    const bool isSigned = isNegative || first == '+';
    const std::string_view digits = text.substr(radix != 10 ? 2 : isSigned ? 1 : 0);
    if (radix == 10 && digits.size() > 1 && digits[0] == '0')
    {
        return std::nullopt;
    }
    const auto number = numberOf(digits, radix, isNegative ? max + 1 : max);
    if (!number)
    {
        return std::nullopt;
    }
    return static_cast<std::int64_t>(isNegative ? 0 - *number : *number);
}

} // namespace vorn::parsers::toml
