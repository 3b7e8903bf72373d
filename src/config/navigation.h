// From keys to what they fill.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "closing.h"
#include "containers.h"
#include "problems.h"

namespace vorn::parsers::toml::config
{

// Where the keys of pairs are looked up: in a table at one of its nodes, or in a map.
struct Position
{
    std::uint32_t container = none; // none: nowhere; what comes is passed over
    std::uint32_t node = 0;

    bool isSomewhere() const { return container != none; }
};

// A key of a document.
struct Key
{
    std::string_view name;
    std::size_t offset = 0;
};

// What is in a slot under its optionals, which get a value.
struct Content
{
    const Type* type;
    void* object;
};

Content contentOf(const Slot& slot);

// Goes from the root to what the keys of a document are about, opens what it comes to, and says
// where it cannot go.
class Navigation
{
public:
    Navigation(const Table& table, void* object, Problems& problems);

    // What comes is in this source.
    void beginSource(std::uint32_t source)
    {
        source_ = source;
        isSuspicious_ = false;
        lastUnknown_.clear();
    }
    // Whether something in the source is perhaps defined twice: known keys, and unknown ones.
    bool isSuspicious() const { return isSuspicious_; }
    // The lists of a source are complete at its end: those of the next one take their place.
    void endSource();
    // The rest is complete at the end of the last one.
    void finish() { closing_.close(0); }

    static Position root() { return {0, 0}; }
    // What a key fills; a slot without a type if it is a table on the way, or unknown.
    Slot find(Position position, const Key& key, How how);
    // The table or map in a slot.  `found` is what the document has at a spot: "a table".
    Position enter(const Slot& slot, Spot spot, const char* found);
    // The same for a key on the way of a path, which may lead through the last element of a list.
    Position pass(Position position, const Key& key, How how);
    // What a header is about.
    Position header(Position position, const Key& key);
    Position arrayHeader(Position position, const Key& key);

    // The list in a slot, emptied the first time; none if there is no list.
    std::uint32_t openList(const Slot& slot, Spot spot, const char* found);
    // The next element of a list; without a type if it is full.
    Slot append(std::uint32_t list, std::size_t offset);
    // At the end of an array, and of an element of one.
    void close(std::uint32_t container) { closing_.close(container); }
    void closeElement(std::uint32_t list);

    void report(const Slot& slot, Spot spot, std::string&& message, std::string&& hint = {});
    Spot spotOf(std::size_t offset) const { return {source_, static_cast<std::uint32_t>(offset)}; }

private:
    void findInMap(std::uint32_t map, std::string_view name, Slot& slot);
    void reportUnknown(Position position, const Key& key);
    void describeUnknown(Position position, const Key& key, Problem& problem) const;
    void reportKind(const Slot& slot, Spot spot, const char* found);
    Unknown unknownAt(std::uint32_t container) const;

    Containers containers_;
    Problems& problems_;
    Closing closing_;
    std::uint32_t source_ = 0;
    bool isSuspicious_ = false;
    std::string lastUnknown_; // the path that was told last
};

} // namespace vorn::parsers::toml::config
