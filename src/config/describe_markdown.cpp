#include "description.h"
#include "value_text.h"

namespace vorn::parsers::toml::config
{
namespace
{

// NOLINTBEGIN(misc-no-recursion): it ends where the schema does.
class Markdown
{
public:
    explicit Markdown(Text& out) : out_(out) {}

    // A section for a table, after its header; the struct has the defaults.
    void addTable(const Table& table, const void* object, const std::string& path)
    {
        isStarted_ = false;
        addRows(table, object, 0);
        addTables(table, object, path, 0);
    }

private:
    void addRows(const Table& table, const void* object, std::uint32_t node)
    {
        for (const bool areTables : {false, true})
        {
            for (std::uint32_t child = node; (child = nextChild(table, node, child)) != none;)
            {
                const Entry* const entry = table.entryOf(child);
                if (entry == nullptr && areTables)
                {
                    addRows(table, object, child);
                }
                else if (entry != nullptr && entry->table == nullptr && !areTables)
                {
                    addRow(table.nodes[child].path, *entry, memberOf(object, *entry));
                }
            }
        }
    }

    void addRow(const std::string& path, const Entry& entry, const void* member)
    {
        Text taken;
        addTaken(taken, entry);
        Text value;
        if (!entry.isRequired && !isBlank(*entry.type, member))
        {
            addValue(value, *entry.type, entry, member, Syntax::toml);
        }
        out_ << (isStarted_ ? "" : "\n| Key | Value | Default | Description |\n|---|---|---|---|\n")
             << "| ";
        isStarted_ = true;
        addCode(out_, path);
        out_ << " | ";
        addCell(out_, taken.text);
        out_ << (entry.isRequired ? " | required" : " | ");
        if (!value.text.empty())
        {
            addCode(out_, value.text);
        }
        out_ << " | ";
        addCell(out_, entry.description);
        out_ << " |\n";
    }

    void addTables(const Table& table, const void* object, const std::string& path,
                   std::uint32_t node)
    {
        for (std::uint32_t child = node; (child = nextChild(table, node, child)) != none;)
        {
            const Entry* const entry = table.entryOf(child);
            if (entry == nullptr)
            {
                addTables(table, object, path, child);
            }
            else if (entry->table != nullptr)
            {
                addSection(*entry, memberOf(object, *entry),
                           pathWithin(path, table.nodes[child].path));
            }
        }
    }

    void addSection(const Entry& entry, const void* member, std::string&& path)
    {
        path += entry.type->kind == Kind::map ? ".NAME" : "";
        Text header;
        addHeader(header, entry, path);
        out_ << "\n## ";
        addCode(out_, header.text);
        out_ << "\n";
        if (!entry.description.empty())
        {
            out_ << "\n" << entry.description << "\n";
        }
        const auto add = [&](const void* object, const std::string*)
        { addTable(*entry.table, object, path); };
        if (entry.type->kind == Kind::table)
        {
            add(member, nullptr);
            return;
        }
        visitDefault(*entry.table, add);
    }

    Text& out_;
    bool isStarted_ = false; // whether the table has its first row
};

// NOLINTEND(misc-no-recursion)

} // namespace

void describeInMarkdown(Text& out, const Table& table, const void* object)
{
    out << "# Configuration\n";
    Markdown(out).addTable(table, object, {});
}

} // namespace vorn::parsers::toml::config
