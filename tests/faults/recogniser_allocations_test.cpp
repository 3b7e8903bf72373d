// Constructors of recognisers for which there is no memory.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "failing_memory.h"
#include "quiet_log.h"
#include "support/counting_visitor.h"

#include "support/tree_pipeline.h"

using test::Failing;
using test::FailingBlock;
using test::FailingMemory;

namespace
{

std::string unmade; // the object that the runtime does not make

struct Block
{
    std::string of;
    std::size_t size;
    int count; // that a constructor asks for, at least
};

// Those without which the runtime makes objects nevertheless.  (It ends the process for want of
// the base recogniser, its state, the tokens' factory, or the tables of the pools.)
const std::vector<Block> blocksOfParser = {
    {"stacks", sizeof(ANTLR3_STACK), 4},
    {"the trees' factory", sizeof(ANTLR3_ARBORETUM), 1},
    {"the vectors' factories", sizeof(ANTLR3_VECTOR_FACTORY), 2},
    {"tokens", sizeof(ANTLR3_COMMON_TOKEN) * ANTLR3_FACTORY_POOL_SIZE, 1},
    {"trees", sizeof(ANTLR3_COMMON_TREE) * ANTLR3_FACTORY_POOL_SIZE, 1},
    {"vectors", sizeof(ANTLR3_VECTOR) * ANTLR3_FACTORY_VPOOL_SIZE, 2},
};

// Has `make` make a recogniser for which such blocks fail.
template <typename Make>
void expectNone(const Block& block, Failing failing, Make make)
{
    for (int number = 1; number <= block.count; ++number)
    {
        SCOPED_TRACE(block.of + ", " + std::to_string(number) +
                     (failing == Failing::once ? "" : " and all after it"));
        const FailingBlock memory(block.size, number, failing);
        const bool isMade = make() != nullptr;
        EXPECT_TRUE(memory.hasFailed());
        EXPECT_FALSE(isMade);
        EXPECT_EQ(memory.blocks(), 0);
    }
}

// Has `make` make a recogniser without its context, and without this object.
template <typename Make>
void expectNoneWithout(const std::string& object, Make make)
{
    SCOPED_TRACE(object);
    {
        const FailingMemory memory(1);
        EXPECT_EQ(make(), nullptr);
        EXPECT_TRUE(memory.hasFailed());
        EXPECT_EQ(memory.blocks(), 0);
    }
    const FailingMemory memory(0);
    unmade = object;
    EXPECT_EQ(make(), nullptr);
    unmade = "";
    EXPECT_EQ(memory.blocks(), 0);
}

} // namespace

extern "C"
{
    pANTLR3_PARSER __real_antlr3ParserNewStream(ANTLR3_UINT32 hint, pANTLR3_TOKEN_STREAM tokens,
                                                pANTLR3_RECOGNIZER_SHARED_STATE state);
    pANTLR3_PARSER __wrap_antlr3ParserNewStream(ANTLR3_UINT32 hint, pANTLR3_TOKEN_STREAM tokens,
                                                pANTLR3_RECOGNIZER_SHARED_STATE state)
    {
        return unmade == "parser" ? nullptr : __real_antlr3ParserNewStream(hint, tokens, state);
    }

    pANTLR3_TREE_PARSER __real_antlr3TreeParserNewStream(ANTLR3_UINT32 hint,
                                                         pANTLR3_COMMON_TREE_NODE_STREAM nodes,
                                                         pANTLR3_RECOGNIZER_SHARED_STATE state);
    pANTLR3_TREE_PARSER __wrap_antlr3TreeParserNewStream(ANTLR3_UINT32 hint,
                                                         pANTLR3_COMMON_TREE_NODE_STREAM nodes,
                                                         pANTLR3_RECOGNIZER_SHARED_STATE state)
    {
        return unmade == "tree" ? nullptr : __real_antlr3TreeParserNewStream(hint, nodes, state);
    }

    pANTLR3_BASE_TREE_ADAPTOR __real_ANTLR3_TREE_ADAPTORNew(pANTLR3_STRING_FACTORY strings);
    pANTLR3_BASE_TREE_ADAPTOR __wrap_ANTLR3_TREE_ADAPTORNew(pANTLR3_STRING_FACTORY strings)
    {
        return unmade == "adaptor" ? nullptr : __real_ANTLR3_TREE_ADAPTORNew(strings);
    }
}

TEST(RecogniserAllocations, ofAParser)
{
    const std::string text = "a = 1\n";
    const test::ParserPipeline pipeline(text);
    const auto make = [&pipeline] { return TomlParserNew(pipeline.tokens()); };
    expectNoneWithout("parser", make);
    expectNoneWithout("adaptor", make);
    for (const Block& block : blocksOfParser)
    {
        expectNone(block, Failing::once, make);
        expectNone(block, Failing::fromThere, make);
    }
    const std::unique_ptr<TomlParser, test::FreeRecogniser> parser(make());
    EXPECT_NE(parser, nullptr);
}

TEST(RecogniserAllocations, ofATreeParser)
{
    const test::TreePipeline pipeline("EOF");
    const auto make = [&pipeline] { return TomlTreeNew(pipeline.nodes()); };
    expectNoneWithout("tree", make);
    expectNone({"its stack", sizeof(ANTLR3_STACK), 1}, Failing::once, make);
    const std::unique_ptr<TomlTree, test::FreeRecogniser> tree(make());
    EXPECT_NE(tree, nullptr);
}

// The constructor has the node stream make its stack anew.
TEST(RecogniserAllocations, ofATreeParserLeaveANodeStreamThatCanBeFreed)
{
    for (const int number : {1, 2})
    {
        const test::TreePipeline pipeline("EOF");
        const FailingBlock memory(sizeof(ANTLR3_STACK), number, Failing::fromThere);
        EXPECT_EQ(TomlTreeNew(pipeline.nodes()), nullptr);
        EXPECT_EQ(pipeline.nodes()->nodeStack, nullptr);
    }
}

// A state that is shared stays with whom it came from.
TEST(RecogniserAllocations, leaveASharedState)
{
    const std::string text = "a = 1\n";
    const test::ParserPipeline parser(text);
    const pANTLR3_RECOGNIZER_SHARED_STATE parserState = parser.recogniser()->state;
    expectNoneWithout("adaptor", [&] { return TomlParserNewSSD(parser.tokens(), parserState); });
    EXPECT_EQ(parserState->tokenNames, TomlParserTokenNames);

    const test::TreePipeline tree("EOF");
    const pANTLR3_RECOGNIZER_SHARED_STATE treeState = tree.recogniser()->state;
    {
        const FailingBlock memory(sizeof(ANTLR3_STACK), 1);
        EXPECT_EQ(TomlTreeNewSSD(tree.nodes(), treeState), nullptr);
    }
    EXPECT_EQ(treeState->tokenNames, TomlTreeTokenNames);
    EXPECT_EQ(treeState->following, nullptr);
}

TEST(RecogniserAllocations, areLogged)
{
    for (const auto& [constructor, line] : std::vector<std::pair<std::string, std::string>>{
             {"parser", "Failed to create toml parser"}, {"tree", "Failed to create toml tree"}})
    {
        SCOPED_TRACE(line);
        test::clearLog();
        test::CountingVisitor visitor;
        unmade = constructor;
        const bool accepted = vorn::parsers::toml::visitTomlTree(std::string("a = 1"), visitor);
        unmade = "";
        EXPECT_FALSE(accepted);
        EXPECT_EQ(visitor.calls, 0u);
        EXPECT_EQ(test::loggedFormats(), std::vector<std::string>{line});
    }
}
