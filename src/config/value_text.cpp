#include "value_text.h"

#include <cstddef>

#include <vorn/parsers/toml_values.h>

#include "expectation.h"
#include "key_path.h"
#include "members.h"
#include "shown_text.h"

namespace vorn::parsers::toml::config
{
namespace
{

bool addElements(Text& out, const Type& type, const Entry& entry, const void* object, Syntax syntax)
{
    bool isExact = true;
    const char* separator = "";
    const auto addElement = [&](const void* element, const std::string* name)
    {
        out << separator;
        separator = ", ";
        if (name != nullptr)
        {
            isExact = addKey(out, *name, syntax) && isExact;
            out << (syntax == Syntax::json ? ": " : " = ");
        }
        isExact = addValue(out, *type.element, entry, element, syntax) && isExact;
    };
    out << (type.kind == Kind::list ? "[" : "{");
    visitElements(type, object, addElement);
    out << (type.kind == Kind::list ? "]" : "}");
    return isExact && (*separator != '\0' || syntax == Syntax::json);
}

void addExampleNumber(Text& out, const Entry& entry)
{
    const bool needsMin =
        entry.range && (entry.range->first.floating > 0 || entry.range->second.floating < 0);
    out << (needsMin ? limitText(entry.range->first) : "0");
}

} // namespace

// NOLINTNEXTLINE(misc-no-recursion): it ends where the type does.
bool addValue(Text& out, const Type& type, const Entry& entry, const void* object, Syntax syntax)
{
    switch (type.kind)
    {
    case Kind::optional:
        object = type.find(object);
        return object != nullptr && addValue(out, *type.element, entry, object, syntax);
    case Kind::list:
    case Kind::map:
        return addElements(out, type, entry, object, syntax);
    case Kind::table:
        return false;
    default:
        return addScalar(out, type, entry, object, syntax);
    }
}

bool addMember(Text& out, const Entry& entry, const void* member, Syntax syntax)
{
    return addValue(out, *entry.type, entry, member, syntax) && isAccepted(entry.check, member);
}

bool addString(Text& out, const std::string& value, Syntax syntax)
{
    const std::string string = quoted(value);
    if (syntax == Syntax::json)
    {
        addJson(out, value);
    }
    else
    {
        addForDocument(out, string);
    }
    return stringValue(string) == value;
}

bool addKey(Text& out, const std::string& name, Syntax syntax)
{
    if (keyOf(name) != name)
    {
        return addString(out, name, syntax);
    }
    const char* const quote = syntax == Syntax::json ? "\"" : "";
    out << quote << name << quote;
    return true;
}

// NOLINTNEXTLINE(misc-no-recursion): it ends where the type does.
void addExample(Text& out, const Type& type, const Entry& entry)
{
    switch (type.kind)
    {
    case Kind::boolean:
        out << "false";
        break;
    case Kind::string:
        out << "\"\"";
        break;
    case Kind::choice:
        addString(out, entry.choices.empty() ? std::string() : entry.choices[0].name(),
                  Syntax::toml);
        break;
    case Kind::dateTime:
        out << "1970-01-01T00:00:00Z";
        break;
    case Kind::optional:
        addExample(out, *type.element, entry);
        break;
    case Kind::list:
        out << "[";
        for (std::size_t i = 0; i == 0 || i < type.fixedSize; ++i)
        {
            out << (i == 0 ? "" : ", ");
            addExample(out, *type.element, entry);
        }
        out << "]";
        break;
    case Kind::map:
        out << "{NAME = ";
        addExample(out, *type.element, entry);
        out << "}";
        break;
    default:
        addExampleNumber(out, entry);
    }
}

bool isAccepted(const Check& check, const void* object)
{
    return !check || check(object).empty();
}

} // namespace vorn::parsers::toml::config
