#include "expectation.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string_view>
#include <tuple>

#include "scalar.h"
#include "shown_text.h"

namespace vorn::parsers::toml::config
{
namespace
{

// NOLINTNEXTLINE(misc-no-recursion): types are not deeper than their author wrote them.
std::string nounOf(const Type& type, const Entry& entry, bool isPlural)
{
    const std::string_view end = isPlural ? "s" : "";
    std::string noun;
    switch (type.kind)
    {
    case Kind::boolean:
        noun = "boolean";
        break;
    case Kind::integer:
        noun = "integer";
        break;
    case Kind::floating:
        noun = "number";
        break;
    case Kind::duration:
        return std::string("number") + (isPlural ? "s of " : " of ") + entry.unitName;
    case Kind::string:
    case Kind::choice:
        noun = "string";
        break;
    case Kind::dateTime:
        return isPlural ? "dates or times" : "date or time";
    case Kind::optional:
        return nounOf(*type.element, entry, isPlural);
    case Kind::list:
        noun = isPlural ? "arrays of " : "array of ";
        return noun + nounOf(*type.element, entry, true);
    case Kind::map:
        noun = isPlural ? "tables of " : "table of ";
        return noun + nounOf(*type.element, entry, true);
    case Kind::table:
        noun = "table";
        break;
    }
    return noun.append(end);
}

// The shortest text that is read as the same number.
template <typename Number>
std::string shortest(Number number)
{
    std::array<char, 32> text{};
    const char* const end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return {text.data(), static_cast<std::size_t>(end - text.data())};
}

bool isFloat(double number)
{
    return std::abs(number) <= static_cast<double>(std::numeric_limits<float>::max()) &&
           static_cast<double>(static_cast<float>(number)) == number;
}

} // namespace

const char* nameOf(ScalarKind kind)
{
    switch (kind)
    {
    case ScalarKind::string:
        return "a string";
    case ScalarKind::integer:
        return "an integer";
    case ScalarKind::floating:
        return "a float";
    case ScalarKind::boolean:
        return "a boolean";
    case ScalarKind::dateTime:
        return "a date with a time";
    case ScalarKind::date:
        return "a date";
    case ScalarKind::time:
        break;
    }
    return "a time";
}

std::string expectationOf(const Type& type, const Entry& entry)
{
    const std::string noun = nounOf(type, entry, false);
    return (noun[0] == 'a' || noun[0] == 'i' ? "an " : "a ") + noun;
}

std::string limitText(const Limit& limit)
{
    if (limit.isInteger)
    {
        return std::to_string(limit.integer);
    }
    // One that was a float has the text of the float: 0.7, not the double next to it.
    return isFloat(limit.floating) ? shortest(static_cast<float>(limit.floating))
                                   : textOf(limit.floating);
}

std::string limitsOf(const Type& type, const Entry& entry)
{
    if (!entry.range && type.kind != Kind::integer)
    {
        return {};
    }
    const Limit min = entry.range ? entry.range->first : Limit{true, type.min, 0};
    const Limit max = entry.range ? entry.range->second : Limit{true, type.max, 0};
    return limitText(min) + " to " + limitText(max);
}

std::string choicesOf(const Entry& entry)
{
    std::string names;
    for (const Choice& choice : entry.choices)
    {
        names += (names.empty() ? "" : ", ") + quoted(choice.name());
    }
    return names;
}

std::string textOf(double number)
{
    if (std::isnan(number))
    {
        return "nan";
    }
    if (std::isinf(number))
    {
        return number < 0 ? "-inf" : "inf";
    }
    return shortest(number);
}

std::string nameOfUnit(long long numerator, long long denominator)
{
    using Unit = std::tuple<long long, long long, const char*>;
    static constexpr std::array<Unit, 7> units{{{1, 1000000000, "nanoseconds"},
                                                {1, 1000000, "microseconds"},
                                                {1, 1000, "milliseconds"},
                                                {1, 1, "seconds"},
                                                {60, 1, "minutes"},
                                                {3600, 1, "hours"},
                                                {86400, 1, "days"}}};
    const auto* const found =
        std::find_if(units.begin(), units.end(),
                     [numerator, denominator](const Unit& one)
                     { return std::get<0>(one) == numerator && std::get<1>(one) == denominator; });
    if (found != units.end())
    {
        return std::get<2>(*found);
    }
    const std::string count = std::to_string(numerator);
    return (denominator == 1 ? count : count + '/' + std::to_string(denominator)) + " seconds";
}

} // namespace vorn::parsers::toml::config
