// Trees that do not have the shape that is due somewhere, where taking out or adding one
// node would not help: the walk breaks off there, and nothing is reported.
#include <gtest/gtest.h>

#include "support/event_lists.h"
#include "support/tree_samples.h"
#include "support/tree_walking.h"

using namespace test;

namespace
{

// The tree in the place of the value of the key a.
void expectValuesBrokenOff(const std::vector<TreeCase>& values)
{
    for (const TreeCase& value : values)
    {
        expectBrokenOff({{"KEYVAL(" + keyA + ", " + value.trees + ")" + end,
                          brokenOff({{"beginKeyValue"}, bare("a"), value.events})}});
    }
}

// The tree in the place of the key of a pair and of both kinds of headers.  The value has
// no children, which a key that lacks its own could take.
void expectKeysBrokenOff(const std::vector<TreeCase>& keys)
{
    for (const TreeCase& key : keys)
    {
        expectBrokenOff({
            {"KEYVAL(" + key.trees + ", VAL_ARRAY)" + end,
             brokenOff({{"beginKeyValue"}, key.events})},
            {"HEADER_TABLE(" + key.trees + ")" + end, brokenOff({{"beginTable"}, key.events})},
            {"HEADER_ARRAY_TABLE(" + key.trees + ")" + end,
             brokenOff({{"beginArrayTable"}, key.events})},
        });
    }
}

} // namespace

TEST(TreeMismatch, aLineWithoutALineBreakAtTheEnd)
{
    expectBrokenOff({
        {a + " EOF", brokenOff({aIsOne})},
        {a, brokenOff({aIsOne})},
        {"HEADER_TABLE(" + keyA + ") EOF", brokenOff({table(bare("a"))})},
        {"HEADER_ARRAY_TABLE(" + keyA + ") EOF", brokenOff({arrayTable(bare("a"))})},
        {R"(WS " " EOF)", brokenOff({})},
        {R"(WS " " WS " ")", brokenOff({})},
        {a + R"( NL "\n" )" + a + " EOF", brokenOff({aIsOne, aIsOne})},
    });
}

TEST(TreeMismatch, aLineBeforeNodesThatAreNoLine)
{
    for (const std::string& node : noLines)
    {
        const std::string two = " " + node + " " + node;
        expectBrokenOff({
            {a + " " + node, brokenOff({aIsOne})},
            {a + " " + node + " EOF", brokenOff({aIsOne})},
            {a + two + end, brokenOff({aIsOne})},
            {"HEADER_TABLE(" + keyA + ")" + two + end, brokenOff({table(bare("a"))})},
            {"HEADER_ARRAY_TABLE(" + keyA + ")" + two + end, brokenOff({arrayTable(bare("a"))})},
            {R"(WS " ")" + two + end, brokenOff({})},
        });
    }
    expectBrokenOff(
        {{a + " " + keyA + end, brokenOff({aIsOne})}, {a + " " + one + end, brokenOff({aIsOne})}});
}

TEST(TreeMismatch, aNodeThatBeginsNoLine)
{
    for (const std::string& node : noLines)
    {
        expectBrokenOff({
            {node + end, brokenOff({})},
            {node + " " + node + " EOF", brokenOff({})},
            {node + " " + a + end, brokenOff({})},
            {a + R"( NL "\n" )" + node + " " + node + " EOF", brokenOff({aIsOne})},
            {R"(NL "\n" )" + node + R"( NL "\n" )" + a + end, brokenOff({})},
        });
    }
    expectBrokenOff(
        {{keyA, brokenOff({})}, {keyA + end, brokenOff({})}, {one + end, brokenOff({})}});
}

TEST(TreeMismatch, aRootWithoutChildren)
{
    expectBrokenOff({
        {"KEYVAL" + end, brokenOff({{"beginKeyValue"}})},
        {"HEADER_TABLE" + end, brokenOff({{"beginTable"}})},
        {"HEADER_ARRAY_TABLE" + end, brokenOff({{"beginArrayTable"}})},
        {"KEYVAL()" + end, brokenOff({{"beginKeyValue"}})},
        {"HEADER_TABLE()" + end, brokenOff({{"beginTable"}})},
        {"HEADER_ARRAY_TABLE()" + end, brokenOff({{"beginArrayTable"}})},
        {"KEYVAL(" + keyA + ")" + end, brokenOff({{"beginKeyValue"}, bare("a")})},
    });
    expectKeysBrokenOff({
        {"KEY_BARE", {}},
        {"KEY_QUOTED", {}},
        {"KEY_DOTTED", {"beginDottedKey"}},
        {"KEY_DOTTED()", {"beginDottedKey"}},
        {"KEY_DOTTED(KEY_BARE)", {"beginDottedKey"}},
    });
    for (const std::string root :
         {"VAL_BOOL", "VAL_FLOAT", "VAL_INTEGER", "VAL_LOCAL_DATE", "VAL_LOCAL_DATE_TIME",
          "VAL_LOCAL_TIME", "VAL_OFFSET_DATE_TIME", "VAL_STRING_BASIC", "VAL_STRING_LITERAL",
          "VAL_STRING_ML_BASIC", "VAL_STRING_ML_LITERAL"})
    {
        expectValuesBrokenOff({{root, {}}});
    }
}

TEST(TreeMismatch, rootsWithoutChildrenBeforeATreeWithChildren)
{
    expectBrokenOff({
        {"KEYVAL KEYVAL " + a + end, brokenOff({{"beginKeyValue"}})},
        {"HEADER_TABLE KEYVAL HEADER_TABLE(" + keyA + ")" + end, brokenOff({{"beginTable"}})},
        {"HEADER_ARRAY_TABLE KEYVAL HEADER_TABLE(" + keyA + ")" + end,
         brokenOff({{"beginArrayTable"}})},
        {"KEYVAL(KEY_BARE, VAL_ARRAY, " + one + ")" + end, brokenOff({{"beginKeyValue"}})},
        {"KEYVAL(KEY_QUOTED, VAL_ARRAY, " + one + ")" + end, brokenOff({{"beginKeyValue"}})},
    });
    expectKeysBrokenOff({{"KEY_DOTTED(KEY_BARE, KEY_BARE, " + keyA + ")", {"beginDottedKey"}}});
    expectValuesBrokenOff({
        {"VAL_ARRAY(VAL_INTEGER, VAL_ARRAY, " + one + ")", {"beginArray"}},
        {"VAL_ARRAY(VAL_BOOL, VAL_BOOL, VAL_LOCAL_DATE(LOCAL_DATE \"x\"))", {"beginArray"}},
        {"VAL_INLINE_TABLE(KEYVAL, KEYVAL, " + a + ")", {"beginInlineTable", "beginKeyValue"}},
    });
}

TEST(TreeMismatch, anotherTreeWhereAKeyIsDue)
{
    for (const std::string tree : {R"(<invalid> "Tree Error Node")", R"(BARE_KEY "a")",
                                   R"(BASIC_STRING "\"a\"")", "KEYVAL", "NL", one.c_str()})
    {
        expectKeysBrokenOff({
            {tree, {}},
            {"KEY_DOTTED(" + tree + ")", {"beginDottedKey"}},
        });
    }
    expectKeysBrokenOff({{"KEY_DOTTED(KEY_DOTTED(" + keyA + "))", {"beginDottedKey"}}});
}

TEST(TreeMismatch, otherTreesAfterAPartOfADottedKey)
{
    for (const std::string trees :
         {R"(<invalid> "Tree Error Node", <invalid> "Tree Error Node")",
          R"(BARE_KEY "b", BARE_KEY "b")", "KEY_DOTTED, KEY_BARE", one.c_str(), a.c_str()})
    {
        expectKeysBrokenOff({{"KEY_DOTTED(" + keyA + ", " + trees + ")",
                              concatenated({{"beginDottedKey"}, bare("a")})}});
    }
}

TEST(TreeMismatch, anotherTreeWhereAValueIsDue)
{
    for (const std::string& node : noValues)
    {
        expectValuesBrokenOff({{node, {}}, {node + ", " + one, {}}});
    }
    expectValuesBrokenOff({{keyA, {}}, {"KEY_DOTTED(" + keyA + ")", {}}, {a, {}}});
}

TEST(TreeMismatch, otherTreesAmongTheElementsOfAnArray)
{
    for (const std::string& node : noValues)
    {
        expectValuesBrokenOff({
            {"VAL_ARRAY(" + node + ", " + node + ")", {"beginArray"}},
            {"VAL_ARRAY(" + node + ", " + one + ")", {"beginArray"}},
            {"VAL_ARRAY(" + one + ", " + node + ", " + node + ")",
             {"beginArray", "visitInteger 1"}},
            {"VAL_ARRAY(" + one + ", " + node + ", " + one + ")", {"beginArray", "visitInteger 1"}},
        });
    }
    for (const std::string& tree : {keyA, a})
    {
        expectValuesBrokenOff({
            {"VAL_ARRAY(" + tree + ")", {"beginArray"}},
            {"VAL_ARRAY(" + one + ", " + tree + ")", {"beginArray", "visitInteger 1"}},
        });
    }
}

TEST(TreeMismatch, otherTreesAmongThePairsOfAnInlineTable)
{
    for (const std::string node :
         {R"(<invalid> "Tree Error Node")", R"(NL "\n")", "VAL_ARRAY", "HEADER_TABLE", "WS"})
    {
        const std::string two = node + ", " + node;
        expectValuesBrokenOff({
            {"VAL_INLINE_TABLE(" + two + ")", {"beginInlineTable"}},
            {"VAL_INLINE_TABLE(" + a + ", " + two + ")",
             concatenated({{"beginInlineTable"}, aIsOne})},
            {"VAL_INLINE_TABLE(" + node + ", " + a + ")", {"beginInlineTable"}},
        });
    }
    for (const std::string& tree : {one, keyA})
    {
        expectValuesBrokenOff({
            {"VAL_INLINE_TABLE(" + tree + ")", {"beginInlineTable"}},
            {"VAL_INLINE_TABLE(" + a + ", " + tree + ")",
             concatenated({{"beginInlineTable"}, aIsOne})},
        });
    }
}

TEST(TreeMismatch, childrenTooMany)
{
    for (const std::string trees : {R"(BARE_KEY "x", BARE_KEY "x")", R"(NL "\n", WS " ")",
                                    "VAL_ARRAY, VAL_ARRAY", keyA.c_str()})
    {
        expectBrokenOff({
            {"KEYVAL(" + keyA + ", " + one + ", " + trees + ")" + end,
             brokenOff({{"beginKeyValue"}, bare("a"), integer("1")})},
            {"HEADER_TABLE(" + keyA + ", " + trees + ")" + end,
             brokenOff({{"beginTable"}, bare("a")})},
            {"HEADER_ARRAY_TABLE(" + keyA + ", " + trees + ")" + end,
             brokenOff({{"beginArrayTable"}, bare("a")})},
        });
        expectKeysBrokenOff({
            {R"(KEY_BARE(BARE_KEY "a", )" + trees + ")", {}},
            {R"(KEY_QUOTED(BASIC_STRING "\"a\"", )" + trees + ")", {}},
        });
        expectValuesBrokenOff({
            {R"(VAL_INTEGER(DEC_INT "1", )" + trees + ")", {}},
            {R"(VAL_FLOAT(FLOAT "1.5", )" + trees + ")", {}},
            {R"(VAL_BOOL(BOOLEAN "true", )" + trees + ")", {}},
            {R"(VAL_STRING_BASIC(BASIC_STRING "\"\"", )" + trees + ")", {}},
            {R"(VAL_LOCAL_TIME(LOCAL_TIME "07:32:00", )" + trees + ")", {}},
        });
    }
}

TEST(TreeMismatch, aTokenWithAChild)
{
    expectKeysBrokenOff({{R"(KEY_BARE(BARE_KEY "a"(BARE_KEY "b")))", {}}});
    expectValuesBrokenOff({{R"(VAL_FLOAT(FLOAT "1.5"(INF "inf")))", {}}});
}

TEST(TreeMismatch, theEndsOfAllOpenConstructsAreLeftOut)
{
    expectValuesBrokenOff({
        {"VAL_ARRAY(VAL_INLINE_TABLE(" + a + ", KEYVAL(KEY_DOTTED(" + keyA +
             "), VAL_ARRAY(VAL_ARRAY(" + one + ", VAL_BOOL)))))",
         concatenated({{"beginArray", "beginInlineTable"},
                       aIsOne,
                       {"beginKeyValue"},
                       dotted({bare("a")}),
                       {"beginArray", "beginArray", "visitInteger 1"}})},
    });
}
