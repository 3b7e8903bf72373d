#include <string>
#include <string_view>

#include "description.h"
#include "readable_table.h"
#include "value_text.h"

namespace vorn::parsers::toml::config
{
namespace
{

// What is done with the required keys of a table.
enum class Required
{
    missing, // it is for who edits the configuration to have them
    there,   // a table that one can do without has them once it is there
};

bool hasValues(const Table& table, std::uint32_t node)
{
    // NOLINTNEXTLINE(readability-use-anyofallof): that would be more code.
    for (const std::uint32_t child : table.nodes[node].children)
    {
        if (!isTable(table, child))
        {
            return true;
        }
    }
    return false;
}

// NOLINTBEGIN(misc-no-recursion): it ends where the schema does.
class Configuration
{
public:
    explicit Configuration(Text& out) : out_(out) {}

    // The pairs at a node, and the tables below it.
    void addNode(const Table& table, std::uint32_t node, const void* object,
                 const std::string& path, Required required)
    {
        for (const bool areTables : {false, true})
        {
            for (std::uint32_t child = node; (child = nextChild(table, node, child)) != none;)
            {
                if (isTable(table, child) != areTables)
                {
                    continue;
                }
                if (!areTables)
                {
                    addPair(table.nodes[child].name, *table.entryOf(child), object, required);
                    continue;
                }
                addChild(table, child, object, path, required);
            }
        }
    }

private:
    // A table on the way, or those of an entry.
    void addChild(const Table& table, std::uint32_t child, const void* object,
                  const std::string& path, Required required)
    {
        Text rest;
        addForDocument(rest, table.nodes[child].path);
        const std::string inner = pathWithin(path, rest.text);
        if (const Entry* const entry = table.entryOf(child); entry != nullptr)
        {
            addTables(*entry, memberOf(object, *entry), inner, required);
            return;
        }
        if (hasValues(table, child))
        {
            addBreak();
            out_ << "[" << inner << "]\n";
            isStart_ = true;
        }
        addNode(table, child, object, path, required);
    }

    void addPair(const std::string& name, const Entry& entry, const void* object, Required required)
    {
        addExplanation(entry);
        Text value;
        const bool isExact = addMember(value, entry, memberOf(object, entry), Syntax::toml);
        const bool isActive = entry.isRequired ? required == Required::there : isExact;
        out_ << (isActive ? "" : "# ");
        addKey(out_, name, Syntax::toml);
        out_ << " = ";
        if (isExact)
        {
            out_ << value.text;
        }
        else
        {
            addExample(out_, *entry.type, entry);
        }
        out_ << "\n";
    }

    // The description, each line of it, and what the entry takes.
    void addExplanation(const Entry& entry)
    {
        addBreak();
        std::string_view rest = entry.description;
        while (!rest.empty())
        {
            const std::string_view line = rest.substr(0, rest.find('\n'));
            addCommentLine(line);
            rest.remove_prefix(line.size() < rest.size() ? line.size() + 1 : line.size());
        }
        Text taken;
        addTaken(taken, entry);
        taken << (entry.isRequired ? ", required" : "");
        addCommentLine(taken.text);
    }

    void addCommentLine(std::string_view line)
    {
        out_ << (line.empty() ? "#" : "# ");
        addComment(out_, line);
        out_ << "\n";
    }

    // An empty line, but for the start and after a header.
    void addBreak()
    {
        out_ << (isStart_ ? "" : "\n");
        isStart_ = false;
    }

    // The tables of a member, or how one is written.
    void addTables(const Entry& entry, const void* member, const std::string& path,
                   Required required)
    {
        addExplanation(entry);
        const bool isStruct = entry.type->kind == Kind::table;
        const bool isActive = (isStruct && isRequired(entry)) ||
                              (!isBlank(*entry.type, member) && isReadable(entry, member, member));
        isStart_ = true; // the first one follows the comment
        const auto addOne = [&](const void* object, const std::string* name)
        {
            Text inner;
            inner << path;
            if (entry.type->kind == Kind::map)
            {
                inner << ".";
                if (name == nullptr)
                {
                    inner << "NAME";
                }
                else
                {
                    addKey(inner, *name, Syntax::toml);
                }
            }
            addBreak();
            const std::size_t start = out_.text.size();
            addHeader(out_, entry, inner.text);
            out_ << "\n";
            Configuration(out_).addNode(*entry.table, 0, object, inner.text,
                                        isStruct ? required : Required::there);
            if (!isActive)
            {
                commentOut(start);
            }
        };
        if (isActive || isStruct)
        {
            visitElements(*entry.type, member, addOne);
            return;
        }
        visitDefault(*entry.table, addOne);
    }

    void commentOut(std::size_t start)
    {
        std::string& text = out_.text;
        for (std::size_t at = start; at < text.size(); at = text.find('\n', at) + 1)
        {
            text.insert(at, text[at] == '\n' ? "#" : "# ");
        }
    }

    Text& out_;
    bool isStart_ = true; // of a block
};

// NOLINTEND(misc-no-recursion)

} // namespace

void describeInToml(Text& out, const Table& table, const void* object)
{
    Configuration(out).addNode(table, 0, object, {}, Required::missing);
}

} // namespace vorn::parsers::toml::config
