#include "strict_tables.h"

#include "strict_keys.h"
#include "strict_mistakes.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

bool isTable(NameKind kind)
{
    return kind == NameKind::impliedTable || kind == NameKind::headedTable ||
           kind == NameKind::dottedTable;
}

// The rule for a table in the place of what is none.
const StrictRule& tableOver(NameKind kind)
{
    return kind == NameKind::inlineTable ? inlineTableExtended
           : kind == NameKind::array     ? arrayExtended
                                         : tableOverValue;
}

// The rule against a header of a kind after what is there; null if there is none.
const StrictRule* ruleAgainst(NameKind header, NameKind there)
{
    const bool isOfArray = header == NameKind::arrayOfTables;
    if (there == NameKind::arrayOfTables)
    {
        return isOfArray ? nullptr : &tableOverArray;
    }
    if (!isTable(there))
    {
        return &tableOver(there);
    }
    if (isOfArray)
    {
        return &arrayOverTable;
    }
    return there == NameKind::impliedTable ? nullptr : &duplicateTable;
}

} // namespace

void StrictTables::forget()
{
    names_.restore({});
    leaveTable();
}

void StrictTables::definePair(std::string_view key, NameKind value)
{
    if (!isTableKnown_)
    {
        return;
    }
    if (Name* const name = defineValue(table_, key))
    {
        name->kind = value;
    }
}

StrictTables::InlineTable StrictTables::beginInlineTable()
{
    const Names::State before = names_.state();
    return {before, names_.newTable()};
}

Name* StrictTables::definePair(const InlineTable& table, std::string_view key)
{
    return defineValue(table.members, key);
}

void StrictTables::define(std::string_view key, NameKind kind)
{
    TableId table = 0;
    KeyParts parts(key);
    for (; !parts.isLast(); parts.next())
    {
        table = enterByHeader(table, parts.part());
    }
    isTableKnown_ = true;
    const auto [name, isNew] = names_.at(table, parts.part());
    const StrictRule* const rule = isNew ? nullptr : ruleAgainst(kind, name->kind);
    if (rule != nullptr)
    {
        addMistake(*rule, parts.part(), *name);
    }
    if (!isNew && name->kind == NameKind::arrayOfTables)
    {
        name->members = names_.newTable();
        table_ = name->members;
        return;
    }
    if (!isNew && rule == nullptr)
    {
        // Its first mention was in the header of another table.
        name->kind = kind;
        name->part = parts.part().data();
        table_ = name->members;
        return;
    }
    table_ = defineAs(*name, parts.part(), kind);
}

// The table that a part of a header's key, which is not the last, stands for.
TableId StrictTables::enterByHeader(TableId table, std::string_view part)
{
    const auto [name, isNew] = names_.at(table, part);
    if (!isNew && (isTable(name->kind) || name->kind == NameKind::arrayOfTables))
    {
        return name->members;
    }
    if (!isNew)
    {
        addMistake(tableOver(name->kind), part, *name);
    }
    return defineAs(*name, part, NameKind::impliedTable);
}

// The table that a part of a pair's key, which is not the last, stands for.
TableId StrictTables::enterByDot(TableId table, std::string_view part)
{
    const auto [name, isNew] = names_.at(table, part);
    // Only dotted keys below the same header, or in the same inline table, get to it: those below
    // another header meet the table of this one on their way.
    if (!isNew && name->kind == NameKind::dottedTable)
    {
        return name->members;
    }
    if (!isNew && name->kind == NameKind::impliedTable)
    {
        name->kind = NameKind::dottedTable;
        name->part = part.data();
        return name->members;
    }
    if (!isNew)
    {
        addMistake(isTable(name->kind) || name->kind == NameKind::arrayOfTables
                       ? dottedKeyOverTable
                       : tableOver(name->kind),
                   part, *name);
    }
    return defineAs(*name, part, NameKind::dottedTable);
}

// Returns the name, unless it is defined already.
Name* StrictTables::defineValue(TableId table, std::string_view key)
{
    KeyParts parts(key);
    for (; !parts.isLast(); parts.next())
    {
        table = enterByDot(table, parts.part());
    }
    const auto [name, isNew] = names_.at(table, parts.part());
    if (isNew)
    {
        return name;
    }
    addMistake(isTable(name->kind) || name->kind == NameKind::arrayOfTables ? valueOverTable
                                                                            : duplicateKey,
               parts.part(), *name);
    return nullptr;
}

// Makes the name a table without names in it, which it returns.
TableId StrictTables::defineAs(Name& name, std::string_view part, NameKind kind)
{
    name.part = part.data();
    name.kind = kind;
    name.members = names_.newTable();
    return name.members;
}

void StrictTables::addMistake(const StrictRule& rule, std::string_view part, const Name& name)
{
    mistakes_.add(rule, part, shownKey(part), {}, name.text(documentEnd_));
}

} // namespace vorn::parsers::toml::diagnosis
