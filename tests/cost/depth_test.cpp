// Nesting: as deep as the document has brackets, on stacks of any size.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>

#include <pthread.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "support/counting_visitor.h"
#include "support/large_documents.h"

namespace
{

constexpr std::size_t levels = 1000 * 1000;
constexpr std::size_t kilobyte = 1024;
const std::size_t stackSizes[] = {8192 * kilobyte, 1024 * kilobyte, 128 * kilobyte, 64 * kilobyte};

struct Reading
{
    const std::string& text;
    bool accepted;
    test::CountingVisitor visitor;
};

void* run(void* reading)
{
    auto& started = *static_cast<Reading*>(reading);
    started.accepted = vorn::parsers::toml::visitTomlTree(started.text, started.visitor);
    return nullptr;
}

// Reads on a thread of its own that has a stack of `stackSize` bytes.
void readOnStack(std::size_t stackSize, Reading& reading)
{
    pthread_attr_t attributes;
    pthread_t thread = {};
    if (pthread_attr_init(&attributes) != 0 ||
        pthread_attr_setstacksize(&attributes, stackSize) != 0 ||
        pthread_create(&thread, &attributes, run, &reading) != 0 ||
        pthread_join(thread, nullptr) != 0)
    {
        throw std::runtime_error("no thread with a stack of that size");
    }
    pthread_attr_destroy(&attributes);
}

struct Nesting
{
    std::string opening;
    std::string closing;
    std::size_t levels; // of one opening
    std::size_t calls;  // of one opening with its closing
};

void expectRead(const Nesting& nesting, std::size_t depth)
{
    const std::size_t openings = depth / nesting.levels;
    const std::string text = test::nestedDocument(nesting.opening, nesting.closing, openings);
    for (const std::size_t stackSize : stackSizes)
    {
        SCOPED_TRACE(std::to_string(depth) + " levels of " + nesting.opening + " on " +
                     std::to_string(stackSize / kilobyte) + " kilobytes");
        Reading reading{text, false, {}};
        readOnStack(stackSize, reading);
        EXPECT_TRUE(reading.accepted);
        EXPECT_EQ(reading.visitor.deepest, depth);
        EXPECT_EQ(reading.visitor.depth, 0u);
        // Around them the document and its pair with a key and the innermost value.
        EXPECT_EQ(reading.visitor.calls, 6 + openings * nesting.calls);
    }
}

} // namespace

TEST(Depth, ofArraysHasNoLimit)
{
    expectRead({"[", "]", 1, 2}, levels);
    expectRead({"[ # c\n", "]", 1, 2}, levels);
    expectRead({"[1,\n", "\n]", 1, 3}, levels);
}

TEST(Depth, ofInlineTablesHasNoLimit)
{
    expectRead({"{a=", "}", 1, 5}, levels);
    expectRead({"{a.b = ", "}", 1, 8}, levels);
}

TEST(Depth, ofBothMixedHasNoLimit)
{
    expectRead({"[{a=", "}]", 2, 7}, levels);
    expectRead({"{a=[1,", "]}", 2, 8}, levels);
    expectRead({"[[{a={a=", "}}]]", 4, 14}, levels);
}

TEST(Depth, isRightForEverySmallNumber)
{
    for (std::size_t depth = 1; depth < 300; ++depth)
    {
        const std::string text = test::nestedDocument("[", "]", depth);
        test::CountingVisitor visitor;
        EXPECT_TRUE(vorn::parsers::toml::visitTomlTree(text, visitor)) << depth;
        EXPECT_EQ(visitor.deepest, depth);
    }
}
