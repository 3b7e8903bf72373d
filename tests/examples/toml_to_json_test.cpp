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
    std::string json;
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

TEST(TomlToJson, ResolvesEscapes)
{
    expectValues({
        {R"("\b\f\n\r\t\"\\'")", R"("\b\f\n\r\t\"\\'")"},
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
        {"1e400", R"("inf")"},
        {"-1e400", R"("-inf")"},
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

TEST(TomlToJson, TellsWhatIsNoToml)
{
    const std::string twice = " is defined twice\n";
    test::expectProblems(
        TOML_TO_JSON,
        {
            {"a = \nb = []\n", "1:4: expected a value, found the end of the line\n"
                               "2:6: the array is empty\n"},
            {"a.b = [ 9223372036854775808 ]\n", "1:9: the integer needs more than 64 bits\n"},
            {"a = \"\\uD800\"\n", "1:6: the escape \\uD800 stands for no character\n"},
            {"[a]\n\"\\UFFFFFFFF\".b = 1\n",
             "2:2: the escape \\UFFFFFFFF stands for no character\n"},
            {std::string("a = 'b\0c'\n", 10), "1:7: the control character U+0000 is not allowed\n"},
            {"a = 'x\x80y'\n", "1:7: the byte 80 is not valid UTF-8\n"},
            {"a = \"\\'\"\n", "1:6: unknown escape \\'\n"},
            {"a = 1979-02-30\n", "1:13: the day 30 does not exist\n"},
            {"a = 1\n\"\\u0061\" = 2\n", "2:1: the key \"\\u0061\"" + twice},
            {"[a.b]\n[a]\n[a]\n", "3:2: the table 'a'" + twice},
            {"a = { b = 1, b = 1 }\n", "1:14: the key 'b'" + twice},
            {"[a]\n[[a]]\n",
             "2:3: the key 'a' is a table already, so it cannot be an array of tables\n"},
            {"a = { b = 1 }\n[a.c]\n", "2:2: the inline table 'a' cannot be extended\n"},
        });
}

} // namespace
