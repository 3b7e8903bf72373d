#include <vorn/parsers/toml_values.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numeric>
#include <system_error>

#include "digits.h"

namespace vorn::parsers::toml
{
namespace
{

constexpr std::size_t npos = std::string_view::npos;

// The end of digits with single underscores between them; npos if there are none.
std::size_t digitsEnd(std::string_view text, std::size_t at)
{
    for (;; ++at)
    {
        const std::size_t begin = at;
        while (at < text.size() && config::isDigit(text[at]))
        {
            ++at;
        }
        if (at == begin)
        {
            return npos;
        }
        if (at == text.size() || text[at] != '_')
        {
            return at;
        }
    }
}

bool isOneOf(std::string_view text, std::size_t at, std::string_view characters)
{
    return at < text.size() && characters.find(text[at]) != npos;
}

// Whether a text without its sign has the form of a float.
bool isFloat(std::string_view text)
{
    const std::size_t integerEnd = digitsEnd(text, 0);
    if (integerEnd >= text.size() || (text[0] == '0' && integerEnd != 1))
    {
        return false;
    }
    std::size_t at = integerEnd;
    if (text[at] == '.')
    {
        at = digitsEnd(text, at + 1);
    }
    if (isOneOf(text, at, "eE"))
    {
        at += isOneOf(text, at + 1, "+-") ? 2 : 1;
        at = digitsEnd(text, at);
    }
    return at == text.size();
}

// Of digits after the mark of an exponent, with a sign or without.  What is beyond all bounds is
// cut, far from what any number of digits could make up for.
std::int64_t exponentOf(std::string_view text)
{
    constexpr std::int64_t bound = std::numeric_limits<std::int64_t>::max() / 100;
    std::int64_t exponent = 0;
    for (const char c : text)
    {
        if (config::isDigit(c))
        {
            exponent = std::min(exponent * 10 + (c - '0'), bound);
        }
    }
    return !text.empty() && text[0] == '-' ? -exponent : exponent;
}

// Of a number that is not zero and is out of range: whether it is too large, not too small.
bool isTooLarge(std::string_view number)
{
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::size_t point = std::min(number.find('.'), mark);
    const std::size_t leading = number.find_first_not_of("0.");
    const auto power = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(leading);
    const std::string_view exponent = number.substr(std::min(mark + 1, number.size()));
    return power + exponentOf(exponent) > 0;
}

// The value of a float without sign and underscores.
std::optional<double> convert(std::string_view number)
{
    double value = 0;
    // (Unlike strtod(), it knows of no locale.)
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range)
    {
        return isTooLarge(number) ? std::nullopt : std::optional(0.0);
    }
    return value;
}

std::optional<double> magnitude(std::string_view text)
{
    if (text == "inf")
    {
        return std::numeric_limits<double>::infinity();
    }
    if (text == "nan")
    {
        return std::numeric_limits<double>::quiet_NaN();
    }
    if (!isFloat(text))
    {
        return std::nullopt;
    }
    if (text.find('_') == npos)
    {
        return convert(text);
    }
    std::string number(text);
    number.erase(std::remove(number.begin(), number.end(), '_'), number.end());
    return convert(number);
}

} // namespace

std::optional<double> floatValue(std::string_view text)
{
    const bool isNegative = !text.empty() && text[0] == '-';
    const bool isSigned = isNegative || (!text.empty() && text[0] == '+');
    const std::optional<double> value = magnitude(text.substr(isSigned ? 1 : 0));
    return value ? std::optional(std::copysign(*value, isNegative ? -1.0 : 1.0)) : std::nullopt;
}

} // namespace vorn::parsers::toml
