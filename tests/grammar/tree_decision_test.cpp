// The tree parser's rules on their own: the errors of its choices, which the rules above
// them mostly keep from happening in a walk.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/event_lists.h"
#include "support/event_recorder.h"
#include "support/recognition_errors.h"

#include "support/tree_pipeline.h"

namespace
{

using namespace test;

using Rule = decltype(&TomlTree::value);

// Runs rules over trees, and collects the errors that they report.
struct RuleRun
{
    explicit RuleRun(const std::string& trees) : pipeline(trees)
    {
        collectErrors(pipeline.recogniser(), reported);
    }

    void run(Rule rule) { (pipeline.tree()->*rule)(pipeline.tree(), visitor, ok); }

    pANTLR3_RECOGNIZER_SHARED_STATE state() const { return pipeline.recogniser()->state; }

    TreePipeline pipeline;
    ErrorKinds reported;
    EventRecorder visitor;
    bool ok = true;
};

// Expects that a rule has stopped with an error that nobody was told of.
void expectStopped(const RuleRun& run, const std::string& kind)
{
    EXPECT_FALSE(run.ok);
    EXPECT_EQ(run.visitor.events(), Events());
    EXPECT_EQ(run.reported, ErrorKinds());
    EXPECT_EQ(run.state()->errorCount, 0u);
    ASSERT_EQ(run.state()->error, ANTLR3_TRUE);
    ASSERT_NE(run.state()->exception, nullptr);
    EXPECT_EQ(errorKind(run.pipeline.recogniser()), kind);
}

void expectReported(const RuleRun& run, const std::string& kind)
{
    EXPECT_EQ(run.reported, ErrorKinds{kind});
    EXPECT_EQ(run.state()->errorCount, 1u);
    EXPECT_EQ(run.state()->error, ANTLR3_FALSE);
}

struct DecisionCase
{
    std::string name;
    std::string trees;
    Rule rule;
    ANTLR3_UINT32 decision;
};

const std::string notThere = R"(COMMENT "#")";

const std::vector<DecisionCase> decisions = {
    {"expression", notThere, &TomlTree::expression, 3},
    {"key", notThere, &TomlTree::key, 5},
    {"simple_key", "KEY_DOTTED", &TomlTree::simple_key, 6},
    {"value", notThere, &TomlTree::value, 8},
    {"string_value", "VAL_INTEGER", &TomlTree::string_value, 9},
    {"date_time_value", "VAL_STRING_BASIC", &TomlTree::date_time_value, 10},
};

} // namespace

TEST(TreeDecision, aChoiceWithoutAFittingAlternativeStopsUnreported)
{
    for (const DecisionCase& one : decisions)
    {
        SCOPED_TRACE(one.name);
        RuleRun run(one.trees);
        run.run(one.rule);
        ASSERT_NO_FATAL_FAILURE(expectStopped(run, "no viable alternative"));
        EXPECT_EQ(run.state()->exception->decisionNum, one.decision);
    }
}

TEST(TreeDecision, aDottedKeyWithoutPartsStopsUnreportedAsAnEarlyExit)
{
    RuleRun run(notThere);
    run.run(&TomlTree::dotted_key_parts);
    ASSERT_NO_FATAL_FAILURE(expectStopped(run, "early exit"));
    EXPECT_STREQ(static_cast<const char*>(run.state()->exception->name),
                 "org.antlr.runtime.EarlyExitException");
}

TEST(TreeDecision, blanksThatAreNotThereAreReportedAsAnEarlyExit)
{
    const RuleRun run(notThere);
    run.pipeline.tree()->whitespace(run.pipeline.tree());
    expectReported(run, "early exit");
    EXPECT_STREQ(static_cast<const char*>(run.state()->exception->name),
                 "org.antlr.runtime.EarlyExitException");
}

TEST(TreeDecision, aTokenOutsideASetIsReportedByItsName)
{
    const RuleRun run(notThere);
    const auto matched = run.pipeline.tree()->integer_text(run.pipeline.tree());

    EXPECT_EQ(matched.start, matched.stop);
    EXPECT_EQ(treeText(matched.start), notThere);
    expectReported(run, "mismatched set");
    EXPECT_STREQ(static_cast<const char*>(run.state()->exception->name),
                 "org.antlr.runtime.MismatchedSetException");
}

// A rule of one token whose match does not repair, for nothing can follow the rule.
TEST(TreeDecision, anotherTokenWhereNothingFollowsIsReported)
{
    const RuleRun run(notThere);
    const auto matched = run.pipeline.tree()->boolean_text(run.pipeline.tree());

    EXPECT_EQ(matched.start, matched.stop);
    EXPECT_EQ(treeText(matched.start), notThere);
    expectReported(run, "recognition");
}

namespace
{

// The rules with a root of their own: in a walk, the choices above them see to the root.
struct RootCase
{
    Rule rule;
    std::string root;
    std::string children;
    std::string otherRoot;
    Events begin;
    Events events; // of the whole tree
};

const std::vector<RootCase> roots = {
    {&TomlTree::key_value,
     "KEYVAL",
     R"((KEY_BARE(BARE_KEY "a"), VAL_ARRAY))",
     "VAL_ARRAY",
     {"beginKeyValue"},
     pair(bare("a"), array({}))},
    {&TomlTree::table_header,
     "HEADER_TABLE",
     R"((KEY_BARE(BARE_KEY "a")))",
     "HEADER_ARRAY_TABLE",
     {"beginTable"},
     table(bare("a"))},
    {&TomlTree::array_table_header,
     "HEADER_ARRAY_TABLE",
     R"((KEY_BARE(BARE_KEY "a")))",
     "HEADER_TABLE",
     {"beginArrayTable"},
     arrayTable(bare("a"))},
    {&TomlTree::bare_key, "KEY_BARE", R"((BARE_KEY "a"))", "KEY_QUOTED", {}, bare("a")},
    {&TomlTree::quoted_key,
     "KEY_QUOTED",
     R"((LITERAL_STRING "'a'"))",
     "KEY_BARE",
     {},
     quoted("'a'")},
    {&TomlTree::dotted_key,
     "KEY_DOTTED",
     R"((KEY_BARE(BARE_KEY "a")))",
     "KEY_BARE",
     {"beginDottedKey"},
     dotted({bare("a")})},
    {&TomlTree::array,
     "VAL_ARRAY",
     R"((VAL_INTEGER(DEC_INT "1")))",
     "VAL_INLINE_TABLE",
     {"beginArray"},
     array({integer("1")})},
    {&TomlTree::inline_table,
     "VAL_INLINE_TABLE",
     R"((KEYVAL(KEY_BARE(BARE_KEY "a"), VAL_ARRAY)))",
     "VAL_ARRAY",
     {"beginInlineTable"},
     inlineTable({pair(bare("a"), array({}))})},
};

// Runs the rule after the first `skipped` nodes of the trees.
void expectRoot(const RootCase& one, const std::string& trees, int skipped, const Events& events,
                const ErrorKinds& errors, bool goesOn)
{
    SCOPED_TRACE(trees);
    RuleRun run(trees);
    const pANTLR3_INT_STREAM nodes = run.pipeline.nodes()->tnstream->istream;
    for (int node = 0; node < skipped; ++node)
    {
        nodes->consume(nodes);
    }
    run.run(one.rule);

    EXPECT_EQ(run.ok, goesOn);
    EXPECT_EQ(run.visitor.events(), events);
    EXPECT_EQ(run.reported, errors);
    EXPECT_EQ(run.state()->errorCount, errors.size());
    EXPECT_EQ(run.state()->error, goesOn ? ANTLR3_FALSE : ANTLR3_TRUE);
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
