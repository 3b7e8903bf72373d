// The visitor calls for the trees that the tree parser takes, also such as the parser
// never makes.
#include <gtest/gtest.h>

#include "support/event_lists.h"
#include "support/tree_samples.h"
#include "support/tree_walking.h"

using namespace test;

namespace
{

const std::string b = R"(KEYVAL(KEY_BARE(BARE_KEY "b"), VAL_INTEGER(DEC_INT "2")))";

const Events bIsTwo = pair(bare("b"), integer("2"));

// The value of the key a.
void expectValues(const std::vector<TreeCase>& values)
{
    for (const TreeCase& value : values)
    {
        expectWalked({{"KEYVAL(" + keyA + ", " + value.trees + ")" + end,
                       document({pair(bare("a"), value.events)})}});
    }
}

// The key of a pair and of both kinds of headers.
void expectKeys(const std::vector<TreeCase>& keys)
{
    for (const TreeCase& key : keys)
    {
        expectWalked({
            {"KEYVAL(" + key.trees + ", " + one + ")" + end,
             document({pair(key.events, integer("1"))})},
            {"HEADER_TABLE(" + key.trees + ")" + end, document({table(key.events)})},
            {"HEADER_ARRAY_TABLE(" + key.trees + ")" + end, document({arrayTable(key.events)})},
        });
    }
}

// A scalar under its root.
void expectScalars(const std::string& root, const std::string& operation,
                   const std::vector<std::string>& tokens)
{
    for (const std::string& token : tokens)
    {
        expectValues({{root + "(" + token + R"( "some \t \"text\"\n"))",
                       scalar(operation, "some \t \"text\"\n")}});
    }
}

} // namespace

TEST(TreeWalk, aListWithoutLinesMakesOnlyTheCallsOfTheDocument)
{
    expectWalked({{"EOF", document({})}});
}

// The node stream ends every list itself.
TEST(TreeWalk, aListMayLackItsEndOfInputNode)
{
    expectWalked({
        {"", document({})},
        {R"(NL "\n")", document({})},
        {a + R"( NL "\n")", document({aIsOne})},
    });
}

TEST(TreeWalk, lineBreaksMakeNoCalls)
{
    expectWalked({
        {R"(NL "\n" EOF)", document({})},
        {R"(NL "\n\n\n" EOF)", document({})},
        {R"(NL "\n" NL "\r\n" NL "\n" EOF)", document({})},
        {"NL EOF", document({})},
    });
}

TEST(TreeWalk, blanksBeforeALineBreakMakeNoCalls)
{
    expectWalked({
        {R"(WS " " NL "\n" EOF)", document({})},
        {R"(WS " " WS "\t" WS " " NL "\n" EOF)", document({})},
        {R"(NL "\n" WS " " NL "\n" NL "\n" WS " " NL "\n" EOF)", document({})},
        {a + R"( NL "\n" WS " " NL "\n" )" + b + end, document({aIsOne, bIsTwo})},
    });
}

TEST(TreeWalk, linesAreWalkedInOrder)
{
    expectWalked({
        {a + end, document({aIsOne})},
        {R"(NL "\n" )" + a + R"( NL "\n" NL "\n" )" + b + end, document({aIsOne, bIsTwo})},
        {b + R"( NL "\n" )" + a + end, document({bIsTwo, aIsOne})},
        {"HEADER_TABLE(" + keyA + R"() NL "\n" )" + a + R"( NL "\n" HEADER_ARRAY_TABLE()" + keyA +
             R"() NL "\n" )" + b + end,
         document({table(bare("a")), aIsOne, arrayTable(bare("a")), bIsTwo})},
    });
}

TEST(TreeWalk, keysAreVisitedByTheirKind)
{
    expectKeys({
        {R"(KEY_BARE(BARE_KEY "key"))", bare("key")},
        {R"(KEY_QUOTED(BASIC_STRING "\"key\""))", quoted("\"key\"")},
        {R"(KEY_QUOTED(LITERAL_STRING "'key'"))", quoted("'key'")},
    });
}

TEST(TreeWalk, dottedKeysEncloseTheirParts)
{
    expectKeys({
        {"KEY_DOTTED(" + keyA + ")", dotted({bare("a")})},
        {"KEY_DOTTED(" + keyA + R"(, KEY_BARE(BARE_KEY "b"), KEY_BARE(BARE_KEY "c")))",
         dotted({bare("a"), bare("b"), bare("c")})},
        {R"(KEY_DOTTED(KEY_QUOTED(BASIC_STRING "\"u\""), KEY_BARE(BARE_KEY "t"), )"
         R"(KEY_QUOTED(LITERAL_STRING "'v'")))",
         dotted({quoted("\"u\""), bare("t"), quoted("'v'")})},
    });
}

TEST(TreeWalk, scalarsAreVisitedByTheirKindWithTheTextOfTheirToken)
{
    expectScalars("VAL_STRING_BASIC", "visitBasicString", {"BASIC_STRING"});
    expectScalars("VAL_STRING_ML_BASIC", "visitMultilineBasicString", {"ML_BASIC_STRING"});
    expectScalars("VAL_STRING_LITERAL", "visitLiteralString", {"LITERAL_STRING"});
    expectScalars("VAL_STRING_ML_LITERAL", "visitMultilineLiteralString", {"ML_LITERAL_STRING"});
    expectScalars("VAL_INTEGER", "visitInteger", {"BIN_INT", "DEC_INT", "HEX_INT", "OCT_INT"});
    expectScalars("VAL_FLOAT", "visitFloat", {"FLOAT", "INF", "NAN"});
    expectScalars("VAL_BOOL", "visitBoolean", {"BOOLEAN"});
    expectScalars("VAL_OFFSET_DATE_TIME", "visitOffsetDateTime", {"OFFSET_DATE_TIME"});
    expectScalars("VAL_LOCAL_DATE_TIME", "visitLocalDateTime", {"LOCAL_DATE_TIME"});
    expectScalars("VAL_LOCAL_DATE", "visitLocalDate", {"LOCAL_DATE"});
    expectScalars("VAL_LOCAL_TIME", "visitLocalTime", {"LOCAL_TIME"});
}

TEST(TreeWalk, aTextIsNeverNull)
{
    expectValues({{R"(VAL_INTEGER(DEC_INT ""))", integer("")},
                  {R"(VAL_BOOL(BOOLEAN ""))", scalar("visitBoolean", "")}});
    // The node stream writes a node without a text as a blank and its type.
    expectValues({{"VAL_INTEGER(DEC_INT)", integer(" 11")},
                  {"VAL_BOOL(BOOLEAN)", scalar("visitBoolean", " 8")}});
    expectKeys({{R"(KEY_BARE(BARE_KEY ""))", bare("")}, {"KEY_BARE(BARE_KEY)", bare(" 5")}});
}

TEST(TreeWalk, arraysEncloseTheirElements)
{
    expectValues({
        {"VAL_ARRAY(" + one + ")", array({integer("1")})},
        {"VAL_ARRAY(" + one +
             R"(, VAL_FLOAT(NAN "nan"), VAL_BOOL(BOOLEAN "true"), )"
             R"(VAL_STRING_BASIC(BASIC_STRING "\"s\""), )"
             R"(VAL_STRING_LITERAL(LITERAL_STRING "'s'"), )"
             R"(VAL_STRING_ML_BASIC(ML_BASIC_STRING "m"), )"
             R"(VAL_STRING_ML_LITERAL(ML_LITERAL_STRING "n"), )"
             R"(VAL_OFFSET_DATE_TIME(OFFSET_DATE_TIME "o"), )"
             R"(VAL_LOCAL_DATE_TIME(LOCAL_DATE_TIME "p"), )"
             R"(VAL_LOCAL_DATE(LOCAL_DATE "q"), VAL_LOCAL_TIME(LOCAL_TIME "r"), )"
             "VAL_ARRAY(" +
             one + "), VAL_INLINE_TABLE(" + a + "))",
         array({integer("1"), scalar("visitFloat", "nan"), scalar("visitBoolean", "true"),
                scalar("visitBasicString", "\"s\""), scalar("visitLiteralString", "'s'"),
                scalar("visitMultilineBasicString", "m"),
                scalar("visitMultilineLiteralString", "n"), scalar("visitOffsetDateTime", "o"),
                scalar("visitLocalDateTime", "p"), scalar("visitLocalDate", "q"),
                scalar("visitLocalTime", "r"), array({integer("1")}), inlineTable({aIsOne})})},
    });
}

TEST(TreeWalk, inlineTablesEncloseTheirPairs)
{
    expectValues({
        {"VAL_INLINE_TABLE(" + a + ")", inlineTable({aIsOne})},
        {"VAL_INLINE_TABLE(" + a + ", " + b + ", " + a + ")",
         inlineTable({aIsOne, bIsTwo, aIsOne})},
    });
}

TEST(TreeWalk, arraysAndInlineTablesMayBeEmpty)
{
    expectValues({
        {"VAL_ARRAY", array({})},
        {"VAL_ARRAY()", array({})},
        {"VAL_INLINE_TABLE", inlineTable({})},
        {"VAL_INLINE_TABLE()", inlineTable({})},
        {R"(VAL_ARRAY(VAL_BOOL(BOOLEAN "true"), VAL_INLINE_TABLE))",
         array({scalar("visitBoolean", "true"), inlineTable({})})},
        {"VAL_ARRAY(VAL_ARRAY, VAL_ARRAY(), VAL_INLINE_TABLE, VAL_INLINE_TABLE(), VAL_ARRAY)",
         array({array({}), array({}), inlineTable({}), inlineTable({}), array({})})},
        {"VAL_INLINE_TABLE(KEYVAL(" + keyA + ", VAL_ARRAY), KEYVAL(" + keyA +
             ", VAL_INLINE_TABLE))",
         inlineTable({pair(bare("a"), array({})), pair(bare("a"), inlineTable({}))})},
    });
}

TEST(TreeWalk, arraysAndInlineTablesNestDeeply)
{
    constexpr int depth = 1000;
    std::string trees = one;
    std::vector<std::string> open;
    std::vector<std::string> close;
    for (int level = 0; level < depth; ++level)
    {
        trees = "VAL_ARRAY(VAL_INLINE_TABLE(KEYVAL(" + keyA + ", " + trees + ")))";
        open.insert(open.end(),
                    {"beginArray", "beginInlineTable", "beginKeyValue", "visitBareKey a"});
        close.insert(close.end(), {"endKeyValue", "endInlineTable", "endArray"});
    }
    expectValues({{trees, concatenated({open, integer("1"), close})}});
}
