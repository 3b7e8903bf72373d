// The node of a walk's last error, after the trees have gone.
#include <gtest/gtest.h>

#include "pipeline/kept_node.h"

#include <algorithm>
#include <string>
#include <vector>

#include "pipeline/error_display.h"

#include "support/event_recorder.h"
#include "support/memory_in_use.h"
#include "support/stderr_capture.h"
#include "support/tree_samples.h"

#include "support/statement_walk.h"
#include "support/tree_pipeline.h"

using vorn::parsers::toml::characters;
using vorn::parsers::toml::forgetEarlierErrors;
using vorn::parsers::toml::KeptNode;

namespace
{

pANTLR3_BASE_TREE nodeOf(pANTLR3_BASE_RECOGNIZER walker)
{
    return static_cast<pANTLR3_BASE_TREE>(walker->state->exception->token);
}

// What the runtime displays for the error that a walker has.
std::string displayed(pANTLR3_BASE_RECOGNIZER walker)
{
    const test::StderrCapture standardError;
    walker->displayRecognitionError(walker, walker->state->tokenNames);
    return standardError.text();
}

// What two walks over a document display, the one over its statements first.
struct BothDisplays
{
    std::string own;
    std::string runtimes;
};

BothDisplays displaysFor(const std::string& text)
{
    const test::StderrCapture standardError;
    BothDisplays displays;
    test::ErrorKinds errors;
    test::EventRecorder visitor;
    {
        test::StatementWalk statements(text, visitor);
        test::showErrors(statements.recogniser(), errors);
        statements.walk();
        displays.own = standardError.text();
    }
    test::TreeWalkOf whole(text);
    test::showErrors(whole.recogniser(), errors);
    whole.walk(visitor);
    displays.runtimes = standardError.text().substr(displays.own.size());
    return displays;
}

} // namespace

// The second line's error is displayed with the node of the first one's.
TEST(KeptNode, isWhatTheRuntimeReportsAgainInAnotherStatement)
{
    const std::string again = "UnwantedTokenException, at offset 0, near Tree Error Node : "
                              "Extraneous input - expected <EOF>\n";
    for (const std::string text : {"a={c\n]", "a = {b 1}\n\n]", "a={c\nb.c 2\n]", "a={c\nb = 1\n]"})
    {
        SCOPED_TRACE(testing::PrintToString(text));
        const BothDisplays displays = displaysFor(text);
        EXPECT_EQ(displays.own, displays.runtimes);
        EXPECT_NE(displays.own.find(again), std::string::npos) << displays.own;
    }
}

TEST(KeptNode, isDisplayedLikeTheOneThatHasGone)
{
    // (For a set of types, which an integer has, the runtime's display does not free what it
    // makes.)
    const std::string pair = "KEYVAL(" + test::keyA + ", ";
    for (const std::string& trees :
         {pair + R"(VAL_BOOL(BARE_KEY "b")) EOF)", pair + "VAL_ARRAY(KEYVAL)) EOF",
          pair + "VAL_BOOL(VAL_ARRAY(" + test::one + ", " + test::one + "))) EOF",
          std::string(R"(DEC_INT "1" EOF)")})
    {
        SCOPED_TRACE(trees);
        const test::TreePipeline pipeline(trees);
        const pANTLR3_BASE_RECOGNIZER walker = pipeline.recogniser();
        KeptNode kept(pipeline.nodes()->stringFactory);
        {
            const test::StderrCapture quiet;
            test::EventRecorder visitor;
            pipeline.tree()->document(pipeline.tree(), visitor);
        }
        ASSERT_NE(walker->state->exception, nullptr);
        const pANTLR3_BASE_TREE node = nodeOf(walker);
        const std::string expected = displayed(walker);
        kept.replaceIn(walker);
        EXPECT_NE(nodeOf(walker), node);
        EXPECT_EQ(displayed(walker), expected);
        // Again, as after a statement without an error.
        kept.replaceIn(walker);
        EXPECT_EQ(displayed(walker), expected);
        vorn::parsers::toml::prepareDisplay(pipeline.tree()->pTreeParser);
        EXPECT_EQ(displayed(walker), expected);
    }
}

TEST(KeptNode, hasTheTextAndTheColumnOfALexedNode)
{
    const std::string text = "a = 1\n   bc = [2, 'x']\n";
    const test::TreeWalkOf walk(text);
    const pANTLR3_BASE_RECOGNIZER walker = walk.recogniser();
    const pANTLR3_INT_STREAM stream = walk.stream();
    KeptNode kept(walk.nodes()->stringFactory);
    std::vector<std::string> texts;
    std::vector<ANTLR3_UINT32> columns;
    for (; stream->_LA(stream, 1) != ANTLR3_TOKEN_EOF; stream->consume(stream))
    {
        walker->exConstruct(walker);
        const pANTLR3_BASE_TREE node = nodeOf(walker);
        const std::string expected = characters(node->toStringTree(node));
        const ANTLR3_UINT32 column = node->getCharPositionInLine(node);
        kept.replaceIn(walker);
        const pANTLR3_BASE_TREE replaced = nodeOf(walker);
        ASSERT_NE(replaced, node);
        EXPECT_EQ(characters(replaced->toStringTree(replaced)), expected);
        EXPECT_EQ(replaced->getCharPositionInLine(replaced), column);
        texts.push_back(expected);
        columns.push_back(column);
    }
    EXPECT_NE(std::find(texts.begin(), texts.end(), "'x'"), texts.end());
    EXPECT_NE(std::find(columns.begin(), columns.end(), 12u), columns.end());
}

TEST(KeptNode, takesNothingWhereThereIsNoError)
{
    const test::TreePipeline pipeline(test::a + test::end);
    const pANTLR3_BASE_RECOGNIZER walker = pipeline.recogniser();
    const ANTLR3_UINT32 strings = pipeline.nodes()->stringFactory->index;
    const std::size_t before = test::memoryInUse();
    KeptNode kept(pipeline.nodes()->stringFactory);
    kept.replaceIn(walker);
    EXPECT_EQ(walker->state->exception, nullptr);
    EXPECT_EQ(test::memoryInUse(), before);
    EXPECT_EQ(pipeline.nodes()->stringFactory->index, strings);
}

// Each text takes the place of the one before.
TEST(KeptNode, holdsOneText)
{
    const test::TreePipeline pipeline(test::a + test::end);
    const pANTLR3_BASE_RECOGNIZER walker = pipeline.recogniser();
    KeptNode kept(pipeline.nodes()->stringFactory);
    const auto keep = [&](int times)
    {
        for (int count = 0; count < times; ++count)
        {
            walker->exConstruct(walker);
            forgetEarlierErrors(walker);
            kept.replaceIn(walker);
        }
        return test::memoryInUse();
    };
    const std::size_t few = keep(10);
    EXPECT_LE(keep(10'000), few + 1024);
}
