#include "closing.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "shown_text.h"

namespace vorn::parsers::toml::config
{
namespace
{

std::string joined(const std::string& start, const std::string& path)
{
    return start.empty() ? path : start + '.' + path;
}

} // namespace

// Containers are not deeper than the schema.
// NOLINTNEXTLINE(misc-no-recursion)
void Closing::close(std::uint32_t number)
{
    while (containers_[number].firstChild != none)
    {
        close(containers_[number].firstChild);
    }
    closeOne(number);
}

void Closing::closeLists()
{
    // What is within another one was opened after it.
    std::vector<bool> areInLists(containers_.size());
    for (std::uint32_t number = 0; number < containers_.size(); ++number)
    {
        const Container& container = containers_[number];
        const std::uint32_t parent = container.slot.parent;
        areInLists[number] = containers_.isOpen(number) && (container.type->kind == Kind::list ||
                                                            (parent != none && areInLists[parent]));
    }
    for (std::size_t number = areInLists.size(); number-- > 0;)
    {
        if (areInLists[number])
        {
            closeOne(static_cast<std::uint32_t>(number));
        }
    }
}

void Closing::closeOne(std::uint32_t number)
{
    const Kind kind = containers_[number].type->kind;
    if (kind == Kind::table)
    {
        findMissing(number);
        checkTable(number);
    }
    else if (kind == Kind::list)
    {
        checkCount(number);
    }
    checkMember(number);
    containers_.close(number);
}

// Of a node that the document does not have, the place is that of the table around it.
Spot Closing::spotOf(std::uint32_t number, std::uint32_t node) const
{
    const Container& container = containers_[number];
    for (; node != none; node = container.table->nodes[node].parent)
    {
        if (const Member& member = containers_.member(number, node); member.isThere)
        {
            return member.spot;
        }
    }
    return container.slot.spot;
}

void Closing::findMissing(std::uint32_t number)
{
    const Table& table = *containers_[number].table;
    for (std::uint32_t node = 1; node < table.nodes.size(); ++node)
    {
        const Entry* const entry = table.entryOf(node);
        const bool matters =
            entry != nullptr && (entry->isRequired || entry->type->kind == Kind::table);
        if (!matters || containers_.member(number, node).isThere)
        {
            continue;
        }
        const Spot spot = spotOf(number, node);
        std::string path = joined(containers_.pathOf(number), table.nodes[node].path);
        if (entry->isRequired)
        {
            report(number, spot, std::move(path), "is missing", Problems::Order::last);
        }
        else
        {
            findMissingIn(*entry->table, path, number, spot);
        }
    }
}

// A struct that is there though the document has no table for it.  Schemas cannot be within
// themselves.
// NOLINTNEXTLINE(misc-no-recursion)
void Closing::findMissingIn(const Table& table, const std::string& path, std::uint32_t number,
                            const Spot& spot)
{
    for (const Node& node : table.nodes)
    {
        if (node.entry == none)
        {
            continue;
        }
        const Entry& entry = table.entries[node.entry];
        if (entry.isRequired)
        {
            report(number, spot, joined(path, node.path), "is missing", Problems::Order::last);
        }
        else if (entry.type->kind == Kind::table)
        {
            findMissingIn(*entry.table, joined(path, node.path), number, spot);
        }
    }
}

void Closing::checkCount(std::uint32_t number)
{
    const Container& container = containers_[number];
    const std::size_t wanted = container.type->fixedSize;
    if (wanted != 0 && container.count != wanted)
    {
        report(number, container.slot.spot, containers_.pathOf(number),
               "should have " + std::to_string(wanted) + (wanted == 1 ? " element" : " elements") +
                   ", has " + std::to_string(container.count));
    }
}

void Closing::checkMember(std::uint32_t number)
{
    const Container& container = containers_[number];
    const Slot& slot = container.slot;
    if (container.isDamaged || slot.node == none || !slot.entry->check)
    {
        return;
    }
    std::string complaint = printable(slot.entry->check(slot.object));
    if (!complaint.empty())
    {
        report(number, slot.spot, containers_.pathOf(number), std::move(complaint));
    }
}

void Closing::checkTable(std::uint32_t number)
{
    const Table& table = *containers_[number].table;
    for (const TableCheck& check : table.checks)
    {
        if (containers_[number].isDamaged)
        {
            return;
        }
        std::string complaint = printable(check.check(containers_[number].object));
        if (complaint.empty())
        {
            continue;
        }
        const std::string start = containers_.pathOf(number);
        std::string paths;
        for (const std::string& path : check.paths)
        {
            paths += (paths.empty() ? "" : ", ") + joined(start, path);
        }
        const std::uint32_t first = check.paths.empty() ? none : table.find(check.paths.front());
        report(number, spotOf(number, first), paths.empty() ? std::string(start) : std::move(paths),
               std::move(complaint));
    }
}

void Closing::report(std::uint32_t number, Spot spot, std::string&& path, std::string&& message,
                     Problems::Order order)
{
    Problem problem;
    problem.path = std::move(path);
    problem.message = std::move(message);
    problems_.add(spot, std::move(problem), order);
    containers_.damage(number);
}

} // namespace vorn::parsers::toml::config
