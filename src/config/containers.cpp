#include "containers.h"

#include <algorithm>

#include "key_path.h"

namespace vorn::parsers::toml::config
{

std::uint32_t Containers::find(const Slot& slot) const
{
    if (slot.parent == none)
    {
        return none;
    }
    if (slot.key != nullptr)
    {
        return inMaps_.find(slot.object, none);
    }
    return slot.node == none ? none : member(slot.parent, slot.node).container;
}

std::uint32_t Containers::open(const Slot& slot, const Type& type, void* object, const Table* table)
{
    const std::uint32_t number = size();
    Container opened;
    opened.slot = slot;
    opened.type = &type;
    opened.object = object;
    opened.firstMember = members_.size();
    if (type.kind == Kind::table)
    {
        opened.table = table;
        members_.resize(members_.size() + table->nodes.size());
    }
    containers_.push_back(opened);
    if (slot.key != nullptr)
    {
        inMaps_.insert(slot.object, number);
        containers_[number].definition.add(slot.how);
    }
    else if (slot.node != none)
    {
        member(slot.parent, slot.node).container = number;
    }
    link(number);
    return number;
}

void Containers::link(std::uint32_t number)
{
    Container& linked = containers_[number];
    if (linked.slot.parent == none)
    {
        return;
    }
    Container& parent = containers_[linked.slot.parent];
    linked.next = parent.firstChild;
    if (linked.next != none)
    {
        containers_[linked.next].previous = number;
    }
    parent.firstChild = number;
}

void Containers::unlink(std::uint32_t number)
{
    const Container& unlinked = containers_[number];
    if (unlinked.next != none)
    {
        containers_[unlinked.next].previous = unlinked.previous;
    }
    if (unlinked.previous != none)
    {
        containers_[unlinked.previous].next = unlinked.next;
    }
    else if (unlinked.slot.parent != none)
    {
        containers_[unlinked.slot.parent].firstChild = unlinked.next;
    }
}

void Containers::close(std::uint32_t number)
{
    const Slot& slot = containers_[number].slot;
    if (slot.key != nullptr)
    {
        inMaps_.erase(slot.object);
    }
    else if (slot.node != none)
    {
        member(slot.parent, slot.node).container = none;
    }
    unlink(number);
    containers_[number].object = nullptr;
    while (!containers_.empty() && containers_.back().object == nullptr)
    {
        members_.resize(containers_.back().firstMember);
        containers_.pop_back();
    }
}

void Containers::damage(std::uint32_t number)
{
    for (; number != none && !containers_[number].isDamaged;
         number = containers_[number].slot.parent)
    {
        containers_[number].isDamaged = true;
    }
}

void Containers::clearDefinitions()
{
    for (Container& container : containers_)
    {
        container.definition.clear();
    }
    for (Member& one : members_)
    {
        one.definition.clear();
    }
}

// Containers are not deeper than the schema.
// NOLINTNEXTLINE(misc-no-recursion)
std::string Containers::pathOf(const Slot& slot) const
{
    std::string path = slot.parent == none ? std::string() : pathOf(slot.parent);
    if (slot.key != nullptr)
    {
        addShownKey(path, *slot.key);
    }
    else if (slot.index != none)
    {
        path += '[' + std::to_string(slot.index) + ']';
    }
    else if (slot.node != none)
    {
        path += path.empty() ? "" : ".";
        path += containers_[slot.parent].table->nodes[slot.node].path;
    }
    return path;
}

// NOLINTNEXTLINE(misc-no-recursion): likewise.
std::string Containers::pathOf(std::uint32_t number) const
{
    return pathOf(containers_[number].slot);
}

} // namespace vorn::parsers::toml::config
