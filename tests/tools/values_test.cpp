// vorn-toml values: the value after every kind of text.
#include "support/example_files.h"
#include "support/file_content.h"
#include "support/time_zone.h"
#include "tools/tool_run.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using test::accepted;
using test::expectRun;
using test::rejected;
using test::runTool;

struct Case
{
    std::string value; // as the document has it
    std::string line;
};

// Each value alone in a document.
void expectLines(const std::vector<Case>& cases)
{
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.value);
        expectRun(runTool({"values", "-"}, "a = " + c.value + '\n'), accepted,
                  "beginDocument\nbeginKeyValue\nvisitBareKey a\n" + c.line +
                      "\nendKeyValue\nendDocument\n",
                  "");
    }
}

std::string operationOf(const std::string& line)
{
    return line.substr(0, line.find(' '));
}

TEST(VornTomlValues, ShowsStringsWithoutTheirDelimiters)
{
    expectLines({
        {R"("red")", R"(visitBasicString "red" -> red)"},
        {R"("")", R"(visitBasicString "" -> )"},
        {R"("it's -> so")", R"(visitBasicString "it's -> so" -> it's -> so)"},
        {R"('red')", R"(visitLiteralString 'red' -> red)"},
        {R"('')", R"(visitLiteralString '' -> )"},
        {R"('"red"')", R"(visitLiteralString '"red"' -> "red")"},
        {"\"\"\"\none\\\n   two\nthree\"\"\"",
         R"(visitMultilineBasicString """\none\\\n   two\nthree""" -> onetwo\nthree)"},
        {"\"\"\"a\"\"b\"\"\"\"", R"(visitMultilineBasicString """a""b"""" -> a""b")"},
        {"\"\"\"\"\"\"", R"(visitMultilineBasicString """""" -> )"},
        {"\"\"\"\r\nx\"\"\"", R"(visitMultilineBasicString """\r\nx""" -> \r\nx)"},
        {"'''\nC:\\temp\\\n'''",
         R"(visitMultilineLiteralString '''\nC:\\temp\\\n''' -> C:\\temp\\\n)"},
        {"''''a'''", R"(visitMultilineLiteralString ''''a''' -> 'a)"},
    });
}

TEST(VornTomlValues, EscapesValuesLikeTexts)
{
    expectLines({
        {R"("a\tb\u0041")", R"(visitBasicString "a\\tb\\u0041" -> a\\tb\\u0041)"},
        {"'a\tb\\'", R"(visitLiteralString 'a\tb\\' -> a\tb\\)"},
        {"'\x01\x7f\r'", R"(visitLiteralString '\x01\x7F\r' -> \x01\x7F\r)"},
        {"\"\xc3\xbc\"", R"(visitBasicString "\xC3\xBC" -> \xC3\xBC)"},
    });
}

TEST(VornTomlValues, ShowsTheNamesOfQuotedKeysOnly)
{
    expectRun(runTool({"values", "-"}, "\"my key\".'a\"\t'.bare = true\n[\"t\"]\n[['u']]\n"),
              accepted,
              "beginDocument\nbeginKeyValue\nbeginDottedKey\n"
              "visitQuotedKey \"my key\" -> my key\n"
              "visitQuotedKey 'a\"\\t' -> a\"\\t\n"
              "visitBareKey bare\n"
              "endDottedKey\nvisitBoolean true -> true\nendKeyValue\n"
              "beginTable\nvisitQuotedKey \"t\" -> t\nendTable\n"
              "beginArrayTable\nvisitQuotedKey 'u' -> u\nendArrayTable\nendDocument\n",
              "");
}

TEST(VornTomlValues, ShowsBooleansAndIntegers)
{
    expectLines({
        {"true", "visitBoolean true -> true"},
        {"false", "visitBoolean false -> false"},
        {"0", "visitInteger 0 -> 0"},
        {"+1_000", "visitInteger +1_000 -> 1000"},
        {"-17", "visitInteger -17 -> -17"},
        {"0x1F", "visitInteger 0x1F -> 31"},
        {"0xDEAD_beef", "visitInteger 0xDEAD_beef -> 3735928559"},
        {"0o755", "visitInteger 0o755 -> 493"},
        {"0b1101_0101", "visitInteger 0b1101_0101 -> 213"},
        {"9223372036854775807", "visitInteger 9223372036854775807 -> 9223372036854775807"},
        {"9223372036854775808", "visitInteger 9223372036854775808 -> 9223372036854775807"},
        {"-9223372036854775808", "visitInteger -9223372036854775808 -> -9223372036854775808"},
    });
}

TEST(VornTomlValues, ShowsFloatsExactlyAndShortly)
{
    expectLines({
        {"6.626e-34", "visitFloat 6.626e-34 -> 6.626e-34"},
        {"1_000.5", "visitFloat 1_000.5 -> 1000.5"},
        {"2.50", "visitFloat 2.50 -> 2.5"},
        {"3e1", "visitFloat 3e1 -> 30"},
        {"-0.0", "visitFloat -0.0 -> -0"},
        {"0.1", "visitFloat 0.1 -> 0.1"},
        {"0.30000000000000004", "visitFloat 0.30000000000000004 -> 0.30000000000000004"},
        {"0.30000000000000001", "visitFloat 0.30000000000000001 -> 0.3"},
        {"-1.7976931348623157e308",
         "visitFloat -1.7976931348623157e308 -> -1.7976931348623157e+308"},
        {"5e-324", "visitFloat 5e-324 -> 5e-324"},
        {"1e400", "visitFloat 1e400 -> 1.7976931348623157e+308"},
        {"inf", "visitFloat inf -> 0"},
        {"-inf", "visitFloat -inf -> 0"},
        {"nan", "visitFloat nan -> 0"},
    });
}

TEST(VornTomlValues, ShowsDateTimesInTheLocalZoneAndInSeconds)
{
    struct Zone
    {
        std::string name;
        std::vector<Case> cases;
    };
    const std::vector<Zone> zones = {
        {"UTC",
         {{"1979-05-27T07:32:00",
           "visitLocalDateTime 1979-05-27T07:32:00 -> 1979-05-27T07:32:00+00:00 (296638320)"},
          {"1979-05-27 07:32:00.999",
           "visitLocalDateTime 1979-05-27 07:32:00.999 -> 1979-05-27T07:32:00+00:00 (296638320)"},
          {"1979-05-27T07:32:00Z",
           "visitOffsetDateTime 1979-05-27T07:32:00Z -> 1979-05-27T07:32:00+00:00 (296638320)"},
          {"1969-12-31T23:59:59-07:00", "visitOffsetDateTime 1969-12-31T23:59:59-07:00"
                                        " -> 1969-12-31T23:59:59+00:00 (-1)"}}},
        // In summer only a zone letter is read as summer time.
        {"Europe/Berlin",
         {{"2024-07-01T12:00:00Z",
           "visitOffsetDateTime 2024-07-01T12:00:00Z -> 2024-07-01T12:00:00+02:00 (1719828000)"},
          {"2024-07-01T12:00:00",
           "visitLocalDateTime 2024-07-01T12:00:00 -> 2024-07-01T13:00:00+02:00 (1719831600)"},
          {"2024-01-01T12:00:00+05:00", "visitOffsetDateTime 2024-01-01T12:00:00+05:00"
                                        " -> 2024-01-01T12:00:00+01:00 (1704106800)"}}},
        {"America/St_Johns",
         {{"2024-01-15T08:00:00",
           "visitLocalDateTime 2024-01-15T08:00:00 -> 2024-01-15T08:00:00-03:30 (1705318200)"}}},
    };
    for (const Zone& zone : zones)
    {
        SCOPED_TRACE(zone.name);
        const test::TimeZone here(zone.name);
        expectLines(zone.cases);
    }
}

TEST(VornTomlValues, ShowsNoArrowForLocalDatesAndTimes)
{
    expectLines({
        {"1979-05-27", "visitLocalDate 1979-05-27"},
        {"07:32:00", "visitLocalTime 07:32:00"},
        {"00:32:00.999999", "visitLocalTime 00:32:00.999999"},
    });
}

TEST(VornTomlValues, LogsADateTimeThatIsNotConverted)
{
    const test::TimeZone utc("UTC");
    const test::ProgramRun run = runTool({"values", "-"}, "a = 1979-05-27t07:32:00\n");
    EXPECT_EQ(run.status, accepted);
    EXPECT_EQ(run.standardOutput,
              "beginDocument\nbeginKeyValue\nvisitBareKey a\n"
              "visitLocalDateTime 1979-05-27t07:32:00 -> 1970-01-01T00:00:00+00:00 (0)\n"
              "endKeyValue\nendDocument\n");
    EXPECT_NE(run.standardError.find("Failed to parse date-time: 1979-05-27t07:32:00\n"),
              std::string::npos)
        << run.standardError;
}

TEST(VornTomlValues, ShowsAnErrorOfAConversionAndGoesOn)
{
    const std::string big = "0b1" + std::string(32, '0');
    expectRun(runTool({"values", "-"}, "a = [" + big + ", 0b1]\n"), accepted,
              "beginDocument\nbeginKeyValue\nvisitBareKey a\nbeginArray\nvisitInteger " + big +
                  " -> error: _Base_bitset::_M_do_to_ulong\nvisitInteger 0b1 -> 1\n"
                  "endArray\nendKeyValue\nendDocument\n",
              "");
}

TEST(VornTomlValues, PrintsTheEventsOfTheExamplesWithValuesAfterThem)
{
    const std::set<std::string> bare = {"visitBareKey", "visitLocalDate", "visitLocalTime"};
    for (const std::string& name : test::exampleNames())
    {
        SCOPED_TRACE(name);
        const test::ProgramRun run = runTool({"values", test::examplePath(name)});
        EXPECT_EQ(run.status, accepted);
        std::istringstream events(test::fileContent(test::exampleEventsPath(name)));
        std::istringstream lines(run.standardOutput);
        std::string line;
        for (std::string event; std::getline(events, event);)
        {
            const std::string operation = operationOf(event);
            const bool hasValue = operation.rfind("visit", 0) == 0 && bare.count(operation) == 0;
            ASSERT_TRUE(std::getline(lines, line)) << "the line of " << event << " is missing";
            ASSERT_EQ(hasValue ? line.substr(0, event.size() + 4) : line,
                      hasValue ? event + " -> " : event);
        }
        EXPECT_FALSE(std::getline(lines, line)) << line;
    }
}

TEST(VornTomlValues, PrintsWhatCouldBeMadeOutOfARejectedDocument)
{
    const test::ProgramRun run = runTool({"values", "-"}, "a = 0x10");
    EXPECT_EQ(run.status, rejected);
    EXPECT_EQ(run.standardOutput, "beginDocument\nbeginKeyValue\nvisitBareKey a\n"
                                  "visitInteger 0x10 -> 16\nendKeyValue\n");
    EXPECT_NE(run.standardError.find("Failed to visit toml tree"), std::string::npos)
        << run.standardError;
}

} // namespace
