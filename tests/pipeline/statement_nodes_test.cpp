// A walk over statements, beside one over the whole tree.
#include <gtest/gtest.h>

#include "pipeline/statement_nodes.h"

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include "pipeline/follow_stack.h"

#include "support/event_recorder.h"
#include "support/large_documents.h"
#include "support/memory_in_use.h"
#include "support/mistaken_samples.h"
#include "support/parsing.h"
#include "support/stderr_capture.h"

#include "support/statement_walk.h"

using vorn::parsers::toml::FollowStack;

namespace
{

// What a walk shows.
struct Shown
{
    bool result;
    test::Events events;
    test::ErrorKinds errors;
    ANTLR3_UINT32 errorCount;
    std::string displayed;
};

Shown showStatements(const std::string& text)
{
    const test::StderrCapture standardError;
    test::EventRecorder visitor;
    test::StatementWalk walk(text, visitor);
    const pANTLR3_BASE_RECOGNIZER recogniser = walk.recogniser();
    Shown shown = {};
    test::showErrors(recogniser, shown.errors);
    shown.result = walk.walk();
    shown.events = visitor.events();
    shown.errorCount = recogniser->getNumberOfSyntaxErrors(recogniser);
    shown.displayed = standardError.text();
    return shown;
}

Shown showWhole(const std::string& text)
{
    const test::StderrCapture standardError;
    test::EventRecorder visitor;
    test::TreeWalkOf walk(text);
    const pANTLR3_BASE_RECOGNIZER recogniser = walk.recogniser();
    Shown shown = {};
    test::showErrors(recogniser, shown.errors);
    shown.result = walk.walk(visitor);
    shown.events = visitor.events();
    shown.errorCount = recogniser->getNumberOfSyntaxErrors(recogniser);
    shown.displayed = standardError.text();
    return shown;
}

std::vector<std::string> samples()
{
    std::vector<std::string> texts = test::mistakenSamples();
    texts.insert(texts.end(), test::unusualDocuments.begin(), test::unusualDocuments.end());
    texts.insert(texts.end(),
                 {"", "# c", "\n\n", "a = 1\n", "\n \na = 1", test::mixedDocument(3000),
                  // What ends a document, or should.
                  "a = 1 }", "a = 1\nb 1 }", "a = {} }", "a = {}\n } }", "a = {}\nb = 1 ] ]",
                  "a.b 1\n[t] ]\n"});
    return texts;
}

// Place, type and text of a node.
using Node = std::tuple<ANTLR3_MARKER, ANTLR3_UINT32, std::string>;

Node nodeAt(pANTLR3_COMMON_TREE_NODE_STREAM nodes)
{
    const pANTLR3_INT_STREAM stream = nodes->tnstream->istream;
    const ANTLR3_UINT32 type = stream->_LA(stream, 1);
    const pANTLR3_BASE_TREE node = nodes->tnstream->_LT(nodes->tnstream, 1);
    return {stream->index(stream), type, orEmpty(vorn::parsers::toml::textOf(node))};
}

// All that come, from the stream's start to the end of the input.
std::vector<Node> nodesOf(pANTLR3_COMMON_TREE_NODE_STREAM nodes)
{
    const pANTLR3_INT_STREAM stream = nodes->tnstream->istream;
    std::vector<Node> all;
    for (;;)
    {
        all.push_back(nodeAt(nodes));
        if (std::get<ANTLR3_UINT32>(all.back()) == ANTLR3_TOKEN_EOF)
        {
            return all;
        }
        stream->consume(stream);
    }
}

// The most memory that a walk holds at any call, more than before it.
std::size_t heldByWalk(const std::string& text)
{
    std::size_t max = 0;
    class Visitor : public test::OperationVisitor
    {
    public:
        explicit Visitor(std::size_t& max) : max_(max) {}

    private:
        void called(const char*) override { max_ = std::max(max_, test::memoryInUse()); }
        void called(const char*, const char*) override {}

        std::size_t& max_;
    } visitor(max);
    test::StatementWalk walk(text, visitor);
    const FollowStack follows(walk.recogniser());
    test::ErrorKinds errors;
    test::showErrors(walk.recogniser(), errors);
    errors.reserve(3 * text.size());
    const std::size_t before = test::memoryInUse();
    max = before;
    EXPECT_TRUE(walk.walk());
    return max - before;
}

struct Thrown
{
};

} // namespace

TEST(StatementNodes, areWalkedLikeTheWholeTree)
{
    std::size_t errors = 0;
    std::size_t walked = 0;
    for (const std::string& text : samples())
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 100)));
        const Shown expected = showWhole(text);
        const Shown shown = showStatements(text);
        EXPECT_EQ(shown.result, expected.result);
        EXPECT_EQ(shown.events, expected.events);
        EXPECT_EQ(shown.errors, expected.errors);
        EXPECT_EQ(shown.errorCount, expected.errorCount);
        EXPECT_EQ(shown.displayed, expected.displayed);
        errors += expected.errors.size();
        walked += expected.result ? 1 : 0;
    }
    EXPECT_GT(errors, 200u);
    EXPECT_GT(walked, 200u);
}

// In a recovery no line is passed over, so that all nodes of the document come.
TEST(StatementNodes, areThoseOfTheWholeTreeInTheirPlaces)
{
    const test::StderrCapture quiet;
    for (const std::string& text : samples())
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 100)));
        const test::TreeWalkOf whole(text);
        const std::vector<Node> expected = nodesOf(whole.nodes());
        test::EventRecorder visitor;
        const test::StatementWalk statements(text, visitor);
        statements.recogniser()->state->errorRecovery = ANTLR3_TRUE;
        EXPECT_EQ(nodesOf(statements.nodes()), expected);
        EXPECT_EQ(visitor.events(), test::Events());
    }
}

TEST(StatementNodes, areForTheVisitorWhereTheirLinesAreValid)
{
    test::EventRecorder visitor;
    const std::string text = "a = 1\nb = 2\nc 3\nd = 4\n";
    const test::StatementWalk statements(text, visitor);
    const pANTLR3_INT_STREAM stream = statements.stream();
    EXPECT_EQ(visitor.events(), test::Events());
    EXPECT_EQ(stream->_LA(stream, 1), ANTLR3_TOKEN_INVALID); // the third line
    EXPECT_EQ(visitor.events().size(), 8u);
    while (stream->_LA(stream, 1) != ANTLR3_TOKEN_EOF)
    {
        stream->consume(stream);
    }
    EXPECT_EQ(visitor.events().size(), 12u);
    EXPECT_EQ(visitor.events().back(), "endKeyValue");
}

// The runtime looks ahead by two, and goes back to where it has been in a statement.
TEST(StatementNodes, canBeLookedAtAgainInAStatement)
{
    const std::string text = "a 1\nb = {}\nc = [1 2]\n";
    test::EventRecorder visitor;
    const test::StatementWalk statements(text, visitor);
    const pANTLR3_INT_STREAM stream = statements.stream();
    std::size_t looks = 0;
    while (stream->_LA(stream, 1) != ANTLR3_TOKEN_EOF)
    {
        const Node here = nodeAt(statements.nodes());
        const ANTLR3_UINT32 ahead = stream->_LA(stream, 2);
        stream->seek(stream, stream->index(stream));
        EXPECT_EQ(nodeAt(statements.nodes()), here);
        const ANTLR3_MARKER place = stream->index(stream);
        stream->consume(stream);
        // A statement ends with its line break.
        if (std::get<ANTLR3_UINT32>(here) != NL)
        {
            EXPECT_EQ(stream->_LA(stream, 1), ahead);
            stream->seek(stream, place);
            EXPECT_EQ(nodeAt(statements.nodes()), here);
            stream->consume(stream);
            ++looks;
        }
        EXPECT_EQ(stream->index(stream), place + 1);
    }
    EXPECT_GT(looks, 20u);
}

// The runtime takes it as one too many before the end of the document.
TEST(StatementNodes, areOneWhereTheDocumentHasFailed)
{
    const test::StderrCapture quiet;
    std::size_t failed = 0;
    for (const std::string& text : samples())
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 100)));
        test::EventRecorder visitor;
        test::StatementWalk statements(text, visitor);
        if (!statements.hasFailed())
        {
            continue;
        }
        ++failed;
        EXPECT_EQ(nodeAt(statements.nodes()), Node(0, ANTLR3_TOKEN_INVALID, "Tree Error Node"));
        EXPECT_EQ(statements.stream()->_LA(statements.stream(), 2), ANTLR3_TOKEN_EOF);
        test::ErrorKinds errors;
        test::collectErrors(statements.recogniser(), errors);
        EXPECT_TRUE(statements.walk());
        EXPECT_EQ(errors, test::ErrorKinds({test::unwanted}));
        EXPECT_EQ(visitor.events(), test::Events({"beginDocument", "endDocument"}));
    }
    EXPECT_GT(failed, 100u);
}

TEST(StatementNodes, takeNoMemoryThatGrowsWithTheDocument)
{
    const test::StderrCapture quiet;
    for (const std::string line : {"a.b 1\n", "a = {}\n", "b = 2\na.b 1\n", "b = 2\na = {}\n",
                                   "[[t]\nc = {d = 1,}\n", "a.b. = [1 2]\n"})
    {
        SCOPED_TRACE(testing::PrintToString(line));
        const std::size_t few = heldByWalk(test::repeated(line, 200));
        const std::size_t many = heldByWalk(test::repeated(line, 10'000));
        EXPECT_LE(many, few + 4096);
    }
}

// The runtime does that for each error, which takes long in deep arrays.
TEST(StatementNodes, areMadeWithoutGoingOverAllThatMayFollow)
{
    static std::size_t looks = 0;
    for (const std::string opening : {"[x,", "{a 1, b=", "[[],"})
    {
        SCOPED_TRACE(opening);
        const test::StderrCapture quiet;
        const std::string text = test::enclosed("a=", opening, 100, "\nb.c 1\n");
        test::EventRecorder visitor;
        test::StatementWalk statements(text, visitor);
        const pANTLR3_STACK following = statements.pipeline().recogniser()->state->following;
        following->get = [](pANTLR3_STACK stack, ANTLR3_INTKEY key)
        {
            ++looks;
            return stack->vector->get(stack->vector, static_cast<ANTLR3_UINT32>(key));
        };
        looks = 0;
        statements.walk();
        EXPECT_EQ(looks, 0u);
    }
}

TEST(StatementNodes, areFreedWhereAVisitorThrows)
{
    const test::StderrCapture quiet;
    const std::string text = "a = 1\na.b 2\nc = [1 2]\n[t]\nd = {e = 1}\n[[t]\nf = 'x'\n";
    const std::size_t calls = showStatements(text).events.size();
    ASSERT_GT(calls, 20u);
    std::size_t before = 0;
    for (int round = 0; round < 3; ++round)
    {
        for (std::size_t last = 1; last <= calls; ++last)
        {
            test::EventRecorder visitor;
            visitor.onEvent(
                [&](const std::string&)
                {
                    if (visitor.events().size() == last)
                    {
                        throw Thrown();
                    }
                });
            test::StatementWalk statements(text, visitor);
            const FollowStack follows(statements.recogniser());
            EXPECT_THROW(statements.walk(), Thrown);
            EXPECT_EQ(visitor.events().size(), last);
        }
        // (The first round has the heap ready for the others.)
        const std::size_t now = test::memoryInUse();
        if (round > 0)
        {
            EXPECT_LE(now, before + 1024);
        }
        before = now;
    }
}
