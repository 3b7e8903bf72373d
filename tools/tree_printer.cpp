#include "tree_printer.h"

#include <algorithm>

#include "printed.h"

namespace tool
{
namespace
{

constexpr std::size_t maxIndented = 100;

} // namespace

void TreePrinter::beginNode(const char* kind)
{
    printKind(kind);
    std::fputc('\n', output_);
    ++level_;
}

void TreePrinter::leaf(const char* kind, const char* text)
{
    printKind(kind);
    std::fputc(' ', output_);
    printEscaped(output_, text);
    std::fputc('\n', output_);
}

void TreePrinter::printKind(const char* kind)
{
    std::fprintf(output_, "%*s", static_cast<int>(2 * std::min(level_, maxIndented)), "");
    if (level_ > maxIndented)
    {
        std::fprintf(output_, "(level %zu) ", level_);
    }
    std::fputs(kind, output_);
}

} // namespace tool
