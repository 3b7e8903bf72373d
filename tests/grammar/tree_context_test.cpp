// The tree parser's context: how it is made, what it installs, and its operations.
#include <gtest/gtest.h>

#include <string>

#include "support/event_lists.h"
#include "support/event_recorder.h"
#include "support/recognition_errors.h"

#include "support/tree_pipeline.h"

namespace
{

using namespace test;

const std::string wrongInteger =
    R"(KEYVAL(KEY_BARE(BARE_KEY "a"), VAL_INTEGER(FLOAT "1.5")) NL "\n" EOF)";

unsigned errorCount(const TreePipeline& pipeline)
{
    return pipeline.recogniser()->getNumberOfSyntaxErrors(pipeline.recogniser());
}

// The names that the display is given.
pANTLR3_UINT8* displayedNames = nullptr;

} // namespace

TEST(TreeContext, readsTheNodeStreamThatItIsMadeFor)
{
    const TreePipeline pipeline("EOF");
    const pANTLR3_TREE_PARSER parser = pipeline.tree()->pTreeParser;
    EXPECT_EQ(parser->getTreeNodeStream(parser), pipeline.nodes());
}

TEST(TreeContext, namesNodesByItsOwnTable)
{
    const TreePipeline pipeline(wrongInteger);
    EXPECT_EQ(pipeline.recogniser()->state->tokenNames, TomlTreeTokenNames);
    displayedNames = nullptr;
    pipeline.recogniser()->displayRecognitionError =
        [](pANTLR3_BASE_RECOGNIZER, pANTLR3_UINT8* names) { displayedNames = names; };
    EventRecorder visitor;
    EXPECT_TRUE(pipeline.tree()->document(pipeline.tree(), visitor));
    EXPECT_EQ(displayedNames, TomlTreeTokenNames);
}

TEST(TreeContext, namesItsGrammarFile)
{
    const TreePipeline pipeline("EOF");
    EXPECT_STREQ(pipeline.tree()->getGrammarFileName(), "src/grammar/TomlTree.g");
}

TEST(TreeContext, sharesTheStateThatItIsMadeWith)
{
    const TreePipeline first(wrongInteger);
    const pANTLR3_RECOGNIZER_SHARED_STATE state = first.recogniser()->state;
    const pTomlTree second = TomlTreeNewSSD(first.nodes(), state);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->pTreeParser->rec->state, state);
    ErrorKinds errors;
    collectErrors(second->pTreeParser->rec, errors);
    EventRecorder visitor;
    EXPECT_TRUE(second->document(second, visitor));
    EXPECT_EQ(visitor.events(), document({pair(bare("a"), integer("1.5"))}));
    EXPECT_EQ(errorCount(first), 1u);

    // The state stays with the first.
    second->pTreeParser->rec->state = nullptr;
    second->free(second);
}

TEST(TreeContext, aTreeParserMadeWithoutAStateHasItsOwn)
{
    const TreePipeline first(wrongInteger);
    const pTomlTree second = TomlTreeNewSSD(first.nodes(), nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(second->pTreeParser->rec->state, nullptr);
    EXPECT_NE(second->pTreeParser->rec->state, first.recogniser()->state);
    second->free(second);
}

TEST(TreeContext, resetForgetsTheErrors)
{
    const TreePipeline pipeline(wrongInteger);
    ErrorKinds errors;
    collectErrors(pipeline.recogniser(), errors);
    EventRecorder visitor;
    EXPECT_TRUE(pipeline.tree()->document(pipeline.tree(), visitor));
    EXPECT_EQ(errorCount(pipeline), 1u);

    pipeline.tree()->reset(pipeline.tree());
    EXPECT_EQ(errorCount(pipeline), 0u);
    EXPECT_EQ(errors.size(), 1u);
    EXPECT_EQ(pipeline.recogniser()->state->errorRecovery, ANTLR3_FALSE);
}

// The visitor may leave a walk by throwing; the recogniser can still be freed.
TEST(TreeContext, exceptionsOfTheVisitorPassThrough)
{
    const TreePipeline pipeline(R"(KEYVAL(KEY_BARE(BARE_KEY "a"), VAL_ARRAY) NL "\n" EOF)");
    EventRecorder visitor;
    visitor.onEvent(
        [](const std::string& event)
        {
            if (event == "beginArray")
            {
                throw std::runtime_error(event);
            }
        });
    EXPECT_THROW(pipeline.tree()->document(pipeline.tree(), visitor), std::runtime_error);
    EXPECT_EQ(visitor.events(), brokenOff({{"beginKeyValue"}, bare("a"), {"beginArray"}}));
}
