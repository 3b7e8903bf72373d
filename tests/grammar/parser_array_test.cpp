// The trees of arrays, and where a line may break inside them.
#include <gtest/gtest.h>

#include "support/parsing.h"

using namespace test;

namespace
{

const std::string one = R"(VAL_INTEGER(DEC_INT "1"))";
const std::string two = R"(VAL_INTEGER(DEC_INT "2"))";
const std::string three = R"(VAL_INTEGER(DEC_INT "3"))";

std::string arrayOf(const std::vector<std::string>& elements)
{
    std::string text;
    for (const std::string& element : elements)
    {
        text += (text.empty() ? "" : ", ") + element;
    }
    return "VAL_ARRAY(" + text + ")";
}

// Each of the texts as the value of `a = value` has the tree.
void expectArrays(const std::string& tree, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        expectParsed({{"a = " + text + "\n",
                       R"(KEYVAL(KEY_BARE(BARE_KEY "a"), )" + tree + R"() NL "\n" EOF)"}});
    }
}

void expectRejectedArrays(const ErrorKinds& errors, const std::vector<std::string>& arrays)
{
    for (const std::string& array : arrays)
    {
        expectRejected(errors, {"a = " + array, "a = " + array + "\n"});
    }
}

} // namespace

TEST(ParserArray, holdsItsElementsInOrder)
{
    expectArrays(arrayOf({one}), {"[1]", "[ 1 ]", "[\t1\t]"});
    expectArrays(arrayOf({one, two}), {"[1, 2]", "[1,2]", "[ 1 , 2 ]"});
    expectArrays(arrayOf({two, one, three, one}), {"[2, 1, 3, 1]"});
}

TEST(ParserArray, takesElementsOfEveryKindTogether)
{
    const std::string x = R"(KEYVAL(KEY_BARE(BARE_KEY "x"), VAL_INTEGER(DEC_INT "4")))";
    expectArrays(arrayOf({one, R"(VAL_STRING_BASIC(BASIC_STRING "\"two\""))", arrayOf({three}),
                          "VAL_INLINE_TABLE(" + x + ")"}),
                 {R"([1, "two", [3], {x = 4}])"});
}

// The token after a comma decides whether an element follows.
TEST(ParserArray, takesAnyValueAfterAComma)
{
    const std::vector<AcceptedDocument> values = {
        {R"("s")", R"(VAL_STRING_BASIC(BASIC_STRING "\"s\""))"},
        {"'s'", R"(VAL_STRING_LITERAL(LITERAL_STRING "'s'"))"},
        {R"("""s""")", R"(VAL_STRING_ML_BASIC(ML_BASIC_STRING "\"\"\"s\"\"\""))"},
        {"'''s'''", R"(VAL_STRING_ML_LITERAL(ML_LITERAL_STRING "'''s'''"))"},
        {"5", R"(VAL_INTEGER(DEC_INT "5"))"},
        {"0x5", R"(VAL_INTEGER(HEX_INT "0x5"))"},
        {"0o5", R"(VAL_INTEGER(OCT_INT "0o5"))"},
        {"0b1", R"(VAL_INTEGER(BIN_INT "0b1"))"},
        {"1.5", R"(VAL_FLOAT(FLOAT "1.5"))"},
        {"inf", R"(VAL_FLOAT(INF "inf"))"},
        {"nan", R"(VAL_FLOAT(NAN "nan"))"},
        {"true", R"(VAL_BOOL(BOOLEAN "true"))"},
        {"1979-05-27T07:32:00Z",
         R"(VAL_OFFSET_DATE_TIME(OFFSET_DATE_TIME "1979-05-27T07:32:00Z"))"},
        {"1979-05-27T07:32:00", R"(VAL_LOCAL_DATE_TIME(LOCAL_DATE_TIME "1979-05-27T07:32:00"))"},
        {"1979-05-27", R"(VAL_LOCAL_DATE(LOCAL_DATE "1979-05-27"))"},
        {"07:32:00", R"(VAL_LOCAL_TIME(LOCAL_TIME "07:32:00"))"},
        {"[2]", arrayOf({two})},
        {"{x=1}", "VAL_INLINE_TABLE(KEYVAL(KEY_BARE(BARE_KEY \"x\"), " + one + "))"},
    };
    for (const AcceptedDocument& value : values)
    {
        expectArrays(arrayOf({value.trees, one, value.trees}),
                     {"[" + value.text + ",1," + value.text + "]",
                      "[\n" + value.text + "\n,\n1\n,\n" + value.text + "\n]",
                      "[" + value.text + ",1," + value.text + ",]"});
    }
}

TEST(ParserArray, nests)
{
    expectArrays(arrayOf({arrayOf({arrayOf({one})})}), {"[[[1]]]", "[ [ [ 1 ] ] ]", "[[[1,],],]"});
    expectArrays(arrayOf({arrayOf({one, two}), arrayOf({three})}),
                 {"[[1, 2], [3]]", "[\n[\n1,\n2\n]\n,\n[\n3]\n]"});
}

TEST(ParserArray, breaksLinesAfterItsBracketAroundCommasAndAfterLaterElements)
{
    expectArrays(arrayOf({one}), {"[\n1]", "[\n\n1]", "[\r\n1]", "[\n1,]", "[# comment\n1]"});
    expectArrays(arrayOf({one, two}),
                 {"[\n1, 2]", "[1\n, 2]", "[1,\n2]", "[1, 2\n]", "[\n1\n,\n2\n]", "[\n  1,\n  2 ]",
                  "[\n  1,\n  2\n]", "[1,\n\n2]", "[\n\n1\n\n,\n\n2\n\n]", "[1, # comment\n  2]",
                  "[1 # comment\n, 2]", "[ # comment\n 1, 2]", "[\n 1, # one\n 2 # two\n]"});
    expectArrays(arrayOf({one, two, three}),
                 {"[\n1,\n2,\n3\n]", "[1\n,2\n,3]", "[1, 2\n,3]", "[1, 2\n, 3\n]"});
}

TEST(ParserArray, closesRightAfterATrailingComma)
{
    expectArrays(arrayOf({one}), {"[1,]", "[1 , ]", "[\n1,]"});
    expectArrays(arrayOf({one, two}), {"[1, 2,]", "[1, 2 , ]", "[\n1,\n2,]"});
}

// The break after a later element is part of that element, so a comma may follow it.
TEST(ParserArray, breaksTheLineBeforeATrailingCommaAfterALaterElement)
{
    expectArrays(arrayOf({one, two}), {"[1, 2\n,]"});
}

TEST(ParserArray, isNeverEmpty)
{
    expectRejectedArrays({noAlternative},
                         {"[]", "[ ]", "[\n]", "[# comment\n]", "[,]", "[[]]", "[1, []]"});
}

TEST(ParserArray, closesOnALineOfItsOwnOnlyAfterTwoElementsWithoutTrailingComma)
{
    expectRejectedArrays({notRepaired}, {"[1\n]", "[\n  1\n]", "[1 # comment\n]"});
    expectRejectedArrays({noAlternative}, {"[1,\n]", "[\n  1,\n]", "[1, 2,\n]", "[\n  1,\n  2,\n]",
                                           "[1, 2, # comment\n]"});
}

TEST(ParserArray, breaksTheLineOnceInEachPlace)
{
    expectRejectedArrays({noAlternative, missing}, {"[\n \n1]", "[\n# comment\n1]"});
    expectRejectedArrays({unwanted}, {"[1\n \n,2]", "[1 # one\n # comment\n,2]"});
    expectRejectedArrays({noAlternative, unwanted}, {"[1,\n \n2]", "[1,\n  # note\n  2]"});
    expectRejectedArrays({notRepaired}, {"[1, 2\n \n]", "[1, 2 # two\n # comment\n]"});
}

TEST(ParserArray, separatesItsElementsByOneCommaEach)
{
    expectRejectedArrays({noAlternative}, {"[,1]", "[b, 1]"});
    expectRejectedArrays({missing}, {"[1,,2]"});
    expectRejectedArrays({unwanted}, {"[1, 2,,]", "[1 2]", "[1, 2 3]", "[1, b]"});
}

TEST(ParserArray, isClosedByItsBracket)
{
    expectRejected({noAlternative}, {"a = [", "a = [\n"});
    expectRejected({missing}, {"a = [1", "a = [1, 2", "a = [1, 2\n", "a = [1}"});
    expectRejected({unwanted}, {"a = [1]]"});
}

TEST(ParserArray, anErrorInsideLeavesTheOtherLinesAsTheyAre)
{
    const ParsedDocument parsed = parseDocument("a = [1]\nb = [1\n]\nc = [2]\n");
    EXPECT_EQ(parsed.errors, ErrorKinds{notRepaired});
    const std::string first =
        R"(KEYVAL(KEY_BARE(BARE_KEY "a"), )" + arrayOf({one}) + R"() NL "\n" )";
    const std::string last =
        R"(KEYVAL(KEY_BARE(BARE_KEY "c"), )" + arrayOf({two}) + R"() NL "\n" EOF)";
    EXPECT_EQ(parsed.trees.substr(0, first.size()), first);
    EXPECT_EQ(parsed.trees.substr(parsed.trees.size() - std::min(last.size(), parsed.trees.size())),
              last);
}
