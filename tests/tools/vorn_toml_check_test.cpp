// vorn-toml check as a program: where it prints what.
#include "support/temporary_directory.h"
#include "tools/tool_run.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <algorithm>
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

std::size_t countOf(const std::string& part, const std::string& text)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
    {
        ++count;
    }
    return count;
}

const std::string emptyArray =
    ":1:5: error: the array is empty\n"
    "    1 | a= []\n"
    "      |     ^\n"
    "      = hint: An array needs at least one element. Leave the key out instead.\n";

TEST(VornTomlCheck, ExplainsOnStandardError)
{
    expectRun(runTool({"check", "-"}, "a= []\n"), rejected, "-: rejected\n", '-' + emptyArray);
}

TEST(VornTomlCheck, TakesSeveralFilesOneByOne)
{
    const test::TemporaryDirectory directory;
    const std::string good = directory.write("good.toml", "a = 1\n");
    const std::string bad = directory.write("bad.toml", "a= []\n");
    const std::string missing = directory.path("missing.toml");
    expectRun(runTool({"check", bad, good, missing, "-", bad}, "a= []\n"), unreadable,
              bad + ": rejected\n" + good + ": accepted\n-: rejected\n" + bad + ": rejected\n",
              bad + emptyArray + "vorn-toml: " + missing + ": No such file or directory\n-" +
                  emptyArray + bad + emptyArray);
}

TEST(VornTomlCheck, WarnsOfBytesThatAreNotUtf8)
{
    expectRun(runTool({"check", "-"}, "a = 1\n\xc1?\nb = []\n"), accepted, "-: accepted\n",
              "-:2:1: warning: the file is only read up to these bytes, which are not valid UTF-8\n"
              "    2 | \\xC1?\n"
              "      | ^~~~\n"
              "      = hint: They are read as the end of the file. Save the file as UTF-8.\n");
}

TEST(VornTomlCheck, TellsTwentyErrorsAndCountsTheOthers)
{
    struct Case
    {
        int errors;
        std::string last;
    };
    for (const Case& c :
         {Case{19, ""}, {20, ""}, {21, "-: 1 more error\n"}, {1234, "-: 1214 more errors\n"}})
    {
        const test::ProgramRun run = runTool({"check", "-"}, repeated("a = []\n", c.errors));
        EXPECT_EQ(run.status, rejected);
        EXPECT_EQ(run.standardOutput, "-: rejected\n");
        EXPECT_EQ(countOf("error: the array is empty\n", run.standardError),
                  static_cast<std::size_t>(std::min(c.errors, 20)));
        EXPECT_EQ(countOf(" more error", run.standardError), c.last.empty() ? 0U : 1U);
        EXPECT_EQ(run.standardError.substr(run.standardError.size() - c.last.size()), c.last);
    }
}

TEST(VornTomlCheck, SendsNoBytesOfAFileThatCommandATerminal)
{
    const std::string hostile = "a = '\x1b[31m\xc2\x9b\x07\x08\xe2\x80\xae\x7f' \x1b]0;x\x07\n";
    const test::TemporaryDirectory directory;
    const std::string file = directory.write("x\x1b[31m.toml", hostile);
    for (const char* const command : {"check", "tokens", "tree", "events"})
    {
        SCOPED_TRACE(command);
        const test::ProgramRun run = runTool({command, file});
        EXPECT_EQ(run.status, rejected);
        const std::string all = run.standardOutput + run.standardError;
        const bool isEvents = std::string(command) == "events"; // the runtime speaks there
        EXPECT_TRUE(isEvents ||
                    std::none_of(all.begin(), all.end(),
                                 [](char c)
                                 { return (c >= 0 && c < ' ' && c != '\n') || c == 0x7F; }));
        EXPECT_TRUE(isEvents || (all.find("\xe2\x80\xae") == std::string::npos &&
                                 all.find("\xc2\x9b") == std::string::npos));
    }
}

TEST(VornTomlCheck, HasColoursWhereTheyAreAskedFor)
{
    expectRun(runTool({"check", "--color=always", "-"}, "a= []\n"), rejected, "-: rejected\n",
              "\x1b[1m-:1:5: \x1b[0m\x1b[1;31merror: \x1b[0m\x1b[1mthe array is empty\x1b[0m\n"
              "    1 | a= []\n"
              "      | \x1b[1;32m    ^\x1b[0m\n"
              "      = \x1b[36mhint: \x1b[0mAn array needs at least one element. Leave the key out "
              "instead.\n");
}

TEST(VornTomlCheck, SaysWhatIsTooDeep)
{
    expectRun(runTool({"check", "-"}, "a = " + std::string(1000000, '[')), rejected,
              "-: rejected\n",
              "-: error: the document is invalid, but its arrays or inline tables are nested too "
              "deeply to say where\n");
}

// Runs a subcommand with a limit of the shell's: -s for the stack, -v for addresses.
test::ProgramRun runLimited(const std::string& limit, const std::string& command,
                            const std::string& input)
{
    return test::runProgram(
        {"/bin/sh", "-c", "ulimit " + limit + "; exec \"$0\" " + command + " -", VORN_TOML}, input);
}

TEST(VornTomlCheckWithLimits, SurvivesSmallStacks)
{
    for (const char* const limit : {"-s 128", "-s 512", "-s 8192"})
    {
        for (const int depth : {10, 50, 150, 500, 1000, 5000, 15000, 30000})
        {
            for (const char* const level : {"[", "[\n{a.b = "})
            {
                SCOPED_TRACE(std::string(limit) + " for " + std::to_string(depth) + level);
                const test::ProgramRun run =
                    runLimited(limit, "check", "a = " + repeated(level, depth) + '\n');
                EXPECT_EQ(run.status, rejected);
                EXPECT_EQ(run.standardOutput, "-: rejected\n");
                EXPECT_NE(run.standardError.find("-:"), std::string::npos);
            }
        }
    }
}

TEST(VornTomlCheckWithLimits, SurvivesLittleMemory)
{
    const std::string text = repeated("a = [1, 2 3]\n", 5000);
    std::size_t refused = 0;
    std::size_t explained = 0;
    for (int kilobytes = 30000; kilobytes <= 330000; kilobytes += 60000)
    {
        for (const char* const command : {"check", "tree", "tokens"})
        {
            SCOPED_TRACE(std::string(command) + " with " + std::to_string(kilobytes));
            const test::ProgramRun run =
                runLimited("-v " + std::to_string(kilobytes), command, text);
            EXPECT_EQ(run.status, rejected);
            const bool isRefused =
                run.standardError ==
                "-: error: the document is too large to diagnose: there is not enough memory\n";
            ++(isRefused ? refused : explained);
            EXPECT_TRUE(isRefused || countOf(": error: ", run.standardError) == 20);
        }
    }
    EXPECT_GT(refused, 0U);
    EXPECT_GT(explained, 0U);
}

TEST(VornTomlCheck, PrintsJson)
{
    const test::TemporaryDirectory directory;
    const std::string good = directory.write("good.toml", "a = 1\n");
    const std::string bad = directory.write("bad.toml", "\xc3\xa9 = 1\nb = [\n");
    const std::string missing = directory.path("missing.toml");
    const test::ProgramRun run = runTool({"check", "--json", good, bad, missing});
    EXPECT_EQ(run.status, unreadable);
    EXPECT_EQ(run.standardError, "vorn-toml: " + missing + ": No such file or directory\n");
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
            {"message", "the character '\xc3\xa9' (U+00E9) is not allowed here"},
            {"hint", "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys, and all strings, need "
                     "quotes."}},
           {{"severity", "error"},
            {"line", 3},
            {"column", 1},
            {"endLine", 3},
            {"endColumn", 1},
            {"message", "the array opened on line 2 is not closed before the end of the file"},
            {"hint", "Close it with ']' after its last element."}}}}},
        {{"file", missing}, {"status", "unreadable"}, {"errors", 0}, {"findings", Json::array()}}};
    EXPECT_EQ(Json::parse(run.standardOutput), expected) << run.standardOutput;
}

TEST(VornTomlCheck, PrintsJsonOfAnything)
{
    struct Case
    {
        std::string text;
        int status;
        std::size_t errors;
        std::size_t findings;
    };
    for (const Case& c : {Case{repeated("a = []\n", 100), rejected, 100, 20},
                          {"a = 1\n\xc1?", accepted, 0, 1},
                          {"\xff\xfe\n\x1b = 1\n", rejected, 1, 1},
                          {"", accepted, 0, 0}})
    {
        const test::ProgramRun run = runTool({"check", "--json", "-"}, c.text);
        EXPECT_EQ(run.status, c.status);
        EXPECT_EQ(run.standardError, "");
        const Json json = Json::parse(run.standardOutput);
        EXPECT_EQ(json[0]["errors"], c.errors) << json;
        EXPECT_EQ(json[0]["findings"].size(), c.findings) << json;
    }
    const test::ProgramRun deep =
        runTool({"check", "--json", "-"}, "a = " + std::string(1000000, '['));
    EXPECT_NE(Json::parse(deep.standardOutput)[0]["refusal"].get<std::string>().find("too deeply"),
              std::string::npos);
}

} // namespace
