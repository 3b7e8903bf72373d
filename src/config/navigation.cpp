#include "navigation.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "expectation.h"
#include "key_path.h"
#include "suggestion.h"

namespace vorn::parsers::toml::config
{
namespace
{

constexpr char aTable[] = "a table";
constexpr char anArrayOfTables[] = "an array of tables";

} // namespace

Content contentOf(const Slot& slot)
{
    Content content{slot.type, slot.object};
    while (content.type->kind == Kind::optional)
    {
        content.object = content.type->make(content.object);
        content.type = content.type->element;
    }
    return content;
}

Navigation::Navigation(const Table& table, void* object, Problems& problems)
    : problems_(problems), closing_(containers_, problems)
{
    static constexpr Type rootType{Kind::table};
    Slot slot;
    slot.type = &rootType;
    slot.object = object;
    containers_.open(slot, rootType, object, &table);
}

Slot Navigation::find(Position position, const Key& key, How how)
{
    const Container& container = containers_[position.container];
    Slot slot;
    slot.spot = spotOf(key.offset);
    slot.how = how;
    if (container.type->kind == Kind::map)
    {
        findInMap(position.container, key.name, slot);
        return slot;
    }
    slot.node = container.table->child(position.node, key.name);
    if (slot.node == none)
    {
        isSuspicious_ = true;
        reportUnknown(position, key);
        return slot;
    }
    slot.parent = position.container;
    Member& member = containers_.member(slot.parent, slot.node);
    isSuspicious_ = member.definition.add(how) || isSuspicious_;
    // A later document overrides an earlier one.
    if (!member.isThere || member.spot.source != source_)
    {
        member.isThere = true;
        member.spot = slot.spot;
    }
    slot.entry = container.table->entryOf(slot.node);
    if (slot.entry != nullptr)
    {
        slot.type = slot.entry->type;
        slot.object = static_cast<char*>(container.object) + slot.entry->offset;
    }
    return slot;
}

void Navigation::findInMap(std::uint32_t map, std::string_view name, Slot& slot)
{
    const Container& container = containers_[map];
    const MapSlot found = container.type->insert(container.object, std::string(name));
    slot.type = container.type->element;
    slot.object = found.value;
    slot.key = found.key;
    slot.entry = container.slot.entry;
    slot.parent = map;
    if (!found.isNew)
    {
        const std::uint32_t open = containers_.find(slot);
        isSuspicious_ = open == none || containers_[open].definition.add(slot.how) || isSuspicious_;
    }
}

Position Navigation::enter(const Slot& slot, Spot spot, const char* found)
{
    if (slot.type == nullptr)
    {
        return slot.node == none ? Position{} : Position{slot.parent, slot.node};
    }
    const Content content = contentOf(slot);
    if (content.type->kind != Kind::table && content.type->kind != Kind::map)
    {
        reportKind(slot, spot, found);
        return {};
    }
    std::uint32_t container = containers_.find(slot);
    if (container == none)
    {
        container = containers_.open(slot, *content.type, content.object, slot.entry->table.get());
    }
    else if (containers_[container].slot.spot.source != source_)
    {
        containers_[container].slot.spot = slot.spot;
    }
    return {container};
}

Position Navigation::pass(Position position, const Key& key, How how)
{
    const Slot slot = find(position, key, how);
    if (slot.type == nullptr || contentOf(slot).type->kind != Kind::list)
    {
        return enter(slot, slot.spot, aTable);
    }
    const std::uint32_t list = containers_.find(slot);
    if (list == none || containers_[list].firstChild == none)
    {
        reportKind(slot, slot.spot, aTable);
        return {};
    }
    return {containers_[list].firstChild};
}

Position Navigation::header(Position position, const Key& key)
{
    const Slot slot = find(position, key, How::header);
    return enter(slot, slot.spot, aTable);
}

Position Navigation::arrayHeader(Position position, const Key& key)
{
    const Slot slot = find(position, key, How::arrayHeader);
    const std::uint32_t list = openList(slot, slot.spot, anArrayOfTables);
    if (list == none)
    {
        return {};
    }
    const Slot element = append(list, key.offset);
    return element.type == nullptr ? Position{} : enter(element, slot.spot, anArrayOfTables);
}

std::uint32_t Navigation::openList(const Slot& slot, Spot spot, const char* found)
{
    if (slot.type == nullptr)
    {
        if (slot.node != none)
        {
            report(slot, spot, std::string("should be a table, is ") + found);
        }
        return none;
    }
    const Content content = contentOf(slot);
    if (content.type->kind != Kind::list)
    {
        reportKind(slot, spot, found);
        return none;
    }
    if (const std::uint32_t list = containers_.find(slot); list != none)
    {
        return list;
    }
    content.type->clear(content.object);
    return containers_.open(slot, *content.type, content.object, nullptr);
}

Slot Navigation::append(std::uint32_t list, std::size_t offset)
{
    closeElement(list);
    Container& container = containers_[list];
    Slot slot;
    slot.object = container.type->append(container.object, container.count);
    slot.type = slot.object == nullptr ? nullptr : container.type->element;
    slot.entry = container.slot.entry;
    slot.parent = list;
    slot.index = container.count++;
    slot.spot = spotOf(offset);
    return slot;
}

void Navigation::closeElement(std::uint32_t list)
{
    if (const std::uint32_t last = containers_[list].firstChild; last != none)
    {
        closing_.close(last);
    }
}

void Navigation::endSource()
{
    closing_.closeLists();
    containers_.clearDefinitions();
}

void Navigation::report(const Slot& slot, Spot spot, std::string&& message, std::string&& hint)
{
    isSuspicious_ = true; // What the value has is perhaps not looked at.
    Problem problem;
    problem.path = containers_.pathOf(slot);
    problem.message = std::move(message);
    problem.hint = std::move(hint);
    problems_.add(spot, std::move(problem));
    containers_.damage(slot.parent);
}

void Navigation::reportKind(const Slot& slot, Spot spot, const char* found)
{
    report(slot, spot, "should be " + expectationOf(*slot.type, *slot.entry) + ", is " + found);
}

Unknown Navigation::unknownAt(std::uint32_t container) const
{
    for (; container != none; container = containers_[container].slot.parent)
    {
        const Table* const found = containers_[container].table;
        if (found != nullptr && found->unknown)
        {
            return *found->unknown;
        }
    }
    return Unknown::problem;
}

void Navigation::reportUnknown(Position position, const Key& key)
{
    const Unknown unknown = unknownAt(position.container);
    if (unknown == Unknown::ignored)
    {
        return;
    }
    Problem problem;
    problem.severity = unknown == Unknown::warning ? Severity::warning : Severity::error;
    if (unknown == Unknown::problem)
    {
        containers_.damage(position.container);
    }
    if (problems_.takes(problem))
    {
        describeUnknown(position, key, problem);
        // The keys and headers of a table that is unknown mostly follow one another.
        if (problem.path == lastUnknown_)
        {
            return;
        }
        lastUnknown_ = problem.path;
    }
    problems_.add(spotOf(key.offset), std::move(problem));
}

void Navigation::describeUnknown(Position position, const Key& key, Problem& problem) const
{
    const Container& container = containers_[position.container];
    const Node& node = container.table->nodes[position.node];
    problem.path = containers_.pathOf(position.container);
    if (!node.path.empty())
    {
        problem.path += (problem.path.empty() ? "" : ".") + node.path;
    }
    addShownKey(problem.path, key.name);
    problem.message = "unknown key";
    std::vector<std::string_view> names;
    std::transform(node.children.begin(), node.children.end(), std::back_inserter(names),
                   [&container](std::uint32_t child) -> std::string_view
                   { return container.table->nodes[child].name; });
    problem.hint = didYouMean(key.name, names);
}

} // namespace vorn::parsers::toml::config
