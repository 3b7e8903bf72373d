// JsonTree::print(), from node to node without a stack.
#include <algorithm>
#include <cstdio>

#include "json_tree.h"

namespace tool
{

class JsonPrinter
{
public:
    explicit JsonPrinter(const JsonTree& tree) : tree_(tree) {}

    void print()
    {
        for (JsonTree::Node node = JsonTree::document; node != JsonTree::none;)
        {
            open(node);
            node = isEmpty(node) ? afterwards(node) : at(node).first;
        }
        lines_ += '\n';
        flush(0);
    }

private:
    const JsonTree::Content& at(JsonTree::Node node) const { return tree_.nodes_[node]; }

    bool isEmpty(JsonTree::Node node) const { return at(node).first == JsonTree::none; }

    // Prints what comes before the content.
    void open(JsonTree::Node node)
    {
        const JsonTree::Content& content = at(node);
        lines_ += content.key != nullptr ? jsonString(*content.key) + ": " : "";
        if (content.kind == JsonTree::Kind::scalar)
        {
            lines_ += content.text;
            return;
        }
        const bool isTable = content.kind == JsonTree::Kind::table;
        lines_ += isTable ? '{' : '[';
        if (isEmpty(node))
        {
            lines_ += isTable ? '}' : ']';
            return;
        }
        ++level_;
        breakLine();
    }

    // Prints what comes after a node: the ends of all that end with it.  Returns the next node.
    JsonTree::Node afterwards(JsonTree::Node node)
    {
        for (; node != JsonTree::none; node = at(node).parent)
        {
            if (const JsonTree::Node next = at(node).next; next != JsonTree::none)
            {
                lines_ += ',';
                breakLine();
                return next;
            }
            if (node != JsonTree::document)
            {
                --level_;
                breakLine();
                lines_ += tree_.isArray(at(node).parent) ? ']' : '}';
            }
        }
        return JsonTree::none;
    }

    // Deep levels are not indented further: otherwise the lines of a document that is nested
    // 100,000 levels deep would have 20 GB of spaces.
    void breakLine()
    {
        constexpr std::size_t maxIndented = 100;
        constexpr std::size_t block = 65536;
        flush(block);
        lines_ += '\n';
        lines_.append(2 * std::min(level_, maxIndented), ' ');
    }

    void flush(std::size_t minSize)
    {
        if (lines_.size() >= minSize)
        {
            std::fwrite(lines_.data(), 1, lines_.size(), stdout);
            lines_.clear();
        }
    }

    const JsonTree& tree_;
    std::size_t level_ = 0;
    std::string lines_;
};

void JsonTree::print() const
{
    JsonPrinter(*this).print();
}

} // namespace tool
