#include "members.h"

#include <cstddef>

namespace vorn::parsers::toml::config
{
namespace
{

// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): it is final.
class NamedElements final : public MapVisitor
{
public:
    explicit NamedElements(const ObjectVisitor& visitor) : visitor_(visitor) {}
    void visit(const std::string& key, const void* value) override { visitor_(value, &key); }

private:
    const ObjectVisitor& visitor_;
};

} // namespace

void visitElements(const Type& type, const void* object, const ObjectVisitor& visitor)
{
    NamedElements named(visitor);
    switch (type.kind)
    {
    case Kind::list:
        for (std::size_t i = 0; i < type.count(object); ++i)
        {
            visitor(type.at(object, i), nullptr);
        }
        break;
    case Kind::map:
        type.visitAll(object, named);
        break;
    case Kind::optional:
        object = type.find(object);
        if (object == nullptr)
        {
            break;
        }
        [[fallthrough]];
    default:
        visitor(object, nullptr);
    }
}

void visitDefault(const Table& table, const ObjectVisitor& visitor)
{
    table.withDefault([&visitor](const void* object) { visitor(object, nullptr); });
}

bool isBlank(const Type& type, const void* object)
{
    bool isBlank = true;
    visitElements(type, object, [&](const void*, const std::string*) { isBlank = false; });
    return isBlank;
}

const Type& contentOf(const Type& type)
{
    const Type* content = &type;
    while (content->kind == Kind::optional)
    {
        content = content->element;
    }
    return *content;
}

const Type& leafOf(const Type& type)
{
    const Type* leaf = &type;
    while (leaf->element != nullptr)
    {
        leaf = leaf->element;
    }
    return *leaf;
}

std::uint32_t nextChild(const Table& table, std::uint32_t node, std::uint32_t child)
{
    while (++child < table.nodes.size())
    {
        if (table.nodes[child].parent == node)
        {
            return child;
        }
    }
    return none;
}

bool isTable(const Table& table, std::uint32_t node)
{
    const Entry* const entry = table.entryOf(node);
    return entry == nullptr || entry->table != nullptr;
}

// NOLINTNEXTLINE(misc-no-recursion): it ends where the schema does.
bool isRequired(const Entry& entry)
{
    if (entry.isRequired || entry.type->kind != Kind::table)
    {
        return entry.isRequired;
    }
    // NOLINTNEXTLINE(readability-use-anyofallof): that would be more code.
    for (const Entry& inner : entry.table->entries)
    {
        if (isRequired(inner))
        {
            return true;
        }
    }
    return false;
}

} // namespace vorn::parsers::toml::config
