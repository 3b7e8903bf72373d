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

// Tells most names apart: the names of a table are looked through faster by these than by the names
// themselves, in any order.
inline std::uint32_t markOf(std::string_view name) noexcept
{
    if (name.empty())
    {
        return 0;
    }
    const auto byte = [name](std::size_t at)
    { return std::uint32_t{static_cast<unsigned char>(name[at])}; };
    return byte(0) | byte(name.size() / 2) << 8U | byte(name.size() - 1) << 16U |
           static_cast<std::uint32_t>(name.size()) << 24U;
}

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
    std::uint32_t child(std::uint32_t node, std::string_view name) const noexcept
    {
        const Node& parent = nodes[node];
        const std::uint32_t mark = markOf(name);
        for (std::size_t i = 0; i < parent.marks.size(); ++i)
        {
            if (parent.marks[i] == mark && nodes[parent.children[i]].name == name)
            {
                return parent.children[i];
            }
        }
        return none;
    }
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
