#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "support/operations.h"

namespace test
{

// Counts its calls, and allocates nothing.
class CountingVisitor : public OperationVisitor
{
public:
    std::size_t calls = 0;
    std::size_t textBytes = 0;
    std::size_t depth = 0; // of arrays and inline tables
    std::size_t deepest = 0;

    void beginArray() override { enter(); }
    void endArray() override { leave(); }
    void beginInlineTable() override { enter(); }
    void endInlineTable() override { leave(); }

private:
    void called(const char*) override { ++calls; }
    void called(const char*, const char* text) override
    {
        ++calls;
        textBytes += std::strlen(text);
    }

    void enter()
    {
        ++calls;
        ++depth;
        deepest = std::max(deepest, depth);
    }
    void leave()
    {
        ++calls;
        --depth;
    }
};

} // namespace test
