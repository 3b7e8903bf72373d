#include "dot_printer.h"

#include <string_view>

#include "shown_text.h"

namespace tool
{
namespace
{

// Graphviz unescapes labels: a backslash and a quote get a backslash.
void printInQuotes(std::FILE* output, std::string_view text)
{
    for (const char c : printable(text))
    {
        if (c == '"' || c == '\\')
        {
            std::fputc('\\', output);
        }
        std::fputc(c, output);
    }
}

} // namespace

DotPrinter::DotPrinter(std::FILE* output, const std::string& name) : output_(output)
{
    std::fputs("digraph \"", output_);
    printInQuotes(output_, name);
    std::fputs("\" {\n  node [fontname=\"monospace\"];\n", output_);
}

DotPrinter::~DotPrinter()
{
    std::fputs("}\n", output_);
}

void DotPrinter::beginNode(const char* kind)
{
    open_.push_back(addNode(kind, nullptr, "ellipse"));
}

void DotPrinter::endNode()
{
    open_.pop_back();
}

void DotPrinter::leaf(const char* kind, const char* text)
{
    addNode(kind, text, "box");
}

std::size_t DotPrinter::addNode(const char* kind, const char* text, const char* shape)
{
    const std::size_t node = count_++;
    std::fprintf(output_, "  n%zu [shape=%s, label=\"%s", node, shape, kind);
    if (text != nullptr)
    {
        std::fputs("\\n", output_);
        printInQuotes(output_, text);
    }
    std::fputs("\"];\n", output_);
    if (!open_.empty())
    {
        std::fprintf(output_, "  n%zu -> n%zu;\n", open_.back(), node);
    }
    return node;
}

} // namespace tool
