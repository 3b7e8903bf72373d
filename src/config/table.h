// What a schema holds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <vorn/parsers/toml_schema.h>

namespace vorn::parsers::toml::config
{

inline constexpr std::uint32_t none = 0xffffffff;

// A part of a path: a key that fills a member, or a table on the way to such keys.
struct Node
{
    std::string name;
    std::string path; // from the table's start, as one writes it in a document
    std::uint32_t parent = none;
    std::uint32_t entry = none; // of a key that fills a member
    std::vector<std::uint32_t> children;
    std::vector<std::uint32_t> marks; // of the children's names
};

// A check of the whole struct, and the keys that it is about.
struct TableCheck
{
    Check check;
    std::vector<std::string> paths;
};

struct Table
{
    WithDefault withDefault = nullptr;
    std::vector<Entry> entries;                     // as they were added
    std::vector<Node> nodes = std::vector<Node>(1); // the first one is the table
    std::vector<TableCheck> checks;
    std::optional<Unknown> unknown;
    std::vector<std::string> mistakes; // of the schema's author

    // The child of a node; none if it has none of this name.
    std::uint32_t child(std::uint32_t node, std::string_view name) const;
    // The node of a path as the schema has it; none if there is none.
    std::uint32_t find(const std::string& path) const;

    const Entry* entryOf(std::uint32_t node) const
    {
        const std::uint32_t entry = nodes[node].entry;
        return entry == none ? nullptr : &entries[entry];
    }
};

// The mistakes of a schema and of those within it.
std::vector<std::string> mistakesOf(const Table& table);

} // namespace vorn::parsers::toml::config
