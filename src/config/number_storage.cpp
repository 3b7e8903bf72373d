#include "number_storage.h"

#include <cmath>
#include <cstring>
#include <limits>

#include <vorn/parsers/toml_values.h>

namespace vorn::parsers::toml::config
{
namespace
{

// Half a unit beyond the last float: what is below it is rounded to that.
constexpr double floatEnd = 0x1.ffffffp127;

bool isFloat(const Type& type)
{
    return type.kind == Kind::floating && type.size == sizeof(float);
}

bool isBelow(const Number& number, const Limit& limit)
{
    return number.isInteger && limit.isInteger ? number.integer < limit.integer
                                               : !(number.floating >= limit.floating);
}

bool isAbove(const Number& number, const Limit& limit)
{
    return number.isInteger && limit.isInteger ? number.integer > limit.integer
                                               : !(number.floating <= limit.floating);
}

// A duration in what its member counts; nothing if it does not fit, or is no whole number.
std::optional<std::int64_t> countOf(std::int64_t integer, const Entry& entry)
{
    std::int64_t product = 0;
    if (__builtin_mul_overflow(integer, entry.unitNumerator, &product) ||
        product % entry.unitDenominator != 0)
    {
        return std::nullopt;
    }
    return product / entry.unitDenominator;
}

double countOf(double number, const Entry& entry)
{
    return number * static_cast<double>(entry.unitNumerator) /
           static_cast<double>(entry.unitDenominator);
}

// The integer next to a number, if the number is one but for the last bits of its fraction, which
// a text like 0.1 and each conversion of its unit may get wrong.
std::optional<std::int64_t> wholeOf(double number)
{
    const double whole = std::nearbyint(number);
    constexpr double tolerance = 4 * std::numeric_limits<double>::epsilon();
    if (std::abs(number - whole) > tolerance * std::abs(number))
    {
        return std::nullopt;
    }
    return static_cast<std::int64_t>(whole);
}

void storeFloat(double value, const Type& type, void* object)
{
    if (type.size == sizeof(float))
    {
        *static_cast<float*>(object) = static_cast<float>(value);
    }
    else
    {
        *static_cast<double*>(object) = value;
    }
}

// Where the doubles within a type of integers end: 2 to the power of 63 is beyond it.
bool isWithinInteger(double number, const Type& type)
{
    constexpr double end = 9223372036854775808.0;
    return number >= static_cast<double>(type.min) &&
           (type.max == std::numeric_limits<std::int64_t>::max()
                ? number < end
                : number <= static_cast<double>(type.max));
}

} // namespace

std::optional<Number> integerOf(std::string_view text)
{
    const std::optional<std::int64_t> value = integerValue(text);
    return value ? std::optional<Number>({true, *value, static_cast<double>(*value)})
                 : std::nullopt;
}

std::optional<Number> floatOf(std::string_view text)
{
    const std::optional<double> value = floatValue(text);
    return value ? std::optional<Number>({false, 0, *value}) : std::nullopt;
}

bool isWithin(const Number& number, const Type& type, const Entry& entry)
{
    if (!entry.range)
    {
        return true;
    }
    Number stored = number;
    if (isFloat(type) && std::abs(number.floating) < floatEnd)
    {
        // The limits are of the member: 0.7 as a float is not beyond 0.7F.
        stored = {false, 0, static_cast<double>(static_cast<float>(number.floating))};
    }
    return !(isBelow(stored, entry.range->first) || isAbove(stored, entry.range->second));
}

bool canStore(const Number& number, const Type& type, const Entry& entry)
{
    if (type.kind == Kind::integer)
    {
        return number.integer >= type.min && number.integer <= type.max;
    }
    if (type.isFloating)
    {
        const double count = std::abs(countOf(number.floating, entry));
        const bool fits = type.size == sizeof(float) ? count < floatEnd : std::isfinite(count);
        return std::isfinite(number.floating) ? fits : type.kind == Kind::floating;
    }
    // The double that is nearest to the last integers is beyond them.
    if (const auto count = number.isInteger ? countOf(number.integer, entry) : std::nullopt; count)
    {
        return *count >= type.min && *count <= type.max;
    }
    return isWithinInteger(countOf(number.floating, entry), type);
}

bool store(const Number& number, const Type& type, const Entry& entry, void* object)
{
    if (type.isFloating)
    {
        storeFloat(countOf(number.floating, entry), type, object);
        return true;
    }
    if (type.kind == Kind::integer)
    {
        storeInteger(number.integer, type, object);
        return true;
    }
    const std::optional<std::int64_t> count = number.isInteger
                                                  ? countOf(number.integer, entry)
                                                  : wholeOf(countOf(number.floating, entry));
    if (count)
    {
        storeInteger(*count, type, object);
    }
    return count.has_value();
}

void storeInteger(std::int64_t value, const Type& type, void* object)
{
    // The bytes of the value that the type has: two's complement is cut without a loss.
    switch (type.size)
    {
    case sizeof(std::int8_t):
    {
        const auto bits = static_cast<std::uint8_t>(value);
        std::memcpy(object, &bits, sizeof(bits));
        break;
    }
    case sizeof(std::int16_t):
    {
        const auto bits = static_cast<std::uint16_t>(value);
        std::memcpy(object, &bits, sizeof(bits));
        break;
    }
    case sizeof(std::int32_t):
    {
        const auto bits = static_cast<std::uint32_t>(value);
        std::memcpy(object, &bits, sizeof(bits));
        break;
    }
    default:
        std::memcpy(object, &value, sizeof(value));
    }
}

} // namespace vorn::parsers::toml::config
