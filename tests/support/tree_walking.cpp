#include "tree_walking.h"

#include <gtest/gtest.h>

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
    for (const ReportedCase& one : cases)
    {
        SCOPED_TRACE(one.trees);
        const TreeWalk walk = walkTrees(one.trees);
        EXPECT_EQ(walk.events, one.events);
        EXPECT_EQ(walk.result, one.result);
        EXPECT_EQ(walk.errors, one.errors);
        EXPECT_EQ(walk.errorCount, one.errors.size());
    }
}

void expectWalked(const std::vector<TreeCase>& cases)
{
    for (const TreeCase& one : cases)
    {
        expectReported({{one.trees, one.events, {}, true}});
    }
}

void expectBrokenOff(const std::vector<TreeCase>& cases)
{
    for (const TreeCase& one : cases)
    {
        expectReported({{one.trees, one.events, {}, false}});
    }
}

} // namespace test
