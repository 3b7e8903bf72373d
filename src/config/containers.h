// The tables, maps and lists of a configuration that are being filled, and how to find them again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "address_table.h"
#include "definition.h"
#include "problems.h"
#include "table.h"

namespace vorn::parsers::toml::config
{

// Where a value goes: a member of a table, an element of a map or a list.
struct Slot
{
    const Type* type = nullptr; // null: nowhere
    void* object = nullptr;
    const Entry* entry = nullptr;     // that it belongs to, or its list or map does
    std::uint32_t parent = none;      // the container that it is in
    std::uint32_t node = none;        // in a table
    std::uint32_t index = none;       // in a list
    const std::string* key = nullptr; // in a map
    Spot spot;                        // of the key, or of the element
    How how = How::value;
};

// What has elements or members, and what is known of these so far.
struct Container
{
    Slot slot;
    const Type* type = nullptr; // of the slot, without optionals
    void* object = nullptr;     // likewise
    const Table* table = nullptr;
    std::size_t firstMember = 0;     // tables: of the nodes
    std::uint32_t count = 0;         // lists: of elements
    std::uint32_t firstChild = none; // the one within that was opened last
    std::uint32_t next = none;       // of the same parent, opened before
    std::uint32_t previous = none;
    Definition definition;  // of what is in a map
    bool isDamaged = false; // there is an error within
};

// What a document has of a node of a table.
struct Member
{
    bool isThere = false;
    Definition definition;
    Spot spot;
    std::uint32_t container = none;
};

// Containers are numbered in the order in which they are opened.  A number is used again once its
// container is closed.
class Containers
{
public:
    // The container that a slot was opened as, if it still is.
    std::uint32_t find(const Slot& slot) const;
    // The type and the object are the slot's, without optionals.
    std::uint32_t open(const Slot& slot, const Type& type, void* object, const Table* table);

    Container& operator[](std::uint32_t number) { return containers_[number]; }
    const Container& operator[](std::uint32_t number) const { return containers_[number]; }
    Member& member(std::uint32_t table, std::uint32_t node)
    {
        return members_[containers_[table].firstMember + node];
    }
    const Member& member(std::uint32_t table, std::uint32_t node) const
    {
        return members_[containers_[table].firstMember + node];
    }
    std::uint32_t size() const { return static_cast<std::uint32_t>(containers_.size()); }
    bool isOpen(std::uint32_t number) const { return containers_[number].object != nullptr; }

    // Forgets a container in which no other one is open.
    void close(std::uint32_t number);
    void damage(std::uint32_t number);
    // Another document may define everything again.
    void clearDefinitions();

    // The path of a slot, "listener[1].port".
    std::string pathOf(const Slot& slot) const;
    std::string pathOf(std::uint32_t number) const;

private:
    void link(std::uint32_t number);
    void unlink(std::uint32_t number);

    std::vector<Container> containers_;
    std::vector<Member> members_;
    AddressTable inMaps_;
};

} // namespace vorn::parsers::toml::config
