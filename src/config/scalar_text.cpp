#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

#include <vorn/parsers/toml_values.h>

#include "assignment.h"
#include "value_text.h"

namespace vorn::parsers::toml::config
{
namespace
{

template <typename Number, typename Value = Number>
Value load(const void* object)
{
    Number number;
    std::memcpy(&number, object, sizeof(number));
    return number;
}

std::int64_t integerIn(const void* object, const Type& type)
{
    using Value = std::int64_t; // a common type of both would be unsigned
    switch (type.size)
    {
    case sizeof(std::int8_t):
        return type.isSigned ? load<std::int8_t, Value>(object) : load<std::uint8_t, Value>(object);
    case sizeof(std::int16_t):
        return type.isSigned ? load<std::int16_t, Value>(object)
                             : load<std::uint16_t, Value>(object);
    case sizeof(std::int32_t):
        return type.isSigned ? load<std::int32_t, Value>(object)
                             : load<std::uint32_t, Value>(object);
    default:
        return load<std::int64_t>(object);
    }
}

double floatIn(const void* object, const Type& type)
{
    return type.size == sizeof(float) ? static_cast<double>(load<float>(object))
                                      : load<double>(object);
}

// Whether the library makes the object of a text.
bool isReadAs(const std::string& text, ScalarKind kind, const Type& type, const Entry& entry,
              const void* object)
{
    alignas(double) std::array<char, sizeof(double)> copy{};
    if (!assign({kind, text, 0}, type, entry, copy.data()).message.empty())
    {
        return false;
    }
    // All not-a-numbers are the same.
    return std::memcmp(copy.data(), object, type.size) == 0 ||
           (type.isFloating && std::isnan(floatIn(object, type)));
}

// Adds a float, if the library makes the object of it.  The text is that of the double, or the
// shorter one of the float, to which the nearest double may be too large.
bool addFloat(Text& out, double number, bool isShort, const Type& type, const Entry& entry,
              const void* object)
{
    std::array<char, 32> digits{};
    char* const end = digits.data() + digits.size();
    const char* const last = isShort
                                 ? std::to_chars(digits.data(), end, static_cast<float>(number)).ptr
                                 : std::to_chars(digits.data(), end, number).ptr;
    std::string text(digits.data(), static_cast<std::size_t>(last - digits.data()));
    // A whole number needs a fraction to be a float, which may be larger than an integer.
    text += text.find_first_of(".en") == std::string::npos ? ".0" : "";
    const bool isExact = isReadAs(text, ScalarKind::floating, type, entry, object);
    if (isExact || !isShort)
    {
        out << text;
    }
    return isExact;
}

// The value of an integer or a duration in the document, unless it has a fraction.  What a member
// counts is the number of the document times the unit.
bool findInteger(std::int64_t& value, const Type& type, const Entry& entry, const void* object)
{
    if (type.isFloating ||
        __builtin_mul_overflow(integerIn(object, type), entry.unitDenominator, &value))
    {
        return false;
    }
    const bool isWhole = value % entry.unitNumerator == 0;
    value /= entry.unitNumerator;
    return isWhole;
}

// Whether an integer is larger than any that a document can have.
bool isBeyondDocuments(const Type& type, const void* object)
{
    return !type.isFloating && !type.isSigned && type.size == sizeof(std::int64_t) &&
           integerIn(object, type) < 0;
}

bool addNumber(Text& out, const Type& type, const Entry& entry, const void* object)
{
    if (isBeyondDocuments(type, object))
    {
        out << std::to_string(load<std::uint64_t>(object));
        return false;
    }
    if (std::int64_t value = 0; findInteger(value, type, entry, object))
    {
        Text text;
        text << value;
        out << text.text;
        return isReadAs(text.text, ScalarKind::integer, type, entry, object);
    }
    const double count =
        type.isFloating ? floatIn(object, type) : static_cast<double>(integerIn(object, type));
    const double number = count * static_cast<double>(entry.unitDenominator) /
                          static_cast<double>(entry.unitNumerator);
    return (type.size == sizeof(float) && addFloat(out, number, true, type, entry, object)) ||
           addFloat(out, number, false, type, entry, object);
}

void addDigits(Text& out, const char* before, int number, int digits)
{
    out << before;
    for (int least = 10; --digits > 0; least *= 10)
    {
        out << (number < least ? "0" : "");
    }
    out << static_cast<std::int64_t>(number);
}

void addDateTime(Text& out, const DateTime& value)
{
    if (value.date)
    {
        addDigits(out, "", value.date->year, 4);
        addDigits(out, "-", value.date->month, 2);
        addDigits(out, "-", value.date->day, 2);
    }
    if (value.time)
    {
        addDigits(out, value.date ? "T" : "", value.time->hour, 2);
        addDigits(out, ":", value.time->minute, 2);
        addDigits(out, ":", value.time->second, 2);
        if (value.time->nanosecond != 0)
        {
            addDigits(out, ".", value.time->nanosecond, 9);
            out.text.erase(out.text.find_last_not_of('0') + 1);
        }
    }
    if (value.offset)
    {
        const int minutes = std::abs(*value.offset);
        addDigits(out, *value.offset < 0 ? "-" : "+", minutes / 60, 2);
        addDigits(out, ":", minutes % 60, 2);
    }
}

} // namespace

bool addScalar(Text& out, const Type& type, const Entry& entry, const void* object, Syntax syntax)
{
    switch (type.kind)
    {
    case Kind::boolean:
        out << (*static_cast<const bool*>(object) ? "true" : "false");
        return true;
    case Kind::string:
        return addString(out, *static_cast<const std::string*>(object), syntax);
    case Kind::choice:
        for (const Choice& choice : entry.choices)
        {
            if (choice.value() == integerIn(object, type))
            {
                return addString(out, choice.name(), syntax);
            }
        }
        return false;
    case Kind::dateTime:
    {
        const char* const quote = syntax == Syntax::json ? "\"" : "";
        const auto& value = *static_cast<const DateTime*>(object);
        Text text;
        addDateTime(text, value);
        out << quote << text.text << quote;
        return dateTimeValue(text.text) == value;
    }
    default:
        // JSON has no infinities.
        return addNumber(out, type, entry, object) &&
               (syntax == Syntax::toml || !type.isFloating || std::isfinite(floatIn(object, type)));
    }
}

} // namespace vorn::parsers::toml::config
