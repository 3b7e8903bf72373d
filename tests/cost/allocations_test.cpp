// How often a reading asks for memory.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>

#include <cstdlib>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "support/allocation_counter.h"
#include "support/counting_visitor.h"
#include "support/large_documents.h"
#include "support/temporary_directory.h"

using vorn::parsers::toml::FilePath;
using vorn::parsers::toml::visitTomlTree;

namespace
{

constexpr long mostAllocations = 8;

struct Use
{
    long allocations;
    long releases;
};

// Of a text or a file.
template <typename Source>
Use useOf(const Source& source)
{
    test::CountingVisitor visitor;
    const test::AllocationCounter counter;
    const bool accepted = visitTomlTree(source, visitor);
    const Use use = {counter.allocations(), counter.releases()};
    EXPECT_TRUE(accepted);
    return use;
}

void expectFew(const std::string& what, const std::string& text)
{
    SCOPED_TRACE(what + ", " + std::to_string(text.size()) + " bytes");
    const Use use = useOf(text);
    EXPECT_LE(use.allocations, mostAllocations);
    EXPECT_EQ(use.allocations, use.releases);
}

} // namespace

TEST(Allocations, areCounted)
{
    const test::AllocationCounter counter;
    void* volatile memory = std::malloc(1);
    std::free(memory);
    EXPECT_EQ(counter.allocations(), 1);
    memory = ::operator new(1);
    ::operator delete(memory);
    EXPECT_EQ(counter.allocations(), 2);
    EXPECT_EQ(counter.releases(), 2);

    // A document with a mistake is read by the recognisers, which take memory for all.
    test::CountingVisitor visitor;
    const test::AllocationCounter pipeline;
    EXPECT_FALSE(visitTomlTree(test::repeated("a = 1\n", 1000) + "a = 1", visitor));
    EXPECT_GT(pipeline.allocations(), mostAllocations);
}

TEST(Allocations, areFewForDocumentsOfAnySize)
{
    expectFew("nothing", "");
    expectFew("a comment", "# c");
    for (const std::size_t size : {10u, 1000u, 100u * 1000, 1000u * 1000, 10u * 1000 * 1000})
    {
        expectFew("mixed lines", test::mixedDocument(size));
        expectFew("pairs", test::repeated("a = 1\n", size / 6 + 1));
        expectFew("line breaks", test::repeated(" \n", size / 2));
        expectFew("a long array", "a = [1" + test::repeated(", 1", size / 3) + "]\n");
        expectFew("a long string", "a = '" + std::string(size, 'x') + "'\n");
        expectFew("a long key", std::string(size, 'x') + " = 1\n");
        expectFew("many dotted keys", test::repeated("a.", size / 2) + "a = 1\n");
        expectFew("strings that grow",
                  [size]
                  {
                      std::string text;
                      for (std::size_t length = 1; text.size() < size; length = length * 3 / 2 + 1)
                      {
                          text += "a = '" + std::string(length, 'x') + "'\n";
                      }
                      return text;
                  }());
    }
}

TEST(Allocations, areNoneForASmallFileAndOneMoreForALargerOne)
{
    const test::TemporaryDirectory directory;
    for (const std::size_t size : {0u, 1024u, 1900u, 3000u, 100'000u, 10'000'000u})
    {
        SCOPED_TRACE(size);
        const std::string text = test::mixedDocument(size);
        const Use use = useOf(FilePath(directory.write("file.toml", text)));
        EXPECT_EQ(use.allocations, size <= 1900 ? 0 : useOf(text).allocations + 1);
        EXPECT_EQ(use.allocations, use.releases);
    }
}

TEST(Allocations, areFewForDocumentsOfAnyDepth)
{
    const std::vector<std::pair<std::string, std::string>> brackets = {
        {"[", "]"}, {"{a=", "}"}, {"[{a=", "}]"}, {"[1,", "]"}};
    for (const std::size_t levels : {1u, 10u, 1000u, 100u * 1000, 1000u * 1000})
    {
        for (const auto& [opening, closing] : brackets)
        {
            expectFew(std::to_string(levels) + " levels of " + opening,
                      test::nestedDocument(opening, closing, levels));
        }
    }
    expectFew("five million levels", test::nestedDocument("[", "]", 5 * 1000 * 1000));
}

TEST(Allocations, areTakenBackWhenTheVisitorThrows)
{
    struct Stop
    {
    };
    class ThrowingVisitor : public test::CountingVisitor
    {
    public:
        void endDocument() override { throw Stop(); }
    };
    const std::string text = test::mixedDocument(1000 * 1000);
    // The first exception of a thread sets up what all of them share.
    for (int round = 0; round < 2; ++round)
    {
        ThrowingVisitor visitor;
        const test::AllocationCounter counter;
        try
        {
            visitTomlTree(text, visitor);
            ADD_FAILURE() << "the exception did not arrive";
        }
        catch (const Stop&)
        {
        }
        if (round > 0)
        {
            EXPECT_EQ(counter.allocations(), counter.releases());
        }
    }
}
