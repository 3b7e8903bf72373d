// Trees with one node too many or too few that the runtime repairs.
//
// The runtime's match takes out a node when the one after it is the one that is due, and
// takes a line break as missing when the node that stands there may follow it.  It reports
// that and clears the recogniser's error, so the rules, which look at the error after the
// match, go on: the walk returns true, and only the error count tells that the tree was wrong.
#include <gtest/gtest.h>

#include "support/event_lists.h"
#include "support/tree_samples.h"
#include "support/tree_walking.h"

using namespace test;

namespace
{

const ErrorKinds takenOut = {"unwanted token"};
const ErrorKinds takenAsMissing = {"missing token"};

const std::string headerA = "HEADER_TABLE(" + keyA + ")";
const std::string arrayHeaderA = "HEADER_ARRAY_TABLE(" + keyA + ")";

} // namespace

TEST(TreeRepair, aLineBreakBeforeTheNextLineIsTakenAsMissing)
{
    const Events headed = table(bare("a"));
    const Events arrayHeaded = arrayTable(bare("a"));
    expectReported({
        {a + " " + a + end, document({aIsOne, aIsOne}), takenAsMissing},
        {a + " " + headerA + end, document({aIsOne, headed}), takenAsMissing},
        {headerA + " " + a + end, document({headed, aIsOne}), takenAsMissing},
        {arrayHeaderA + " " + arrayHeaderA + end, document({arrayHeaded, arrayHeaded}),
         takenAsMissing},
        {a + R"( WS " " WS " ")" + end, document({aIsOne}), takenAsMissing},
        {R"(WS " " )" + a + end, document({aIsOne}), takenAsMissing},
        {a + " " + headerA + " " + a + end,
         document({aIsOne, headed, aIsOne}),
         {"missing token", "missing token"}},
        {a + " " + a + " EOF", brokenOff({aIsOne, aIsOne}), takenAsMissing, false},
        {a + R"( WS " " EOF)", brokenOff({aIsOne}), takenAsMissing, false},
    });
}

TEST(TreeRepair, aNodeBeforeALineBreakIsTakenOut)
{
    std::vector<std::string> nodes = noLines;
    nodes.insert(nodes.end(), {R"(WS " ")", "KEYVAL", "HEADER_TABLE", "HEADER_ARRAY_TABLE"});
    for (const std::string& node : nodes)
    {
        expectReported({
            {a + " " + node + end, document({aIsOne}), takenOut},
            {a + " " + node + R"( NL "\n" )" + a + end, document({aIsOne, aIsOne}), takenOut},
            {headerA + " " + node + end, document({table(bare("a"))}), takenOut},
            {arrayHeaderA + " " + node + end, document({arrayTable(bare("a"))}), takenOut},
        });
    }
    expectReported({{R"(WS " " COMMENT "#")" + end, document({}), takenOut}});
}

// So ends the walk over the tree of a document that the parser gives up as a whole: its one
// node is an error node.
TEST(TreeRepair, aNodeBeforeTheEndOfInputIsTakenOut)
{
    for (const std::string& node : noLines)
    {
        expectReported({
            {node, document({}), takenOut},
            {node + " EOF", document({}), takenOut},
            {a + R"( NL "\n" )" + node + " EOF", document({aIsOne}), takenOut},
        });
    }
}

TEST(TreeRepair, theRootOfTheNextTreeIsTakenOutBeforeChildrenThatAreDue)
{
    expectReported({
        {"KEYVAL " + a + end, document({aIsOne}), takenOut},
        {"KEYVAL " + keyA + end, brokenOff({{"beginKeyValue"}}), takenOut, false},
        {"HEADER_TABLE HEADER_ARRAY_TABLE(" + keyA + ")" + end, document({table(bare("a"))}),
         takenOut},
        {"HEADER_ARRAY_TABLE HEADER_TABLE(" + keyA + ")" + end, document({arrayTable(bare("a"))}),
         takenOut},
        {"HEADER_TABLE(KEY_DOTTED(KEY_BARE, " + keyA + "))" + end,
         document({table(dotted({bare("a")}))}), takenOut},
        {R"(HEADER_TABLE(KEY_DOTTED(KEY_QUOTED, KEY_QUOTED(LITERAL_STRING "'a'"))))" + end,
         document({table(dotted({quoted("'a'")}))}), takenOut},
    });
    expectReportedValue("VAL_ARRAY(VAL_INTEGER, " + one + ")", array({integer("1")}), takenOut);
    expectReportedValue("VAL_ARRAY(VAL_LOCAL_DATE, VAL_INTEGER(LOCAL_DATE \"x\"))",
                        array({scalar("visitLocalDate", "x")}), takenOut);
    expectReportedValue("VAL_INLINE_TABLE(KEYVAL, " + a + ")", inlineTable({aIsOne}), takenOut);
}

TEST(TreeRepair, aChildTooManyIsTakenOut)
{
    for (const std::string child :
         {R"(BARE_KEY "x")", R"(NL "\n")", "VAL_ARRAY", "KEY_BARE", "EOF"})
    {
        expectReported({
            {"KEYVAL(" + keyA + ", " + one + ", " + child + ")" + end, document({aIsOne}),
             takenOut},
            {"HEADER_TABLE(" + keyA + ", " + child + ")" + end, document({table(bare("a"))}),
             takenOut},
            {"HEADER_ARRAY_TABLE(" + keyA + ", " + child + ")" + end,
             document({arrayTable(bare("a"))}), takenOut},
        });
        expectReportedKey(R"(KEY_BARE(BARE_KEY "b", )" + child + ")", bare("b"), takenOut);
        expectReportedKey(R"(KEY_QUOTED(LITERAL_STRING "'b'", )" + child + ")", quoted("'b'"),
                          takenOut);
        expectReportedValue(R"(VAL_INTEGER(DEC_INT "1", )" + child + ")", integer("1"), takenOut);
        expectReportedValue(R"(VAL_BOOL(BOOLEAN "true", )" + child + ")",
                            scalar("visitBoolean", "true"), takenOut);
        expectReportedValue(R"(VAL_STRING_BASIC(BASIC_STRING "\"\"", )" + child + ")",
                            scalar("visitBasicString", "\"\""), takenOut);
        expectReportedValue(R"(VAL_LOCAL_TIME(LOCAL_TIME "07:32:00", )" + child + ")",
                            scalar("visitLocalTime", "07:32:00"), takenOut);
    }
}

TEST(TreeRepair, aNodeAfterTheElementsOfAnArrayIsTakenOut)
{
    for (const std::string& node : noValues)
    {
        expectReportedValue("VAL_ARRAY(" + node + ")", array({}), takenOut);
        expectReportedValue("VAL_ARRAY(" + one + ", " + node + ")", array({integer("1")}),
                            takenOut);
    }
}

TEST(TreeRepair, aNodeAfterThePairsOfAnInlineTableIsTakenOut)
{
    for (const std::string node : {R"(<invalid> "Tree Error Node")", R"(NL "\n")", "VAL_ARRAY",
                                   "KEY_BARE", "HEADER_TABLE", "WS"})
    {
        expectReportedValue("VAL_INLINE_TABLE(" + node + ")", inlineTable({}), takenOut);
        expectReportedValue("VAL_INLINE_TABLE(" + a + ", " + node + ")", inlineTable({aIsOne}),
                            takenOut);
    }
}

TEST(TreeRepair, aNodeAfterThePartsOfADottedKeyIsTakenOut)
{
    for (const std::string node :
         {R"(<invalid> "Tree Error Node")", R"(BARE_KEY "b")", "KEY_DOTTED", "VAL_INTEGER"})
    {
        const std::string key = "KEY_DOTTED(" + keyA + ", " + node + ")";
        const Events keyEvents = dotted({bare("a")});
        expectReported({
            {"KEYVAL(" + key + ", " + one + ")" + end, document({pair(keyEvents, integer("1"))}),
             takenOut},
            {"HEADER_TABLE(" + key + ")" + end, document({table(keyEvents)}), takenOut},
            {"HEADER_ARRAY_TABLE(" + key + ")" + end, document({arrayTable(keyEvents)}), takenOut},
        });
    }
}

// Until a node has been matched by itself the runtime repairs on without reporting.
TEST(TreeRepair, repairsInARowAreReportedOnce)
{
    // The root is taken out for its children, then the key's token is taken as missing.
    expectReported({{"KEYVAL(KEY_BARE, " + one + ")" + end,
                     brokenOff({{"beginKeyValue"}, bare("<missing BARE_KEY>")}), takenOut, false}});
    // A node before each of two ends of children.
    expectReportedValue("VAL_ARRAY(VAL_ARRAY(" + one + ", KEY_BARE), KEYVAL)",
                        array({array({integer("1")})}), takenOut);
}

TEST(TreeRepair, everyRepairAfterAMatchIsReported)
{
    expectReported({
        {a + R"( WS " " COMMENT "#")" + end,
         document({aIsOne}),
         {"missing token", "unwanted token"}},
        {a + R"( COMMENT "#" NL "\n" )" + a + R"( COMMENT "#")" + end,
         document({aIsOne, aIsOne}),
         {"unwanted token", "unwanted token"}},
    });
    expectReportedValue("VAL_ARRAY(VAL_ARRAY(" + one + ", KEY_BARE), " + one + ", KEYVAL)",
                        array({array({integer("1")}), integer("1")}),
                        {"unwanted token", "unwanted token"});
}
