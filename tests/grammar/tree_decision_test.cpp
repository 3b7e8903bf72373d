// The tree parser's rules on their own: the errors of its choices, which the rules above
// them mostly keep from happening in a walk.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "support/event_lists.h"
#include "support/event_recorder.h"
#include "support/recognition_errors.h"

#include "support/tree_pipeline.h"

namespace
{

using namespace test;

// Runs a rule at the first node and hands over the visitor's calls.
using Rule = std::function<void(pTomlTree, EventRecorder&, bool&)>;

struct DecisionCase
{
    std::string name;
    std::string trees;
    Rule run;
    ANTLR3_UINT32 decision;
};

const std::string notThere = R"(COMMENT "#")";

const std::vector<DecisionCase> decisions = {
    {"expression", notThere,
     [](pTomlTree tree, EventRecorder& visitor, bool& ok) { tree->expression(tree, visitor, ok); },
     3},
    {"key", notThere,
     [](pTomlTree tree, EventRecorder& visitor, bool& ok) { tree->key(tree, visitor, ok); }, 5},
    {"simple_key", "KEY_DOTTED",
     [](pTomlTree tree, EventRecorder& visitor, bool& ok) { tree->simple_key(tree, visitor, ok); },
     6},
    {"value", notThere,
     [](pTomlTree tree, EventRecorder& visitor, bool& ok) { tree->value(tree, visitor, ok); }, 8},
    {"string_value", "VAL_INTEGER",
     [](pTomlTree tree, EventRecorder& visitor, bool& ok)
     { tree->string_value(tree, visitor, ok); },
     9},
    {"date_time_value", "VAL_STRING_BASIC",
     [](pTomlTree tree, EventRecorder& visitor, bool& ok)
     { tree->date_time_value(tree, visitor, ok); },
     10},
};

} // namespace

TEST(TreeDecision, aChoiceWithoutAFittingAlternativeStopsUnreported)
{
    for (const DecisionCase& one : decisions)
    {
        SCOPED_TRACE(one.name);
        const TreePipeline pipeline(one.trees);
        ErrorKinds reported;
        collectErrors(pipeline.recogniser(), reported);
        EventRecorder visitor;
        bool ok = true;
        one.run(pipeline.tree(), visitor, ok);

        EXPECT_FALSE(ok);
        EXPECT_EQ(visitor.events(), Events());
        EXPECT_EQ(reported, ErrorKinds());
        const pANTLR3_RECOGNIZER_SHARED_STATE state = pipeline.recogniser()->state;
        EXPECT_EQ(state->errorCount, 0u);
        ASSERT_EQ(state->error, ANTLR3_TRUE);
        ASSERT_NE(state->exception, nullptr);
        EXPECT_EQ(errorKind(pipeline.recogniser()), "no viable alternative");
        EXPECT_EQ(state->exception->decisionNum, one.decision);
    }
}

TEST(TreeDecision, aDottedKeyWithoutPartsStopsUnreportedAsAnEarlyExit)
{
    const TreePipeline pipeline(notThere);
    ErrorKinds reported;
    collectErrors(pipeline.recogniser(), reported);
    EventRecorder visitor;
    bool ok = true;
    pipeline.tree()->dotted_key_parts(pipeline.tree(), visitor, ok);

    EXPECT_FALSE(ok);
    EXPECT_EQ(visitor.events(), Events());
    EXPECT_EQ(reported, ErrorKinds());
    const pANTLR3_RECOGNIZER_SHARED_STATE state = pipeline.recogniser()->state;
    ASSERT_EQ(state->error, ANTLR3_TRUE);
    ASSERT_NE(state->exception, nullptr);
    EXPECT_EQ(errorKind(pipeline.recogniser()), "early exit");
    EXPECT_STREQ(static_cast<const char*>(state->exception->name),
                 "org.antlr.runtime.EarlyExitException");
}

TEST(TreeDecision, blanksThatAreNotThereAreReportedAsAnEarlyExit)
{
    const TreePipeline pipeline(notThere);
    ErrorKinds reported;
    collectErrors(pipeline.recogniser(), reported);
    pipeline.tree()->whitespace(pipeline.tree());

    EXPECT_EQ(reported, ErrorKinds{"early exit"});
    const pANTLR3_RECOGNIZER_SHARED_STATE state = pipeline.recogniser()->state;
    EXPECT_EQ(state->errorCount, 1u);
    EXPECT_EQ(state->error, ANTLR3_FALSE);
    EXPECT_STREQ(static_cast<const char*>(state->exception->name),
                 "org.antlr.runtime.EarlyExitException");
}

TEST(TreeDecision, aTokenOutsideASetIsReportedByItsName)
{
    const TreePipeline pipeline(notThere);
    ErrorKinds reported;
    collectErrors(pipeline.recogniser(), reported);
    const auto matched = pipeline.tree()->integer_text(pipeline.tree());

    EXPECT_EQ(matched.start, matched.stop);
    EXPECT_EQ(treeText(matched.start), notThere);
    EXPECT_EQ(reported, ErrorKinds{"mismatched set"});
    EXPECT_EQ(pipeline.recogniser()->state->error, ANTLR3_FALSE);
    EXPECT_STREQ(static_cast<const char*>(pipeline.recogniser()->state->exception->name),
                 "org.antlr.runtime.MismatchedSetException");
}

// A rule of one token whose match does not repair, for nothing can follow the rule.
TEST(TreeDecision, anotherTokenWhereNothingFollowsIsReported)
{
    const TreePipeline pipeline(notThere);
    ErrorKinds reported;
    collectErrors(pipeline.recogniser(), reported);
    const auto matched = pipeline.tree()->boolean_text(pipeline.tree());

    EXPECT_EQ(matched.start, matched.stop);
    EXPECT_EQ(treeText(matched.start), notThere);
    EXPECT_EQ(reported, ErrorKinds{"recognition"});
    EXPECT_EQ(pipeline.recogniser()->state->errorCount, 1u);
    EXPECT_EQ(pipeline.recogniser()->state->error, ANTLR3_FALSE);
}

namespace
{

// The rules with a root of their own: in a walk, the choices above them see to the root.
struct RootCase
{
    Rule run;
    std::string root;
    std::string children;
    std::string otherRoot;
    Events begin;
    Events events; // of the whole tree
};

const std::vector<RootCase> roots = {
    {[](pTomlTree tree, EventRecorder& visitor, bool& ok) { tree->key_value(tree, visitor, ok); },
     "KEYVAL",
     R"((KEY_BARE(BARE_KEY "a"), VAL_ARRAY))",
     "VAL_ARRAY",
     {"beginKeyValue"},
     pair(bare("a"), array({}))},
    {[](pTomlTree tree, EventRecorder& visitor, bool& ok)
     { tree->table_header(tree, visitor, ok); },
     "HEADER_TABLE",
     R"((KEY_BARE(BARE_KEY "a")))",
     "HEADER_ARRAY_TABLE",
     {"beginTable"},
     table(bare("a"))},
    {[](pTomlTree tree, EventRecorder& visitor, bool& ok)
     { tree->array_table_header(tree, visitor, ok); },
     "HEADER_ARRAY_TABLE",
     R"((KEY_BARE(BARE_KEY "a")))",
     "HEADER_TABLE",
     {"beginArrayTable"},
     arrayTable(bare("a"))},
    {[](pTomlTree tree, EventRecorder& visitor, bool& ok) { tree->bare_key(tree, visitor, ok); },
     "KEY_BARE",
     R"((BARE_KEY "a"))",
     "KEY_QUOTED",
     {},
     bare("a")},
    {[](pTomlTree tree, EventRecorder& visitor, bool& ok) { tree->quoted_key(tree, visitor, ok); },
     "KEY_QUOTED",
     R"((LITERAL_STRING "'a'"))",
     "KEY_BARE",
     {},
     quoted("'a'")},
    {[](pTomlTree tree, EventRecorder& visitor, bool& ok) { tree->dotted_key(tree, visitor, ok); },
     "KEY_DOTTED",
     R"((KEY_BARE(BARE_KEY "a")))",
     "KEY_BARE",
     {"beginDottedKey"},
     dotted({bare("a")})},
    {[](pTomlTree tree, EventRecorder& visitor, bool& ok) { tree->array(tree, visitor, ok); },
     "VAL_ARRAY",
     R"((VAL_INTEGER(DEC_INT "1")))",
     "VAL_INLINE_TABLE",
     {"beginArray"},
     array({integer("1")})},
    {[](pTomlTree tree, EventRecorder& visitor, bool& ok)
     { tree->inline_table(tree, visitor, ok); },
     "VAL_INLINE_TABLE",
     R"((KEYVAL(KEY_BARE(BARE_KEY "a"), VAL_ARRAY)))",
     "VAL_ARRAY",
     {"beginInlineTable"},
     inlineTable({pair(bare("a"), array({}))})},
};

// Runs the rule behind the first `skipped` nodes of the trees.
void expectRoot(const RootCase& rule, const std::string& trees, int skipped, const Events& events,
                const ErrorKinds& errors, bool goesOn)
{
    SCOPED_TRACE(trees);
    const TreePipeline pipeline(trees);
    const pANTLR3_INT_STREAM nodes = pipeline.nodes()->tnstream->istream;
    for (int node = 0; node < skipped; ++node)
    {
        nodes->consume(nodes);
    }
    ErrorKinds reported;
    collectErrors(pipeline.recogniser(), reported);
    EventRecorder visitor;
    bool ok = true;
    rule.run(pipeline.tree(), visitor, ok);

    EXPECT_EQ(ok, goesOn);
    EXPECT_EQ(visitor.events(), events);
    EXPECT_EQ(reported, errors);
    EXPECT_EQ(pipeline.recogniser()->state->errorCount, errors.size());
    EXPECT_EQ(pipeline.recogniser()->state->error, goesOn ? ANTLR3_FALSE : ANTLR3_TRUE);
}

} // namespace

TEST(TreeDecision, anotherRootStopsUnreported)
{
    for (const RootCase& rule : roots)
    {
        SCOPED_TRACE(rule.root);
        const std::string right = rule.root + rule.children;
        expectRoot(rule, rule.otherRoot, 0, rule.begin, {}, false);
        expectRoot(rule, rule.otherRoot + rule.children, 0, rule.begin, {}, false);
        expectRoot(rule, rule.otherRoot + " " + rule.otherRoot + " " + right, 0, rule.begin, {},
                   false);
        expectRoot(rule, "", 0, rule.begin, {}, false);
    }
}

// The runtime's match takes out a single node before the root that is due.
TEST(TreeDecision, aNodeBeforeTheRootIsTakenOut)
{
    for (const RootCase& rule : roots)
    {
        SCOPED_TRACE(rule.root);
        expectRoot(rule, rule.otherRoot + " " + rule.root + rule.children, 0, rule.events,
                   {"unwanted token"}, true);
    }
}

// The runtime's match takes the root as missing when its children are next.
TEST(TreeDecision, aRootBeforeItsChildrenIsTakenAsMissing)
{
    for (const RootCase& rule : roots)
    {
        SCOPED_TRACE(rule.root);
        expectRoot(rule, rule.otherRoot + rule.children, 1, rule.events, {"missing token"}, true);
    }
}
