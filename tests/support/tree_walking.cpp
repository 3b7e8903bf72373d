#include "tree_walking.h"

#include <gtest/gtest.h>

#include "tree_samples.h"

#include "tree_pipeline.h"

namespace test
{

TreeWalk walkTrees(const std::string& trees)
{
    const TreePipeline pipeline(trees);
    const pANTLR3_BASE_RECOGNIZER recogniser = pipeline.recogniser();

    TreeWalk walk;
    collectErrors(recogniser, walk.errors);
    EventRecorder visitor;
    walk.result = pipeline.tree()->document(pipeline.tree(), visitor);
    walk.events = visitor.events();
    walk.errorCount = recogniser->getNumberOfSyntaxErrors(recogniser);
    return walk;
}

void expectReported(const std::vector<ReportedCase>& cases)
{
    for (const ReportedCase& expected : cases)
    {
        SCOPED_TRACE(expected.trees);
        const TreeWalk walk = walkTrees(expected.trees);
        EXPECT_EQ(walk.events, expected.events);
        EXPECT_EQ(walk.result, expected.result);
        EXPECT_EQ(walk.errors, expected.errors);
        EXPECT_EQ(walk.errorCount, expected.errors.size());
    }
}

void expectWalked(const std::vector<TreeCase>& cases)
{
    for (const TreeCase& expected : cases)
    {
        expectReported({{expected.trees, expected.events, {}, true}});
    }
}

void expectBrokenOff(const std::vector<TreeCase>& cases)
{
    for (const TreeCase& expected : cases)
    {
        expectReported({{expected.trees, expected.events, {}, false}});
    }
}

void expectReportedValue(const std::string& value, const Events& events, const ErrorKinds& errors)
{
    const std::string pairTree = "KEYVAL(" + keyA + ", " + value + ")";
    expectReported({
        {pairTree + end, document({pair(bare("a"), events)}), errors},
        {pairTree + R"( NL "\n" )" + a + end, document({pair(bare("a"), events), aIsOne}), errors},
    });
}

void expectReportedKey(const std::string& key, const Events& events, const ErrorKinds& errors)
{
    expectReported({
        {"KEYVAL(" + key + ", " + one + ")" + end, document({pair(events, integer("1"))}), errors},
        {"HEADER_TABLE(" + key + ")" + end, document({table(events)}), errors},
        {"HEADER_ARRAY_TABLE(" + key + ")" + end, document({arrayTable(events)}), errors},
        {"HEADER_TABLE(KEY_DOTTED(" + key + ", " + keyA + "))" + end,
         document({table(dotted({events, bare("a")}))}), errors},
    });
}

} // namespace test
