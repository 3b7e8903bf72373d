// The trees of scalars and inline tables.
#include <gtest/gtest.h>

#include "support/parsing.h"

using namespace test;

namespace
{

const std::string keyA = R"(KEY_BARE(BARE_KEY "a"))";
const std::string keyX = R"(KEY_BARE(BARE_KEY "x"))";

std::string pairOf(const std::string& key, const std::string& value)
{
    return "KEYVAL(" + key + ", " + value + ")";
}

// The value of `a = value`, alone on its line and with blanks and a comment after it.
void expectValues(const std::vector<AcceptedDocument>& values)
{
    for (const AcceptedDocument& value : values)
    {
        const std::string tree = pairOf(keyA, value.trees);
        expectParsed({{"a = " + value.text + "\n", tree + R"( NL "\n" EOF)"},
                      {"a=" + value.text, tree + " EOF"},
                      {"a = " + value.text + "\t# comment", tree + " EOF"}});
    }
}

// Values whose text needs no escape in the notation.
void expectScalars(const std::string& root, const std::string& token,
                   const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        expectValues({{text, root + "(" + token + " \"" + text + "\")"}});
    }
}

void expectRejectedValues(const ErrorKinds& errors, const std::vector<std::string>& values)
{
    for (const std::string& value : values)
    {
        expectRejected(errors, {"a = " + value});
    }
}

} // namespace

TEST(ParserValue, integersKeepTheirTokenAndText)
{
    expectScalars("VAL_INTEGER", "DEC_INT", {"0", "1", "+1", "-17", "1_000"});
    expectScalars("VAL_INTEGER", "HEX_INT", {"0x1F", "0xdead_BEEF"});
    expectScalars("VAL_INTEGER", "OCT_INT", {"0o7", "0o01_7"});
    expectScalars("VAL_INTEGER", "BIN_INT", {"0b1", "0b1_0"});
}

TEST(ParserValue, floatsKeepTheirTokenAndText)
{
    expectScalars("VAL_FLOAT", "FLOAT", {"1.5", "1.5e3", "1e5", "-0.5", "+6.626E-34", "1_0.0_1"});
    expectScalars("VAL_FLOAT", "INF", {"inf", "+inf", "-inf"});
    expectScalars("VAL_FLOAT", "NAN", {"nan", "+nan", "-nan"});
}

TEST(ParserValue, booleansKeepTheirText)
{
    expectScalars("VAL_BOOL", "BOOLEAN", {"true", "false"});
}

TEST(ParserValue, datesAndTimesKeepTheirText)
{
    expectScalars(
        "VAL_OFFSET_DATE_TIME", "OFFSET_DATE_TIME",
        {"1979-05-27T07:32:00Z", "1979-05-27 07:32:00.5-07:00", "1979-05-27t07:32:00+01:30"});
    expectScalars("VAL_LOCAL_DATE_TIME", "LOCAL_DATE_TIME",
                  {"1979-05-27T07:32:00", "1979-05-27 07:32:00.999"});
    expectScalars("VAL_LOCAL_DATE", "LOCAL_DATE", {"1979-05-27"});
    expectScalars("VAL_LOCAL_TIME", "LOCAL_TIME", {"07:32:00", "00:32:00.999999"});
}

TEST(ParserValue, stringsKeepTheirDelimitersAndEscapes)
{
    expectValues({
        {R"("x")", R"(VAL_STRING_BASIC(BASIC_STRING "\"x\""))"},
        {R"("")", R"(VAL_STRING_BASIC(BASIC_STRING "\"\""))"},
        {R"("\t\"\u00e9")", R"(VAL_STRING_BASIC(BASIC_STRING "\"\\t\\\"\\u00e9\""))"},
        {"\"\xc3\xa9\"", "VAL_STRING_BASIC(BASIC_STRING \"\\\"\xc3\xa9\\\"\")"},
        {"'x'", R"(VAL_STRING_LITERAL(LITERAL_STRING "'x'"))"},
        {"''", R"(VAL_STRING_LITERAL(LITERAL_STRING "''"))"},
        {R"('\d')", R"(VAL_STRING_LITERAL(LITERAL_STRING "'\\d'"))"},
        {R"("""x""")", R"(VAL_STRING_ML_BASIC(ML_BASIC_STRING "\"\"\"x\"\"\""))"},
        {R"("""""")", R"(VAL_STRING_ML_BASIC(ML_BASIC_STRING "\"\"\"\"\"\""))"},
        {"\"\"\"\na\\\n  b\n\"\"\"",
         R"(VAL_STRING_ML_BASIC(ML_BASIC_STRING "\"\"\"\na\\\n  b\n\"\"\""))"},
        {"'''x'''", R"(VAL_STRING_ML_LITERAL(ML_LITERAL_STRING "'''x'''"))"},
        {"''''''", R"(VAL_STRING_ML_LITERAL(ML_LITERAL_STRING "''''''"))"},
        {"'''\r\n\\a\n# no comment'''",
         R"(VAL_STRING_ML_LITERAL(ML_LITERAL_STRING "'''\r\n\\a\n# no comment'''"))"},
    });
}

TEST(ParserValue, inlineTablesHoldTheirPairs)
{
    const std::string x = pairOf(keyX, R"(VAL_INTEGER(DEC_INT "1"))");
    const std::string yz = pairOf(R"(KEY_DOTTED(KEY_BARE(BARE_KEY "y"), KEY_BARE(BARE_KEY "z")))",
                                  R"(VAL_INTEGER(DEC_INT "2"))");
    expectValues({
        {"{x=1}", "VAL_INLINE_TABLE(" + x + ")"},
        {"{ x = 1 }", "VAL_INLINE_TABLE(" + x + ")"},
        {"{ x = 1, y.z = 2 }", "VAL_INLINE_TABLE(" + x + ", " + yz + ")"},
        {"{y.z=2\t,\tx=1,x=1}", "VAL_INLINE_TABLE(" + yz + ", " + x + ", " + x + ")"},
        {R"({"x" = 'y'})", "VAL_INLINE_TABLE(" +
                               pairOf(R"(KEY_QUOTED(BASIC_STRING "\"x\""))",
                                      R"(VAL_STRING_LITERAL(LITERAL_STRING "'y'"))") +
                               ")"},
    });
}

TEST(ParserValue, inlineTablesNest)
{
    const std::string one = R"(VAL_INTEGER(DEC_INT "1"))";
    const std::string innermost = "VAL_INLINE_TABLE(" + pairOf(keyX, one) + ")";
    const std::string array = "VAL_ARRAY(" + one + ", " + innermost + ")";
    expectValues({
        {"{x = {x = {x = 1}}}",
         "VAL_INLINE_TABLE(" + pairOf(keyX, "VAL_INLINE_TABLE(" + pairOf(keyX, innermost) + ")") +
             ")"},
        {"{x = [1, {x = 1}]}", "VAL_INLINE_TABLE(" + pairOf(keyX, array) + ")"},
        {"{x = [\n1\n,\n{x = 1}\n], a = 1}",
         "VAL_INLINE_TABLE(" + pairOf(keyX, array) + ", " + pairOf(keyA, one) + ")"},
    });
}

TEST(ParserValue, anythingElseIsNoValue)
{
    expectRejectedValues({noAlternative}, {"", "\n", "# comment\n", "hello", "hello\n", "truex",
                                           "1979-", "]", "}", ",", "=", "."});
}

TEST(ParserValue, inlineTablesAreNeverEmpty)
{
    expectRejectedValues({noAlternative}, {"{}", "{ }", "{,}", "{", "[{}]"});
    expectRejectedValues({noAlternative, missing}, {"{x = {}}"});
}

TEST(ParserValue, inlineTablesSeparateTheirPairsByOneCommaEach)
{
    expectRejectedValues({noAlternative}, {"{x = 1,}", "{,x = 1}", "{x = 1,, y = 2}", "{x}",
                                           "{1 = 1}", "{true = 1}"});
    expectRejectedValues({missing}, {"{x = 1 y = 2}", "{x = 1", "{x = 1]"});
}

TEST(ParserValue, inlineTablesStandOnOneLine)
{
    expectRejectedValues({noAlternative},
                         {"{\nx = 1}", "{x = 1,\ny = 2}", "{x\n= 1}", "{x = 1, # comment\ny = 2}"});
    expectRejectedValues({unwanted}, {"{x = 1\n}", "[1, {x = 1\n}]"});
    expectRejectedValues({missing, noAlternative}, {"{x = 1\n, y = 2}"});
    expectRejectedValues({noAlternative, noAlternative}, {"{x =\n1}"});
}
