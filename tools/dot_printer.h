#pragma once

#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

#include "tree_visitor.h"

namespace tool
{

// Prints a document as a graph for Graphviz.
class DotPrinter : public TreeVisitor
{
public:
    // The destructor completes the graph.
    DotPrinter(std::FILE* output, const std::string& name);
    DotPrinter(const DotPrinter&) = delete;
    DotPrinter& operator=(const DotPrinter&) = delete;
    ~DotPrinter() override;

private:
    void beginNode(const char* kind) override;
    void endNode() override;
    void leaf(const char* kind, const char* text) override;

    std::size_t addNode(const char* kind, const char* text, const char* shape);

    std::FILE* output_;
    std::size_t count_ = 0;
    std::vector<std::size_t> open_;
};

} // namespace tool
