// The recovery from errors with the library's stack, beside that with the runtime's own.
#include <gtest/gtest.h>

#include "pipeline/follow_stack.h"

#include <optional>
#include <string>
#include <vector>

#include "support/event_recorder.h"
#include "support/large_documents.h"
#include "support/recognition_errors.h"
#include "support/refused_documents.h"
#include "support/tree_samples.h"
#include "support/tree_text.h"
#include "support/types_of_set.h"

#include "support/parser_pipeline.h"
#include "support/tree_pipeline.h"

using test::Types;
using test::typesOf;
using vorn::parsers::toml::FollowStack;

namespace
{

// What a recogniser may recover at when an error is displayed.
struct Recovery
{
    std::string error;
    ANTLR3_UINT32 depth;
    Types types;
    Types ruleTypes;
};

bool operator==(const Recovery& a, const Recovery& b)
{
    return a.error == b.error && a.depth == b.depth && a.types == b.types &&
           a.ruleTypes == b.ruleTypes;
}

void PrintTo(const Recovery& recovery, std::ostream* output)
{
    *output << recovery.error << " below " << recovery.depth << " rules, recovers at "
            << testing::PrintToString(recovery.types);
}

using Recoveries = std::vector<Recovery>;

void collectRecoveries(pANTLR3_BASE_RECOGNIZER recogniser, Recoveries& recoveries)
{
    recogniser->state->userp = &recoveries;
    recogniser->displayRecognitionError = [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*)
    {
        const pANTLR3_STACK following = failed->state->following;
        static_cast<Recoveries*>(failed->state->userp)
            ->push_back({test::errorKind(failed), following->size(following),
                         typesOf(failed->computeErrorRecoverySet(failed)),
                         typesOf(failed->computeCSRuleFollow(failed))});
    };
}

struct Parsing
{
    std::string trees;
    Recoveries recoveries;
};

Parsing parse(const std::string& text, bool replacesStack)
{
    const test::ParserPipeline pipeline(text);
    test::ErrorKinds lexerErrors;
    test::collectErrors(pipeline.lexer().recogniser(), lexerErrors);
    std::optional<FollowStack> follows;
    if (replacesStack)
    {
        follows.emplace(pipeline.parser()->pParser);
    }
    Parsing parsing;
    collectRecoveries(pipeline.recogniser(), parsing.recoveries);
    parsing.trees = test::treeText(pipeline.parser()->document(pipeline.parser()).tree);
    EXPECT_EQ(follows ? follows->levelsWithoutRoom() : 0, 0u);
    return parsing;
}

// Expects the same as from the runtime's own stack; how many errors there were.
std::size_t expectSameParsing(const std::string& text)
{
    SCOPED_TRACE(testing::PrintToString(text.substr(0, 100)));
    const Parsing expected = parse(text, false);
    const Parsing parsing = parse(text, true);
    EXPECT_EQ(parsing.recoveries, expected.recoveries);
    EXPECT_EQ(parsing.trees, expected.trees);
    return expected.recoveries.size();
}

struct Walk
{
    test::Events events;
    Recoveries recoveries;
};

Walk walk(const std::string& trees, bool replacesStack)
{
    const test::TreePipeline pipeline(trees);
    std::optional<FollowStack> follows;
    if (replacesStack)
    {
        follows.emplace(pipeline.recogniser());
    }
    Walk walk;
    collectRecoveries(pipeline.recogniser(), walk.recoveries);
    test::EventRecorder visitor;
    pipeline.tree()->document(pipeline.tree(), visitor);
    walk.events = visitor.events();
    return walk;
}

} // namespace

TEST(FollowStackRecovery, isThatOfTheRuntimesStack)
{
    std::size_t errors = 0;
    for (const test::RefusedDocuments& refused : test::refusedDocuments)
    {
        for (const std::string& text : refused.texts)
        {
            errors += expectSameParsing(text);
            expectSameParsing("[t]\n" + text + "b = 2\n");
        }
    }
    EXPECT_GT(errors, 200u);
}

TEST(FollowStackRecovery, isThatOfTheRuntimesStackAtAnyDepth)
{
    std::size_t errors = 0;
    for (const std::size_t levels : {1u, 2u, 5u, 9u, 10u, 11u, 30u, 100u})
    {
        for (const std::string opening : {"[", "{a=", "[{a=", "[1,", "[\n[1],", "{a=[[1],"})
        {
            for (const std::string inside : {"", "1", "]", "}", "@", ",", "=", "1 2", "\n\n", "[1"})
            {
                const std::string text = test::enclosed("a=", opening, levels, inside);
                errors += expectSameParsing(text);
                errors += expectSameParsing(text + "]}]}\nb=1\n]\n");
            }
        }
    }
    EXPECT_GT(errors, 900u);
}

TEST(FollowStackRecovery, isThatOfTheRuntimesStackInAWalk)
{
    std::size_t errors = 0;
    for (const std::vector<std::string>& nodes : {test::noValues, test::noLines})
    {
        for (const std::string& node : nodes)
        {
            for (const std::string& trees :
                 {node + test::end, test::a + " " + node + test::end,
                  "KEYVAL(" + test::keyA + ", " + node + ")" + test::end,
                  "KEYVAL(" + node + ", " + test::one + ")" + test::end,
                  "KEYVAL(" + test::keyA + ", VAL_ARRAY(VAL_ARRAY(" + node + ")))" + test::end})
            {
                SCOPED_TRACE(trees);
                const Walk expected = walk(trees, false);
                const Walk walked = walk(trees, true);
                EXPECT_EQ(walked.recoveries, expected.recoveries);
                EXPECT_EQ(walked.events, expected.events);
                errors += expected.recoveries.size();
            }
        }
    }
    EXPECT_GT(errors, 20u);
}
