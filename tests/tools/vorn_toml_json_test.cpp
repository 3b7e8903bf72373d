// vorn-toml json: values, duplicates, depth.
#include "tools/tool_run.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

using test::accepted;
using test::expectRun;
using test::rejected;
using test::repeated;
using test::runTool;

struct Case
{
    std::string toml;
    std::string json; // or the complaint
};

TEST(VornTomlJson, PrintsValues)
{
    const std::vector<Case> cases = {
        {R"("\b\f\n\r\t\"\\\u0041\u0000")", R"("\b\f\n\r\t\"\\A\u0000")"},
        {"'\\t\xc3\xa9'", "\"\\\\t\xc3\xa9\""},
        {"\"\"\"\none\\\n  two\"\"\"", R"("onetwo")"},
        {"'''\n\\\n'''", R"("\\\n")"},
        {"0x7FFF_ffff_FFFF_ffff", "9223372036854775807"},
        {"-9223372036854775808", "-9223372036854775808"},
        {"0o17", "15"},
        {"0b1" + std::string(62, '0'), "4611686018427387904"},
        {"+1_0", "10"},
        {"3e1", "30.0"},
        {"-0.0", "-0.0"},
        {"6.626e-34", "6.626e-34"},
        {"+inf", R"("inf")"},
        {"-inf", R"("-inf")"},
        {"-nan", R"("nan")"},
        {"true", "true"},
        {"1979-05-27t07:32:00.5-07:00", R"("1979-05-27t07:32:00.5-07:00")"},
        {"07:32:00", R"("07:32:00")"},
        {R"({ "\u0061\"" = 1 })", "{\n    \"a\\\"\": 1\n  }"},
        {"[1, [2]]", "[\n    1,\n    [\n      2\n    ]\n  ]"},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.toml);
        expectRun(runTool({"json", "-"}, "a = " + c.toml + '\n'), accepted,
                  "{\n  \"a\": " + c.json + "\n}\n", "");
    }
}

TEST(VornTomlJson, ReplacesBytesThatAreNotUtf8)
{
    const test::ProgramRun run = runTool({"json", "-"}, "a = 'x\x80y'\n\"\x80\" = 1\n");
    EXPECT_EQ(run.status, accepted);
    EXPECT_EQ(run.standardOutput, "{\n  \"a\": \"x\xef\xbf\xbdy\",\n  \"\xef\xbf\xbd\": 1\n}\n");
    EXPECT_NE(run.standardError.find("warning: the byte 80"), std::string::npos);
}

TEST(VornTomlJson, KeepsTheOrderOfTables)
{
    expectRun(runTool({"json", "-"}, "b = 1\n[z.y]\n[c]\n[z]\nx = 3\n[[l]]\n[[l]]\n[l.m]\n"),
              accepted,
              "{\n  \"b\": 1,\n  \"z\": {\n    \"y\": {},\n    \"x\": 3\n  },\n  \"c\": {},\n"
              "  \"l\": [\n    {},\n    {\n      \"m\": {}\n    }\n  ]\n}\n",
              "");
    expectRun(runTool({"json", "-"}, ""), accepted, "{}\n", "");
}

TEST(VornTomlJson, SaysWhatHasNoMeaning)
{
    const std::vector<Case> cases = {
        {"a = 1\n\"\\u0061\" = 2\n", "a: defined twice"},
        {"a.b = 1\na.b.c = 2\n", "a.b: cannot be extended here"},
        {"a = [ { b = 1, b = 2 } ]\n", "a[0].b: defined twice"},
        {"[[a]]\n[a.b]\n[[a]]\n[a.b]\n[a.b]\n", "a[1].b: defined twice"},
        {"a = 1\n[a]\nb = 1\nb = 2\n", "a: defined twice"},
        {"a.\"b c\" = [ 9223372036854775808 ]\n", "a.\"b c\"[0]: does not fit into 64 bits"},
        {"a = \"\\uD800\"\n", "a: U+D800 is not a character"},
        {"[a]\n\"\\uD800\".b = 1\n", R"(a."\"\\uD800\"": U+D800 is not a character)"},
        {std::string("a = 'b\0c'\n", 10), "a: holds a NUL byte"},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.toml);
        expectRun(runTool({"json", "-"}, c.toml), rejected, "", "-: " + c.json + '\n');
    }
    expectRun(runTool({"json", "-"}, repeated("a = 1\n", 31)), rejected, "",
              repeated("-: a: defined twice\n", 20) + "-: and 10 more\n");
}

TEST(VornTomlJson, ExplainsARejectedDocument)
{
    expectRun(runTool({"json", "-"}, "a = 1\na = []\n"), rejected, "",
              "-:2:6: error: the array is empty\n"
              "    2 | a = []\n"
              "      |      ^\n"
              "      = hint: An array needs at least one element. Leave the key out instead.\n");
    expectRun(runTool({"json", "/no/such.toml"}), test::unreadable, "",
              "vorn-toml: /no/such.toml: No such file or directory\n");
    EXPECT_EQ(runTool({"json", "-", "-"}).status, test::usage);
}

TEST(VornTomlJson, NestsAsDeepAsMemoryAllows)
{
    constexpr int depth = 300000;
    const test::ProgramRun run = runTool({"json", "-"}, "a = " + repeated("[{b = ", depth / 2) +
                                                            "1" + repeated("}]", depth / 2) + '\n');
    EXPECT_EQ(run.status, accepted);
    const std::string indentation(200, ' ');
    EXPECT_NE(run.standardOutput.find('\n' + indentation + "\"b\": 1\n" + indentation + "}\n"),
              std::string::npos);
    std::size_t lines = 0;
    for (const char c : run.standardOutput)
    {
        lines += c == '\n' ? 1U : 0U;
    }
    // A line for each level's start and end, but the arrays share theirs with the key before.
    EXPECT_EQ(lines, 2U * depth + 3U);
}

} // namespace
