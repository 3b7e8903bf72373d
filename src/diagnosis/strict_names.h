#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "strict_hash.h"

namespace vorn::parsers::toml::diagnosis
{

// What a name has been defined as.
enum class NameKind : std::uint8_t
{
    value,
    inlineTable,
    array,        // between its brackets
    impliedTable, // by the headers of tables in it
    headedTable,  // by a header of its own
    dottedTable,  // by dotted keys
    arrayOfTables,
};

using TableId = std::uint32_t;

// A name in a table.
struct Name
{
    const char* part; // the key, or the part of one, that defined it
    TableId table;
    TableId members; // where the names in it are, if it is a table; of an array, in its last one
    std::uint32_t hash;
    NameKind kind;

    std::string_view text(const char* documentEnd) const;
};

// The names of a document, each in a table.
class Names
{
public:
    explicit Names(const char* documentEnd) : documentEnd_(documentEnd) {}

    // A state of the names to which they can be put back.
    struct State
    {
        std::size_t count = 0;
        TableId lastTable = 0;
    };

    // The table of the top level is number 0.
    TableId newTable();

    struct Found
    {
        Name* name;
        bool isNew; // it has no kind and no members yet
    };
    // The name that a part of a key stands for in a table.
    Found at(TableId table, std::string_view part);

    State state() const { return {names_.size(), lastTable_}; }
    // Forgets what has come after a state.
    void restore(State state);

private:
    bool isAt(std::size_t slot, TableId table, std::uint32_t hash, std::string_view name);
    void forgetLast();
    void grow();

    std::size_t firstSlot(std::uint32_t hash) const { return hash & (slots_.size() - 1); }
    std::size_t slotAfter(std::size_t slot) const { return (slot + 1) & (slots_.size() - 1); }

    const char* documentEnd_;
    TableId lastTable_ = 0;
    const StrictHash hash_;
    std::deque<Name> names_;
    // Open addressing: each name is in the first slot from firstSlot() on that was free when it
    // came.  The last name can therefore be taken out again without more ado.
    std::vector<std::uint32_t> slots_; // numbers of names, from 1; 0: free
    std::string buffer_;
    std::string otherBuffer_;
};

} // namespace vorn::parsers::toml::diagnosis
