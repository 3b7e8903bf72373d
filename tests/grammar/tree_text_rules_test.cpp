// Nodes that are not the token that is due under a key or a scalar: the error is reported,
// and the walk goes on.
//
// A rule of several tokens reports the node, and the visitor gets the text of the node.  A
// rule of one token never sees an error in a walk: the runtime's match takes the token as
// missing, for which it borrows the node that stands there and gives it another text, which
// the visitor then gets, and takes the node out of the way at the end of the children.
#include <gtest/gtest.h>

#include <set>

#include "support/event_lists.h"
#include "support/tree_samples.h"
#include "support/tree_walking.h"

using namespace test;

namespace
{

struct TextRule
{
    std::string root;
    std::string operation;
    std::set<std::string> tokens;
};

const std::vector<TextRule> keys = {
    {"KEY_BARE", "visitBareKey", {"BARE_KEY"}},
    {"KEY_QUOTED", "visitQuotedKey", {"BASIC_STRING", "LITERAL_STRING"}},
};

const std::vector<TextRule> values = {
    {"VAL_STRING_BASIC", "visitBasicString", {"BASIC_STRING"}},
    {"VAL_STRING_ML_BASIC", "visitMultilineBasicString", {"ML_BASIC_STRING"}},
    {"VAL_STRING_LITERAL", "visitLiteralString", {"LITERAL_STRING"}},
    {"VAL_STRING_ML_LITERAL", "visitMultilineLiteralString", {"ML_LITERAL_STRING"}},
    {"VAL_INTEGER", "visitInteger", {"BIN_INT", "DEC_INT", "HEX_INT", "OCT_INT"}},
    {"VAL_FLOAT", "visitFloat", {"FLOAT", "INF", "NAN"}},
    {"VAL_BOOL", "visitBoolean", {"BOOLEAN"}},
    {"VAL_OFFSET_DATE_TIME", "visitOffsetDateTime", {"OFFSET_DATE_TIME"}},
    {"VAL_LOCAL_DATE_TIME", "visitLocalDateTime", {"LOCAL_DATE_TIME"}},
    {"VAL_LOCAL_DATE", "visitLocalDate", {"LOCAL_DATE"}},
    {"VAL_LOCAL_TIME", "visitLocalTime", {"LOCAL_TIME"}},
};

const std::vector<std::string> otherNodes = {
    "BARE_KEY", "BASIC_STRING", "BIN_INT", "BOOLEAN", "COMMENT", "DAY", "DEC_INT", "FLOAT",
    "HEX_INT", "INF", "LITERAL_STRING", "LOCAL_DATE", "LOCAL_DATE_TIME", "LOCAL_TIME",
    "ML_BASIC_STRING", "ML_LITERAL_STRING", "NAN", "OCT_INT", "OFFSET_DATE_TIME", "YEAR",
    // Of no token.
    "<invalid>"};

bool isOfOneToken(const TextRule& rule)
{
    return rule.tokens.size() == 1;
}

ErrorKinds errorOf(const TextRule& rule)
{
    return {isOfOneToken(rule) ? "missing token" : "mismatched set"};
}

// The call for a node with a text that is not the token of the rule.
Events callFor(const TextRule& rule, const std::string& text)
{
    return scalar(rule.operation,
                  isOfOneToken(rule) ? "<missing " + *rule.tokens.begin() + ">" : text);
}

// Nodes that are not the token of the rule, each with its text.
std::vector<std::pair<std::string, std::string>> wrongNodes(const TextRule& rule)
{
    std::vector<std::pair<std::string, std::string>> nodes;
    for (const std::string& type : otherNodes)
    {
        if (rule.tokens.count(type) == 0)
        {
            nodes.emplace_back(type + " \"1.5\"", "1.5");
        }
    }
    nodes.emplace_back("COMMENT \"\"", "");
    nodes.emplace_back("COMMENT", " 9"); // a node without a text: a blank and its type
    return nodes;
}

} // namespace

TEST(TreeTextRules, anIntegerOverAFloatIsVisitedWithTheTextOfTheFloat)
{
    expectReportedValue(R"(VAL_INTEGER(FLOAT "1.5"))", integer("1.5"), {"mismatched set"});
}

TEST(TreeTextRules, aBooleanOverAFloatIsVisitedWithTheTextOfAMissingToken)
{
    expectReportedValue(R"(VAL_BOOL(FLOAT "1.5"))", scalar("visitBoolean", "<missing BOOLEAN>"),
                        {"missing token"});
}

TEST(TreeTextRules, scalarsHandOverTheTextOfTheWrongNodeOrOfAMissingToken)
{
    for (const TextRule& rule : values)
    {
        for (const auto& [node, text] : wrongNodes(rule))
        {
            expectReportedValue(rule.root + "(" + node + ")", callFor(rule, text), errorOf(rule));
        }
    }
}

TEST(TreeTextRules, keysHandOverTheTextOfTheWrongNodeOrOfAMissingToken)
{
    for (const TextRule& rule : keys)
    {
        for (const auto& [node, text] : wrongNodes(rule))
        {
            expectReportedKey(rule.root + "(" + node + ")", callFor(rule, text), errorOf(rule));
        }
    }
}

// The node that stands there is then the marker after the children, which the runtime does
// not borrow.
TEST(TreeTextRules, noTokenAtAllHandsOverTheTextOfTheMarker)
{
    for (const TextRule& rule : values)
    {
        expectReportedValue(rule.root + "()", scalar(rule.operation, "UP"), errorOf(rule));
    }
    for (const TextRule& rule : keys)
    {
        expectReportedKey(rule.root + "()", scalar(rule.operation, "UP"), errorOf(rule));
    }
}

TEST(TreeTextRules, wrongNodesInsideArraysAndInlineTablesLeaveTheOthersAsTheyAre)
{
    for (const TextRule& rule : values)
    {
        const std::string wrong = rule.root + R"((COMMENT "#"))";
        const Events events = callFor(rule, "#");
        expectReportedValue("VAL_ARRAY(" + one + ", " + wrong + ", " + one + ")",
                            array({integer("1"), events, integer("1")}), errorOf(rule));
        expectReportedValue("VAL_INLINE_TABLE(KEYVAL(" + keyA + ", " + wrong + "), KEYVAL(" + keyA +
                                ", " + one + "))",
                            inlineTable({pair(bare("a"), events), aIsOne}), errorOf(rule));
    }
}

TEST(TreeTextRules, everyErrorIsReported)
{
    expectReportedValue(R"(VAL_ARRAY(VAL_BOOL(DEC_INT "1"), VAL_INTEGER(FLOAT "1.5"), )"
                        R"(VAL_LOCAL_DATE(), VAL_INTEGER(BOOLEAN "true")))",
                        array({scalar("visitBoolean", "<missing BOOLEAN>"), integer("1.5"),
                               scalar("visitLocalDate", "UP"), integer("true")}),
                        {"missing token", "mismatched set", "missing token", "mismatched set"});
    expectReported({{R"(KEYVAL(KEY_QUOTED(BARE_KEY "k"), VAL_FLOAT(DEC_INT "1")))" + end,
                     document({pair(quoted("k"), scalar("visitFloat", "1"))}),
                     {"mismatched set", "mismatched set"}}});
}

// The recovery skips nodes up to the end of the children, so that a token further on is
// not taken for the one that is due.
TEST(TreeTextRules, nodesBehindTheWrongOneAreSkippedByRulesOfSeveralTokens)
{
    expectReportedValue(R"(VAL_INTEGER(FLOAT "1.5", DEC_INT "1"))", integer("1.5"),
                        {"mismatched set"});
    expectReportedValue(R"(VAL_INTEGER(FLOAT "1.5", FLOAT "2.5", DEC_INT "1"))", integer("1.5"),
                        {"mismatched set"});
    expectReportedKey(R"(KEY_QUOTED(DEC_INT "1", BASIC_STRING "\"a\""))", quoted("1"),
                      {"mismatched set"});
}

// The runtime takes out the wrong node when the token is right after it; the text is still
// that of the node at which the rule began.
TEST(TreeTextRules, aNodeBeforeTheTokenIsTakenOutByRulesOfOneToken)
{
    for (const TextRule& rule : values)
    {
        if (isOfOneToken(rule))
        {
            expectReportedValue(rule.root + R"((COMMENT "#", )" + *rule.tokens.begin() +
                                    R"( "token"))",
                                scalar(rule.operation, "#"), {"unwanted token"});
        }
    }
    expectReportedKey(R"(KEY_BARE(DEC_INT "1", BARE_KEY "a"))", bare("1"), {"unwanted token"});
}

// The token is taken as missing, and then there is more than one node to take out.
TEST(TreeTextRules, severalWrongNodesBreakOffTheWalkInRulesOfOneToken)
{
    for (const TextRule& rule : values)
    {
        if (isOfOneToken(rule))
        {
            for (const std::string children :
                 {R"(COMMENT "#", COMMENT "#")", R"(COMMENT "#"(COMMENT "#"))"})
            {
                expectReported({{"KEYVAL(" + keyA + ", " + rule.root + "(" + children + "))" + end,
                                 brokenOff({{"beginKeyValue"}, bare("a")}),
                                 {"missing token"},
                                 false}});
            }
        }
    }
    expectReported({{R"(HEADER_TABLE(KEY_BARE(DEC_INT "1", DEC_INT "2", BARE_KEY "a")))" + end,
                     brokenOff({{"beginTable"}}),
                     {"missing token"},
                     false}});
}

// The recovery stops at the first end of children, that of the wrong node's own, so that
// every end further on is one too early.
TEST(TreeTextRules, aWrongNodeWithChildrenEndsTheTreesAroundItEarly)
{
    const std::string wrong = R"(VAL_INTEGER(FLOAT "1.5"(DEC_INT "1")))";
    expectReported({
        // The end that is left over at last is a node that the runtime takes out.
        {"KEYVAL(" + keyA + ", " + wrong + ")" + end,
         document({pair(bare("a"), integer("1.5"))}),
         {"mismatched set", "unwanted token"}},
        {"KEYVAL(" + keyA + ", VAL_ARRAY(" + wrong + ", " + one + "))" + end,
         brokenOff({{"beginKeyValue"}, bare("a"), array({integer("1.5")})}),
         {"mismatched set"},
         false},
    });
}
