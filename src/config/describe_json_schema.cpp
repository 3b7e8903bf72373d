#include <algorithm>
#include <cmath>

#include "description.h"
#include "expectation.h"
#include "value_text.h"

namespace vorn::parsers::toml::config
{
namespace
{

// Writes objects of JSON, each member on a line of its own.
class Json
{
public:
    explicit Json(Text& out) : out_(out) {}

    // What is written next is the value of the member.
    Text& member(std::string_view name)
    {
        out_ << (isFirst_ ? "" : ",");
        addLine();
        addJson(out_, name);
        return out_ << ": ";
    }

    void beginObject()
    {
        out_ << "{";
        ++depth_;
        isFirst_ = true;
    }

    void endObject()
    {
        --depth_;
        if (!isFirst_)
        {
            addLine();
        }
        isFirst_ = false;
        out_ << "}";
    }

private:
    void addLine()
    {
        out_ << "\n";
        out_.text.append(2 * depth_, ' ');
        isFirst_ = false;
    }

    Text& out_;
    std::size_t depth_ = 0;
    bool isFirst_ = true;
};

const char* nameOf(Kind kind)
{
    switch (kind)
    {
    case Kind::boolean:
        return "\"boolean\"";
    case Kind::integer:
        return "\"integer\"";
    case Kind::floating:
    case Kind::duration:
        return "\"number\"";
    case Kind::list:
        return "\"array\"";
    case Kind::map:
    case Kind::table:
        return "\"object\"";
    default:
        return "\"string\"";
    }
}

// NOLINTBEGIN(misc-no-recursion): it ends where the schema does.

// Whether a document must have a node: a required key is there or below.
bool isRequiredNode(const Table& table, std::uint32_t node)
{
    if (const Entry* const entry = table.entryOf(node); entry != nullptr)
    {
        return isRequired(*entry);
    }
    // NOLINTNEXTLINE(readability-use-anyofallof): that would be more code.
    for (const std::uint32_t child : table.nodes[node].children)
    {
        if (isRequiredNode(table, child))
        {
            return true;
        }
    }
    return false;
}

class JsonSchema
{
public:
    explicit JsonSchema(Text& out) : json_(out) {}

    void describe(const Table& table, const void* object)
    {
        json_.beginObject();
        json_.member("$schema") << "\"http://json-schema.org/draft-07/schema#\"";
        addTable(table, 0, object, Unknown::problem);
        json_.endObject();
    }

private:
    // `outer` is what becomes of unknown keys if the table does not say it.
    void addTable(const Table& table, std::uint32_t node, const void* object, Unknown outer)
    {
        const Unknown unknown = table.unknown.value_or(outer);
        json_.member("type") << nameOf(Kind::table);
        json_.member("properties");
        json_.beginObject();
        for (std::uint32_t child = node; (child = nextChild(table, node, child)) != none;)
        {
            json_.member(table.nodes[child].name);
            json_.beginObject();
            if (const Entry* const entry = table.entryOf(child); entry != nullptr)
            {
                addEntry(*entry, memberOf(object, *entry), unknown);
            }
            else
            {
                addTable(table, child, object, unknown);
            }
            json_.endObject();
        }
        json_.endObject();
        addRequired(table, node);
        json_.member("additionalProperties") << (unknown == Unknown::problem ? "false" : "true");
    }

    void addRequired(const Table& table, std::uint32_t node)
    {
        Text names;
        for (std::uint32_t child = node; (child = nextChild(table, node, child)) != none;)
        {
            if (isRequiredNode(table, child))
            {
                names << (names.text.empty() ? "" : ", ");
                addJson(names, table.nodes[child].name);
            }
        }
        addList("required", names);
    }

    void addList(const char* name, const Text& elements)
    {
        if (!elements.text.empty())
        {
            json_.member(name) << "[" << elements.text << "]";
        }
    }

    void addEntry(const Entry& entry, const void* member, Unknown unknown)
    {
        if (!entry.description.empty())
        {
            addJson(json_.member("description"), entry.description);
        }
        addType(*entry.type, entry, member, unknown);
        if (Text value; !entry.isRequired && addMember(value, entry, member, Syntax::json))
        {
            json_.member("default") << value.text;
        }
    }

    // The object is null if there is none, as in a list.
    void addType(const Type& type, const Entry& entry, const void* object, Unknown unknown)
    {
        switch (type.kind)
        {
        case Kind::optional:
            addType(*type.element, entry, object == nullptr ? nullptr : type.find(object), unknown);
            return;
        case Kind::table:
            if (object != nullptr)
            {
                addTable(*entry.table, 0, object, unknown);
                return;
            }
            visitDefault(*entry.table, [&](const void* defaults, const std::string*)
                         { addTable(*entry.table, 0, defaults, unknown); });
            return;
        default:
            break;
        }
        json_.member("type") << nameOf(type.kind);
        if (type.element == nullptr)
        {
            addLimits(type, entry);
            addChoices(entry);
            return;
        }
        json_.member(type.kind == Kind::list ? "items" : "additionalProperties");
        json_.beginObject();
        addType(*type.element, entry, nullptr, unknown);
        json_.endObject();
        if (type.fixedSize != 0)
        {
            const auto size = static_cast<std::int64_t>(type.fixedSize);
            json_.member("minItems") << size;
            json_.member("maxItems") << size;
        }
    }

    void addLimits(const Type& type, const Entry& entry)
    {
        Limit min{true, type.min, 0};
        Limit max{true, type.max, 0};
        if (entry.range)
        {
            min = entry.range->first;
            max = entry.range->second;
        }
        else if (type.kind != Kind::integer)
        {
            return;
        }
        if (type.kind == Kind::integer)
        {
            min.integer = std::max(min.integer, type.min);
            max.integer = std::min(max.integer, type.max);
        }
        addLimit("minimum", min);
        addLimit("maximum", max);
    }

    void addLimit(const char* name, const Limit& limit)
    {
        if (std::isfinite(limit.floating))
        {
            json_.member(name) << limitText(limit);
        }
    }

    void addChoices(const Entry& entry)
    {
        Text names;
        for (const Choice& choice : entry.choices)
        {
            names << (names.text.empty() ? "" : ", ");
            addJson(names, choice.name());
        }
        addList("enum", names);
    }

    Json json_;
};

// NOLINTEND(misc-no-recursion)

} // namespace

void describeInJsonSchema(Text& out, const Table& table, const void* object)
{
    JsonSchema(out).describe(table, object);
    out << "\n";
}

} // namespace vorn::parsers::toml::config
