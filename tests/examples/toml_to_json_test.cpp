// toml_to_json: values, and what it complains of.
#include "examples/example_run.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

struct Case
{
    std::string toml;
    std::string json; // or the complaint
};

void expectValues(const std::vector<Case>& cases)
{
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.toml);
        const test::ProgramRun run = test::runOnText(TOML_TO_JSON, "a = " + c.toml + '\n');
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.standardOutput, "{\n  \"a\": " + c.json + "\n}\n");
        EXPECT_EQ(run.standardError, "");
    }
}

void expectComplaints(const std::vector<Case>& cases)
{
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.toml);
        const test::ProgramRun run = test::runOnText(TOML_TO_JSON, c.toml);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.standardOutput, "");
        EXPECT_EQ(run.standardError, "document.toml: " + c.json + '\n');
    }
}

void expectComplaint(const std::string& complaint, const std::vector<std::string>& documents)
{
    for (const std::string& document : documents)
    {
        expectComplaints({{document, complaint}});
    }
}

TEST(TomlToJson, ResolvesEscapes)
{
    expectValues({
        {R"("\b\f\n\r\t\"\\\'")", R"("\b\f\n\r\t\"\\'")"},
        {R"("a\u0062\U00000063d")", R"("abcd")"},
        {R"("\u0000\u001F\u007f")", "\"\\u0000\\u001f\x7f\""},
        {R"("\u0080\u07FF")", "\"\xc2\x80\xdf\xbf\""},
        {R"("\u0800\uD7FF\uE000\uFFFF")", "\"\xe0\xa0\x80\xed\x9f\xbf\xee\x80\x80\xef\xbf\xbf\""},
        {R"("\U00010000\U0010FFFF")", "\"\xf0\x90\x80\x80\xf4\x8f\xbf\xbf\""},
        {R"("\\u0041\\\u0041")", R"("\\u0041\\A")"},
        {R"('\t\u0041\')", R"("\\t\\u0041\\")"},
        {R"('''\t\''')", R"("\\t\\")"},
        {R"({ "\u0061\"\\b" = 1 })", "{\n    \"a\\\"\\\\b\": 1\n  }"},
    });
}

TEST(TomlToJson, JoinsTheLinesOfMultilineStrings)
{
    expectValues({
        {"\"\"\"\none\\\n \t two\"\"\"", R"("onetwo")"},
        {"\"\"\"\r\none\\\r\n\r\n  two\"\"\"", R"("onetwo")"},
        {"\"\"\"one\\\n  \\\n  two\\\n\"\"\"", R"("onetwo")"},
        // A backslash and a line break, not a backslash that joins lines.
        {"\"\"\"one\\\\\n  two\"\"\"", R"("one\\\n  two")"},
        {"\"\"\"one\\\\\\\n  two\"\"\"", R"("one\\two")"},
        {"\"\"\"\n\none\r\n\"\"\"", R"("\none\r\n")"},
        {"\"\"\"\"\"a\\\"\"\"\"\"", R"("\"\"a\"\"")"},
        {"'''\none\\\n  two'''", R"("one\\\n  two")"},
        {"'''\r\none\r\n'''", R"("one\r\n")"},
        {"''''one''''", R"("'one'")"},
    });
}

TEST(TomlToJson, PrintsNumbersAndBooleans)
{
    expectValues({
        {"true", "true"},
        {"false", "false"},
        {"+0", "0"},
        {"-1_000", "-1000"},
        {"+17", "17"},
        {"0x7FFF_ffff_FFFF_ffff", "9223372036854775807"},
        {"0o00_17", "15"},
        {"0b1" + std::string(62, '0'), "4611686018427387904"},
        {"9223372036854775807", "9223372036854775807"},
        {"-9223372036854775808", "-9223372036854775808"},
        {"0.1", "0.1"},
        {"3e1", "30.0"},
        {"-0.0", "-0.0"},
        {"1_000.000_1", "1000.0001"},
        {"6.626e-34", "6.626e-34"},
        {"inf", R"("inf")"},
        {"+inf", R"("inf")"},
        {"-inf", R"("-inf")"},
        {"nan", R"("nan")"},
        {"-nan", R"("nan")"},
    });
}

TEST(TomlToJson, PrintsDatesAndTimesAsTheyAreWritten)
{
    expectValues({
        {"1979-05-27t07:32:00.5-07:00", R"("1979-05-27t07:32:00.5-07:00")"},
        {"1979-05-27 07:32:00", R"("1979-05-27 07:32:00")"},
        {"1979-05-27", R"("1979-05-27")"},
        {"07:32:00", R"("07:32:00")"},
    });
}

TEST(TomlToJson, KeepsTheOrderOfKeys)
{
    const test::ProgramRun run =
        test::runOnText(TOML_TO_JSON, "b = 1\na = 2\n[z.y]\n[c]\n[z]\nx = 3\n");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.standardOutput, "{\n  \"b\": 1,\n  \"a\": 2,\n  \"z\": {\n    \"y\": {},\n"
                                  "    \"x\": 3\n  },\n  \"c\": {}\n}\n");
    EXPECT_EQ(test::runOnText(TOML_TO_JSON, "").standardOutput, "{}\n");
}

TEST(TomlToJson, ReplacesBytesThatAreNotUtf8)
{
    expectValues({
        {"'x\x80y'", "\"x\xef\xbf\xbdy\""},
        {"'x\xc3y'", "\"x\xef\xbf\xbdy\""},
        {"'x\xed\xa0\x80y'", "\"x\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbdy\""},
    });
}

TEST(TomlToJson, ReportsValuesThatAreNone)
{
    expectComplaints({
        {"a.b = [ 9223372036854775808 ]\n", "a.b[0]: does not fit into 64 bits"},
        {"a = -9223372036854775809\n", "a: does not fit into 64 bits"},
        {"a = 0x8000000000000000\n", "a: does not fit into 64 bits"},
        {"a = 0b1" + std::string(63, '0') + "\n", "a: does not fit into 64 bits"},
        {"a = \"\\uD800\"\n", "a: U+D800 is not a character"},
        {"a = \"\\udfff\"\n", "a: U+dfff is not a character"},
        {"a = \"\"\"\\U00110000\"\"\"\n", "a: U+00110000 is not a character"},
        {"a = \"\\UFFFFFFFF\"\n", "a: U+FFFFFFFF is not a character"},
        {"[a]\n\"\\uD800\".b = 1\n", R"(a."\"\\uD800\"": U+D800 is not a character)"},
        {"[\"\\uD800\"]\nb = 1\nb = 2\n", R"("\"\\uD800\"": U+D800 is not a character)"},
        {std::string("a = 'b\0c'\n", 10), "a: holds a NUL byte"},
        {std::string("a = '''\0'''\n", 12), "a: holds a NUL byte"},
        {std::string("a = \"b\\\"\0c\"\n", 12), "a: holds a NUL byte"},
        {std::string("'b\0c' = 1\n", 10), "\"'b\": holds a NUL byte"},
    });
}

TEST(TomlToJson, ReportsWhatIsDefinedTwice)
{
    expectComplaint("a: defined twice",
                    {"a = 1\n\"a\" = 2\n", "a = 1\n\"\\u0061\" = 2\n", "a.b = 1\na = 2\n",
                     "[a]\n[a]\n", "[a.b]\n[a]\n[a]\n", "[[a]]\n[a]\n", "[a]\n[[a]]\n",
                     "a = [ { b = 1 } ]\n[[a]]\n"});
    expectComplaint("a.b: cannot be extended here",
                    {"a.b = 1\na.b.c = 2\n", "[a.b]\nc = 1\n[a]\nb.d = 1\n"});
    expectComplaint("a.b: defined twice", {"a.b = 1\na.b = { c = 2 }\n", "[a]\nb.c = 1\n[a.b]\n"});
    expectComplaint(
        "a: cannot be extended here",
        {"a = [ { b = 1 } ]\n[a.c]\n", "a = { b = 1 }\n[a.c]\n", "a = { b = 1 }\na.c = 1\n"});
    expectComplaints({
        {"a = [ { b = 1 }, { b = 1, b.c = 1 } ]\n", "a[1].b: cannot be extended here"},
        {"[[a]]\n[a.b]\n[[a]]\n[a.b]\n[a.b]\n", "a[1].b: defined twice"},
    });
    // What stands in a place that is refused is not looked at.
    expectComplaint("a: defined twice",
                    {"a = 1\n[a]\nb = 1\nb = 2\n", "a = 1\na = [ { b = 1, b = 2 } ]\n"});
}

} // namespace
