#include "table.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "entry_fault.h"
#include "key_path.h"

namespace vorn::parsers::toml::config
{
namespace
{

std::uint32_t addNode(Table& table, std::uint32_t parent, const std::string& name)
{
    if (const std::uint32_t old = table.child(parent, name); old != none)
    {
        return old;
    }
    const auto added = static_cast<std::uint32_t>(table.nodes.size());
    Node node;
    node.name = name;
    node.path = table.nodes[parent].path;
    addKey(node.path, name);
    node.parent = parent;
    table.nodes[parent].children.push_back(added);
    table.nodes[parent].marks.push_back(markOf(name));
    table.nodes.push_back(std::move(node));
    return added;
}

// NOLINTBEGIN(misc-no-recursion): schemas cannot be within themselves, each addition is checked.
bool isWithin(const Table& table, const Table& outer)
{
    return &table == &outer ||
           std::any_of(outer.entries.begin(), outer.entries.end(),
                       [&table](const Entry& entry)
                       { return entry.table != nullptr && isWithin(table, *entry.table); });
}
// NOLINTEND(misc-no-recursion)

// Whether a node can hold another entry: it has none, and no ancestor of it has one.
bool isFree(const Table& table, std::uint32_t node)
{
    if (!table.nodes[node].children.empty())
    {
        return false;
    }
    for (; node != none; node = table.nodes[node].parent)
    {
        if (table.nodes[node].entry != none)
        {
            return false;
        }
    }
    return true;
}

} // namespace

std::uint32_t Table::find(const std::string& path) const
{
    const auto names = namesIn(path);
    std::uint32_t node = names ? 0 : none;
    for (std::size_t i = 0; node != none && i < names->size(); ++i)
    {
        node = child(node, (*names)[i]);
    }
    return node;
}

std::shared_ptr<Table> makeTable(WithDefault withDefault)
{
    auto table = std::make_shared<Table>();
    table->withDefault = withDefault;
    return table;
}

void addEntry(Table& table, Entry&& entry)
{
    const auto names = namesIn(entry.path);
    if (!names)
    {
        table.mistakes.push_back("'" + entry.path + "' is not a key");
        return;
    }
    if (entry.table != nullptr && isWithin(table, *entry.table))
    {
        table.mistakes.push_back(entry.path + " is within itself");
        return;
    }
    const std::uint32_t node =
        std::accumulate(names->begin(), names->end(), std::uint32_t{0},
                        [&table](std::uint32_t parent, const std::string& name)
                        { return addNode(table, parent, name); });
    if (!isFree(table, node))
    {
        table.mistakes.push_back(entry.path + " has two meanings");
        return;
    }
    narrowRange(entry);
    if (std::string fault = faultOf(entry); !fault.empty())
    {
        table.mistakes.push_back(std::move(fault));
    }
    table.nodes[node].entry = static_cast<std::uint32_t>(table.entries.size());
    table.entries.push_back(std::move(entry));
}

void addCheck(Table& table, Check&& check, std::vector<std::string>&& paths)
{
    table.checks.push_back({std::move(check), std::move(paths)});
}

void setUnknownKeys(Table& table, Unknown unknown)
{
    table.unknown = unknown;
}

// NOLINTNEXTLINE(misc-no-recursion): schemas cannot be within themselves.
std::vector<std::string> mistakesOf(const Table& table)
{
    std::vector<std::string> mistakes = table.mistakes;
    for (const TableCheck& check : table.checks)
    {
        for (const std::string& path : check.paths)
        {
            if (table.find(path) == none)
            {
                mistakes.push_back(path + " has a check, but is not a key");
            }
        }
    }
    for (const Entry& entry : table.entries)
    {
        if (entry.table != nullptr)
        {
            const std::vector<std::string> inner = mistakesOf(*entry.table);
            mistakes.insert(mistakes.end(), inner.begin(), inner.end());
        }
    }
    return mistakes;
}

} // namespace vorn::parsers::toml::config
