// What a scalar becomes in a struct, by the type of the member.
#pragma once

#include <vorn/parsers/toml.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

#include "path_visitor.h"
#include "value.h"

namespace example
{

// Dates and times stay as they are written: they may have any zone or none.
struct DateTime
{
    std::string text;
};

inline void expect(Scalar::Kind kind, const Scalar& scalar, const char* name)
{
    if (scalar.kind != kind)
    {
        throw BadValue(std::string("should be ") + name);
    }
}

inline void assign(std::string& member, const Scalar& scalar)
{
    expect(Scalar::Kind::string, scalar, "a string");
    member = scalar.text;
}

inline void assign(DateTime& member, const Scalar& scalar)
{
    expect(Scalar::Kind::dateTime, scalar, "a date or a time");
    member.text = scalar.text;
}

inline void assign(bool& member, const Scalar& scalar)
{
    expect(Scalar::Kind::boolean, scalar, "true or false");
    member = vorn::parsers::toml::parseBoolean(scalar.text);
}

inline void assign(double& member, const Scalar& scalar)
{
    expect(Scalar::Kind::floatingPoint, scalar, "a float");
    member = floatValue(scalar.text);
}

// What parseInteger() cannot represent is out of range here, too: it returns the nearest
// value of 64 bits, and throws for a binary integer of more than 32 bits.
template <typename Integer>
std::enable_if_t<std::is_integral_v<Integer>> assign(Integer& member, const Scalar& scalar)
{
    using Limits = std::numeric_limits<Integer>;
    static_assert(sizeof(Integer) <= 4, "values of 64 bits would not be checked");
    expect(Scalar::Kind::integer, scalar, "an integer");
    long long value = std::numeric_limits<long long>::max();
    try
    {
        value = vorn::parsers::toml::parseInteger(scalar.text);
    }
    catch (const std::overflow_error&)
    {
    }
    if (value < Limits::min() || value > Limits::max())
    {
        throw BadValue("should be from " + std::to_string(Limits::min()) + " to " +
                       std::to_string(Limits::max()));
    }
    member = static_cast<Integer>(value);
}

// One more element.
template <typename Element>
void assign(std::vector<Element>& member, const Scalar& scalar)
{
    assign(member.emplace_back(), scalar);
}

} // namespace example
