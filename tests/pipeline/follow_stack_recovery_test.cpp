// The recovery from errors with the library's stack, beside that with the runtime's own.
#include <gtest/gtest.h>

#include "pipeline/follow_stack.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "support/event_recorder.h"
#include "support/large_documents.h"
#include "support/mistaken_samples.h"
#include "support/recognition_errors.h"
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

// What is told of lines: at which token each starts, and what may follow.
class Lines : public vorn::parsers::toml::LineStarts
{
public:
    struct Start
    {
        ANTLR3_MARKER token;
        Types follow;
    };

    explicit Lines(pANTLR3_INT_STREAM tokens) : tokens_(tokens) {}

    void startLine(pANTLR3_BITSET_LIST follow) override
    {
        starts_.push_back({tokens_->index(tokens_), typesOf(antlr3BitsetLoad(follow))});
    }

    const std::vector<Start>& starts() const { return starts_; }

private:
    pANTLR3_INT_STREAM tokens_;
    std::vector<Start> starts_;
};

// The places after line breaks that the parser has in its list of trees, and the document's start.
std::vector<ANTLR3_MARKER> placesAfterLineBreaks(pANTLR3_BASE_TREE document)
{
    std::vector<ANTLR3_MARKER> places = {0};
    for (ANTLR3_UINT32 index = 0; index < document->getChildCount(document); ++index)
    {
        const auto node = static_cast<pANTLR3_BASE_TREE>(document->getChild(document, index));
        if (node->getType(node) == NL)
        {
            places.push_back(node->getToken(node)->index + 1);
        }
    }
    return places;
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

// The rules that those of lines call are none of theirs.
TEST(FollowStackRecovery, tellsWhereTheOutermostRuleIsCalled)
{
    struct Told : vorn::parsers::toml::LineStarts
    {
        void startLine(pANTLR3_BITSET_LIST follow) override { sets.push_back(follow); }

        std::vector<pANTLR3_BITSET_LIST> sets;
    } told;
    static ANTLR3_BITWORD word = ANTLR3_BITWORD{1} << NL;
    std::array<ANTLR3_BITSET_LIST, 20> sets = {};
    sets.fill({&word, 1});
    const std::string text;
    const test::ParserPipeline pipeline(text);
    pipeline.recogniser()->reset(pipeline.recogniser()); // makes the runtime's stack
    const FollowStack follows(pipeline.parser()->pParser, &told);
    const pANTLR3_STACK following = pipeline.recogniser()->state->following;
    std::vector<pANTLR3_BITSET_LIST> expected;
    for (std::size_t line = 0; line < sets.size() / 2; ++line)
    {
        for (std::size_t rule = 0; rule <= line; ++rule)
        {
            following->push(following, &sets[line + rule], nullptr);
        }
        for (std::size_t rule = 0; rule <= line; ++rule)
        {
            following->pop(following);
        }
        expected.push_back(&sets[line]);
        EXPECT_EQ(told.sets, expected);
    }
}

TEST(FollowStackRecovery, tellsOnceWhereEachLineStarts)
{
    std::size_t count = 0;
    for (const std::string& text : test::mistakenSamples())
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 100)));
        const test::ParserPipeline pipeline(text);
        test::ErrorKinds errors;
        test::collectErrors(pipeline.lexer().recogniser(), errors);
        test::collectErrors(pipeline.recogniser(), errors);
        Lines lines(pipeline.tokens()->tstream->istream);
        const FollowStack follows(pipeline.parser()->pParser, &lines);
        const pANTLR3_BASE_TREE tree = pipeline.parser()->document(pipeline.parser()).tree;

        std::vector<ANTLR3_MARKER> places;
        for (const Lines::Start& start : lines.starts())
        {
            EXPECT_EQ(start.follow, Types({NL}));
            places.push_back(start.token);
        }
        // A document that has failed has no trees.
        if (tree->getType(tree) == ANTLR3_TOKEN_INVALID && tree->getChildCount(tree) == 0)
        {
            EXPECT_FALSE(places.empty());
            continue;
        }
        EXPECT_EQ(places, placesAfterLineBreaks(tree));
        count += places.size();
    }
    EXPECT_GT(count, 500u);
}

// The runtime's own recovery finds no token to go on at, and looks at all of them.
TEST(FollowStackRecovery, goesToTheEndWhereNothingFollows)
{
    for (const bool replacesStack : {false, true})
    {
        for (const std::string text : {"a = 1\n", "", "a\n[b]\n]\n", "= = =\n\n"})
        {
            SCOPED_TRACE(testing::PrintToString(text));
            const test::ParserPipeline pipeline(text);
            const pANTLR3_BASE_RECOGNIZER recogniser = pipeline.recogniser();
            const pANTLR3_INT_STREAM tokens = pipeline.tokens()->tstream->istream;
            recogniser->reset(recogniser); // makes the runtime's stack
            std::optional<FollowStack> follows;
            if (replacesStack)
            {
                follows.emplace(pipeline.parser()->pParser);
            }
            tokens->_LA(tokens, 1); // fills the stream
            // The set of a rule says that alone, where it is not for a recovery.
            EXPECT_EQ(typesOf(recogniser->computeCSRuleFollow(recogniser)), Types());
            EXPECT_EQ(tokens->index(tokens), 0);
            static std::size_t consumed = 0;
            static const auto consume = tokens->consume;
            consumed = 0;
            tokens->consume = [](pANTLR3_INT_STREAM stream)
            {
                ++consumed;
                consume(stream);
            };
            recogniser->recover(recogniser);
            EXPECT_EQ(tokens->index(tokens), tokens->size(tokens));
            EXPECT_EQ(consumed, replacesStack ? 0u : tokens->size(tokens));
            EXPECT_EQ(tokens->_LA(tokens, 1), ANTLR3_TOKEN_EOF);
        }
    }
}

TEST(FollowStackRecovery, staysWhereSomethingFollows)
{
    static ANTLR3_BITWORD word = ANTLR3_BITWORD{1} << NL;
    static ANTLR3_BITSET_LIST lineBreak = {&word, 1};
    const std::string text = "a b\nc\n";
    const test::ParserPipeline pipeline(text);
    const pANTLR3_BASE_RECOGNIZER recogniser = pipeline.recogniser();
    const pANTLR3_INT_STREAM tokens = pipeline.tokens()->tstream->istream;
    const FollowStack follows(pipeline.parser()->pParser);
    const pANTLR3_STACK following = recogniser->state->following;
    following->push(following, &lineBreak, nullptr);
    recogniser->recover(recogniser);
    EXPECT_EQ(tokens->index(tokens), 2);
    following->pop(following);
}
