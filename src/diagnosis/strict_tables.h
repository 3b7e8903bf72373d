#pragma once

#include <string_view>

#include "strict_names.h"

namespace vorn::parsers::toml::diagnosis
{

class StrictMistakes;
struct StrictRule;

// Defines the tables and keys of a document one after another, by the rules of TOML 1.0: each
// is defined once.  After a mistake a table takes the place of what was there, as if that had
// had another name, so that one confusion of names is one mistake; a value does not.
class StrictTables
{
public:
    // The document ends at `documentEnd`; the mistakes are added.
    StrictTables(const char* documentEnd, StrictMistakes& mistakes)
        : documentEnd_(documentEnd), mistakes_(mistakes), names_(documentEnd)
    {
    }

    // A header.  The pairs after it are in its table.
    void defineTable(std::string_view key) { define(key, NameKind::headedTable); }
    void defineArrayElement(std::string_view key) { define(key, NameKind::arrayOfTables); }

    // The pairs up to the next header are in a table that is not known.
    void leaveTable() { isTableKnown_ = false; }

    // The names of all tables so far are not to be compared with those that come.
    void forget();

    // A pair of the current table.
    void definePair(std::string_view key, NameKind value);

    // An inline table, within which pairs are defined.  The inner one ends first.
    struct InlineTable
    {
        Names::State before;
        TableId members = 0;
    };
    InlineTable beginInlineTable();
    void endInlineTable(const InlineTable& table) { names_.restore(table.before); }
    // Returns the name, to be given its kind; null after a mistake.
    Name* definePair(const InlineTable& table, std::string_view key);

private:
    void define(std::string_view key, NameKind kind);
    TableId enterByHeader(TableId table, std::string_view part);
    TableId enterByDot(TableId table, std::string_view part);
    Name* defineValue(TableId table, std::string_view key);

    TableId defineAs(Name& name, std::string_view part, NameKind kind);
    void addMistake(const StrictRule& rule, std::string_view part, const Name& name);

    const char* documentEnd_;
    StrictMistakes& mistakes_;
    Names names_;
    TableId table_ = 0;
    bool isTableKnown_ = true;
};

} // namespace vorn::parsers::toml::diagnosis
