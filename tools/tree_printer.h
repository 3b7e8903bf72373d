#pragma once

#include <cstddef>
#include <cstdio>

#include "tree_visitor.h"

namespace tool
{

// Prints one node per line, indented by its level.  Deep levels are numbered instead, so that
// lines do not grow with the depth.
class TreePrinter : public TreeVisitor
{
public:
    explicit TreePrinter(std::FILE* output) : output_(output) {}

private:
    void beginNode(const char* kind) override;
    void endNode() override { --level_; }
    void leaf(const char* kind, const char* text) override;

    void printKind(const char* kind);

    std::FILE* output_;
    std::size_t level_ = 0;
};

} // namespace tool
