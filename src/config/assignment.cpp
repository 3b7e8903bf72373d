#include "assignment.h"

#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>
#include <utility>

#include <vorn/parsers/toml_values.h>

#include "expectation.h"
#include "number_storage.h"
#include "shown_text.h"
#include "suggestion.h"

namespace vorn::parsers::toml::config
{
namespace
{

Complaint wrongKind(const Scalar& scalar, const Type& type, const Entry& entry)
{
    return {"should be " + expectationOf(type, entry) + ", is " + nameOf(scalar.kind), {}, false};
}

Complaint outOfRange(const Scalar& scalar, const Type& type, const Entry& entry)
{
    const std::string limits = limitsOf(type, entry);
    const std::string text = shown(scalar.text);
    return {limits.empty() ? text + " is out of range" : text + " is not in " + limits, {}, false};
}

Complaint assignBoolean(const Scalar& scalar, const Type& type, const Entry& entry, void* object)
{
    if (scalar.kind != ScalarKind::boolean)
    {
        return wrongKind(scalar, type, entry);
    }
    const bool value = booleanValue(scalar.text);
    if (type.setLast != nullptr)
    {
        type.setLast(object, value);
    }
    else
    {
        *static_cast<bool*>(object) = value;
    }
    return {};
}

Complaint assignNumber(const Scalar& scalar, const Type& type, const Entry& entry, void* object)
{
    const bool isInteger = scalar.kind == ScalarKind::integer;
    if (!isInteger && (scalar.kind != ScalarKind::floating || type.kind == Kind::integer))
    {
        return wrongKind(scalar, type, entry);
    }
    const std::optional<Number> number = isInteger ? integerOf(scalar.text) : floatOf(scalar.text);
    if (!number || !isWithin(*number, type, entry) || !canStore(*number, type, entry))
    {
        return outOfRange(scalar, type, entry);
    }
    if (!store(*number, type, entry, object))
    {
        return {shown(scalar.text) + " " + entry.unitName + " cannot be held exactly", {}, false};
    }
    return {};
}

// A text that is none keeps what the diagnosis knows of it.
template <typename Value>
Complaint assignValue(std::optional<Value>&& value, const Scalar& scalar, void* object)
{
    if (!value)
    {
        return {shown(scalar.text) + " has no value", {}, true};
    }
    *static_cast<Value*>(object) = std::move(*value);
    return {};
}

Complaint assignChoice(const Scalar& scalar, const Type& type, const Entry& entry, void* object)
{
    const std::optional<std::string> name = stringValue(scalar.text);
    if (!name)
    {
        return {shown(scalar.text) + " has no value", {}, true};
    }
    std::vector<std::string_view> names;
    for (const Choice& choice : entry.choices)
    {
        if (choice.name() == *name)
        {
            storeInteger(choice.value(), type, object);
            return {};
        }
        names.emplace_back(choice.name());
    }
    return {shown(scalar.text) + " is not one of " + choicesOf(entry), didYouMean(*name, names),
            false};
}

bool isDateOrTime(ScalarKind kind)
{
    return kind == ScalarKind::dateTime || kind == ScalarKind::date || kind == ScalarKind::time;
}

} // namespace

Complaint assign(const Scalar& scalar, const Type& type, const Entry& entry, void* object)
{
    switch (type.kind)
    {
    case Kind::boolean:
        return assignBoolean(scalar, type, entry, object);
    case Kind::integer:
    case Kind::floating:
    case Kind::duration:
        return assignNumber(scalar, type, entry, object);
    case Kind::string:
        if (scalar.kind == ScalarKind::string)
        {
            return assignValue(stringValue(scalar.text), scalar, object);
        }
        break;
    case Kind::choice:
        if (scalar.kind == ScalarKind::string)
        {
            return assignChoice(scalar, type, entry, object);
        }
        break;
    case Kind::dateTime:
        if (isDateOrTime(scalar.kind))
        {
            return assignValue(dateTimeValue(scalar.text), scalar, object);
        }
        break;
    default:
        break;
    }
    return wrongKind(scalar, type, entry);
}

} // namespace vorn::parsers::toml::config
