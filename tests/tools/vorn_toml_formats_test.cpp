// vorn-toml check for programs: JSON, SARIF and GitHub's annotations.
#include "support/temporary_directory.h"
#include "tools/tool_run.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <string>

namespace
{

using test::accepted;
using test::expectRun;
using test::rejected;
using test::repeated;
using test::runTool;
using test::unreadable;
using Json = nlohmann::json;

const std::string emptyArrayHint =
    "An array needs at least one element. Leave the key out instead.";

TEST(VornTomlFormats, PrintsJson)
{
    const test::TemporaryDirectory directory;
    const std::string good = directory.write("good.toml", "a = 1\n");
    const std::string bad = directory.write("bad.toml", "\xc3\xa9 = 1\nb = []\n");
    const std::string missing = directory.path("missing.toml");
    const Json expected = {
        {{"file", good}, {"status", "accepted"}, {"errors", 0}, {"findings", Json::array()}},
        {{"file", bad},
         {"status", "rejected"},
         {"errors", 2},
         {"findings",
          {{{"severity", "error"},
            {"line", 1},
            {"column", 1},
            {"endLine", 1},
            {"endColumn", 2},
            {"code", "stray-character"},
            {"message", "the character '\xc3\xa9' (U+00E9) is not allowed here"},
            {"hint", "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys need quotes: "
                     "\"\xc3\xa9\"."}},
           {{"severity", "error"},
            {"line", 2},
            {"column", 6},
            {"endLine", 2},
            {"endColumn", 7},
            {"code", "empty-array"},
            {"message", "the array is empty"},
            {"hint", emptyArrayHint}}}}},
        {{"file", missing}, {"status", "unreadable"}, {"errors", 0}, {"findings", Json::array()}}};
    for (const test::Words& options : {test::Words{"--json"}, {"--format", "json"}})
    {
        const test::ProgramRun run =
            runTool(test::joined(test::joined({"check"}, options), {good, bad, missing}));
        EXPECT_EQ(run.status, unreadable);
        EXPECT_EQ(run.standardError, "vorn-toml: " + missing + ": No such file or directory\n");
        EXPECT_EQ(Json::parse(run.standardOutput), expected) << run.standardOutput;
    }
    EXPECT_EQ(runTool({"check", "--json", "--format", "json", good}).status, test::usage);
}

TEST(VornTomlFormats, PrintsJsonOfAnything)
{
    struct Case
    {
        std::string text;
        int status;
        std::size_t errors;
        std::size_t findings;
        bool more;
    };
    for (const Case& c : {Case{repeated("a = []\n", 100), rejected, 20, 20, true},
                          {repeated("a = []\n", 20), rejected, 20, 20, false},
                          {"a = 1\n\xc1?", accepted, 0, 1, false},
                          {"\xff\xfe\n\x1b = 1\n", rejected, 1, 1, false},
                          {"a = " + std::string(1000000, '['), rejected, 1, 1, false},
                          {"", accepted, 0, 0, false}})
    {
        const test::ProgramRun run = runTool({"check", "--json", "-"}, c.text);
        EXPECT_EQ(run.status, c.status);
        EXPECT_EQ(run.standardError, "");
        const Json json = Json::parse(run.standardOutput);
        EXPECT_EQ(json[0]["errors"], c.errors) << json;
        EXPECT_EQ(json[0]["findings"].size(), c.findings) << json;
        EXPECT_EQ(json[0].value("more", false), c.more) << json;
    }
}

TEST(VornTomlFormats, ReplacesBytesOfNamesThatAreNotUtf8)
{
    const test::ProgramRun run =
        runTool({"check", "--json", "--stdin-name", "\xc3\xa9\xff\n.toml", "-"}, "a = 1\n");
    EXPECT_EQ(Json::parse(run.standardOutput)[0]["file"], "\xc3\xa9\xef\xbf\xbd\n.toml");
}

TEST(VornTomlFormats, PrintsSarif)
{
    const test::TemporaryDirectory directory;
    const std::string good = directory.write("good.toml", "a = 1\n");
    const std::string bad = directory.write("b d,%\xc3\xa9\xff.toml", "'\xc3\xa9' = []\n");
    const std::string missing = directory.path("missing.toml");
    const test::ProgramRun run = runTool({"check", "--format=sarif", good, bad, missing});
    EXPECT_EQ(run.status, unreadable);
    EXPECT_EQ(run.standardError, "vorn-toml: " + missing + ": No such file or directory\n");
    const Json log = Json::parse(run.standardOutput);
    EXPECT_EQ(log["version"], "2.1.0");
    const Json& sarif = log["runs"][0];
    EXPECT_EQ(sarif["columnKind"], "unicodeCodePoints");
    EXPECT_EQ(sarif["tool"]["driver"]["name"], "vorn-toml");
    EXPECT_EQ(sarif["tool"]["driver"]["rules"], Json::parse(R"([{"id": "empty-array"}])"));
    EXPECT_EQ(sarif["invocations"][0]["executionSuccessful"], false);
    const Json note = sarif["invocations"][0]["toolExecutionNotifications"][0];
    EXPECT_EQ(note["message"]["text"], "No such file or directory");
    ASSERT_EQ(sarif["results"].size(), 1U) << log;
    const Json& result = sarif["results"][0];
    EXPECT_EQ(result["ruleId"], "empty-array");
    EXPECT_EQ(result["level"], "error");
    EXPECT_EQ(result["message"]["text"], "the array is empty\n" + emptyArrayHint);
    const Json& place = result["locations"][0]["physicalLocation"];
    EXPECT_EQ(place["artifactLocation"]["uri"],
              "file://" + directory.path("b%20d%2C%25%C3%A9%FF.toml"));
    EXPECT_EQ(place["region"], Json::parse(R"({"startLine": 1, "startColumn": 8, "endLine": 1,
        "endColumn": 9, "byteOffset": 8, "byteLength": 1})"));
}

TEST(VornTomlFormats, PrintsSarifOfNothingAndOfTooMuch)
{
    const Json nothing = Json::parse(
        runTool({"check", "--format=sarif", "--stdin-name", "./x//y.toml", "-"}).standardOutput);
    EXPECT_EQ(nothing["runs"][0]["results"], Json::array());
    EXPECT_EQ(nothing["runs"][0]["invocations"], Json::parse(R"([{"executionSuccessful": true}])"));
    const Json much =
        Json::parse(runTool({"check", "--format=sarif", "--stdin-name", "./x//y.toml", "-"},
                            repeated("a = []\n", 21))
                        .standardOutput);
    EXPECT_EQ(much["runs"][0]["results"].size(), 20U);
    const Json& note = much["runs"][0]["invocations"][0]["toolExecutionNotifications"][0];
    EXPECT_EQ(note["level"], "note");
    EXPECT_EQ(note["locations"][0]["physicalLocation"]["artifactLocation"]["uri"], "x/y.toml");
}

TEST(VornTomlFormats, PrintsSarifOfAFileWithoutAName)
{
    const test::ProgramRun run = runTool({"check", "--format=sarif", ""});
    EXPECT_EQ(run.status, unreadable);
    EXPECT_EQ(Json::parse(run.standardOutput)["runs"][0]["results"], Json::array());
}

TEST(VornTomlFormats, PrintsAnnotations)
{
    const std::string error = ",line=1,endLine=1,col=6,endColumn=7,title=empty-array::"
                              "the array is empty%0A" +
                              emptyArrayHint + '\n';
    expectRun(
        runTool({"check", "--format", "github", "--stdin-name", "./a%b:c,d\r\n\x1b.toml", "-"},
                "a = []\n"),
        rejected, "::error file=a%25b%3Ac%2Cd%0D%0A\\x1B.toml" + error, "");
    const std::string missing = "/no/such.toml";
    expectRun(runTool({"check", "--format", "github", missing, "-"}, repeated("a = 1\n", 2)),
              unreadable, "::error file=/no/such.toml::No such file or directory\n",
              "vorn-toml: /no/such.toml: No such file or directory\n");
    const test::ProgramRun many =
        runTool({"check", "--format", "github", "-"}, repeated("a = []\n", 21));
    EXPECT_NE(many.standardOutput.find(
                  "\n::notice file=-::there are more errors; check --all shows them\n"),
              std::string::npos)
        << many.standardOutput;
}

} // namespace
