#include "readable_table.h"

#include "value_text.h"

namespace vorn::parsers::toml::config
{
namespace
{

bool isReadableEntry(const Entry& entry, const void* object, const void* before)
{
    const Type& type = *entry.type;
    const void* const member = memberOf(object, entry);
    const void* const memberBefore = memberOf(before, entry);
    const bool wasBlank = isBlank(type, memberBefore);
    if (!isRequired(entry) && (object == before || (wasBlank && isBlank(type, member))))
    {
        return true; // it may be left out
    }
    // A value takes the place of another one, a list too; in maps and structs what is there stays.
    const Kind kind = contentOf(type).kind;
    const bool isKept = kind == Kind::map || (kind == Kind::table && type.kind != Kind::table);
    if (isKept && object != before && !wasBlank)
    {
        return false;
    }
    if (entry.table == nullptr)
    {
        Text text;
        return addMember(text, entry, member, Syntax::toml);
    }
    return (kind != Kind::list || !isBlank(type, member)) &&
           isReadable(entry, member, memberBefore);
}

bool isReadableStruct(const Table& table, const void* object, const void* before)
{
    for (const Entry& entry : table.entries)
    {
        if (!isReadableEntry(entry, object, before))
        {
            return false;
        }
    }
    // NOLINTNEXTLINE(readability-use-anyofallof): that would be more code.
    for (const TableCheck& check : table.checks)
    {
        if (!isAccepted(check.check, object))
        {
            return false;
        }
    }
    return true;
}

} // namespace

bool isReadable(const Entry& entry, const void* member, const void* before)
{
    const Kind kind = entry.type->kind;
    bool are = isAccepted(entry.check, member);
    const auto look = [&](const void* object, const std::string* name)
    {
        const auto compare = [&](const void* with, const std::string*)
        { are = are && isReadableStruct(*entry.table, object, with); };
        Text key;
        are = are && (name == nullptr || addKey(key, *name, Syntax::toml));
        if (kind == Kind::table || (member == before && kind != Kind::list))
        {
            compare(kind == Kind::table ? before : object, nullptr);
            return;
        }
        visitDefault(*entry.table, compare);
    };
    visitElements(*entry.type, member, look);
    return are;
}

} // namespace vorn::parsers::toml::config
