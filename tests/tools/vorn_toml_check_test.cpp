// vorn-toml check as a program: where it prints what.
#include "support/temporary_directory.h"
#include "tools/tool_run.h"

#include <vorn/parsers/toml_diagnosis.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace
{

using test::accepted;
using test::expectRun;
using test::rejected;
using test::repeated;
using test::runTool;
using test::unreadable;

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
              bad + ": rejected\n" + good + ": accepted\n-: rejected\n" + bad +
                  ": rejected\n5 files: 1 accepted, 3 rejected, 1 unreadable\n",
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

TEST(VornTomlCheck, ShowsTwentyErrorsAndSaysIfThereAreMore)
{
    const std::string more = "-: there are more errors; check --all shows them\n";
    for (const int errors : {19, 20, 21, 1234})
    {
        const std::string text = repeated("a = []\n", errors);
        const test::ProgramRun run = runTool({"check", "-"}, text);
        EXPECT_EQ(run.status, rejected);
        EXPECT_EQ(run.standardOutput, "-: rejected\n");
        EXPECT_EQ(countOf("error: the array is empty\n", run.standardError),
                  static_cast<std::size_t>(std::min(errors, 20)));
        const std::size_t at = run.standardError.find(more);
        EXPECT_EQ(at, errors > 20 ? run.standardError.size() - more.size() : std::string::npos);
        const test::ProgramRun all = runTool({"check", "--all", "-"}, text);
        EXPECT_EQ(countOf("error: the array is empty\n", all.standardError),
                  static_cast<std::size_t>(errors));
        EXPECT_EQ(countOf("more errors", all.standardError), 0U);
    }
}

TEST(VornTomlCheck, LeavesOutAWarningBeforeAnError)
{
    const std::string warning = "c = '\x80'\n";
    EXPECT_EQ(countOf("warning: ", runTool({"check", "-"}, warning).standardError), 1U);
    const test::ProgramRun run = runTool({"check", "-"}, warning + repeated("a = []\n", 20));
    EXPECT_EQ(countOf("error: the array is empty\n", run.standardError), 20U);
    EXPECT_EQ(countOf("warning: ", run.standardError), 0U);
    EXPECT_EQ(countOf("-: there are more findings; check --all shows them\n", run.standardError),
              1U);
}

TEST(VornTomlCheck, PrintsOnlyFindingsIfItIsToBeQuiet)
{
    for (const char* const option : {"-q", "--quiet"})
    {
        expectRun(runTool({"check", option, "-"}, "a= []\n"), rejected, "", '-' + emptyArray);
        expectRun(runTool({"check", option, "-"}, "a = 1\n"), accepted, "", "");
        expectRun(runTool({"check", option, "-", "/no/such.toml"}, "a = 1\n"), unreadable, "",
                  "vorn-toml: /no/such.toml: No such file or directory\n");
    }
}

// Whether --strict is what the library means by it.
TEST(VornTomlCheck, IsAsStrictAsTheLibraryIfAskedTo)
{
    namespace toml = vorn::parsers::toml;
    toml::DiagnosisOptions strict;
    strict.strict = true;
    for (const std::string text :
         {"a = 1\n", "a = 1\na = 2\n", "a = 2024-02-30\n", "a = 9223372036854775808\n",
          "[t]\n[t]\n", "a = '\x80'\n", "a = []\n"})
    {
        SCOPED_TRACE(text);
        const std::vector<toml::Finding> findings = toml::diagnose(text, strict);
        const bool hasError = std::any_of(findings.begin(), findings.end(),
                                          [](const toml::Finding& one)
                                          { return one.severity == toml::Severity::error; });
        for (const char* const format : {"text", "json", "sarif", "github"})
        {
            EXPECT_EQ(runTool({"check", "--strict", "--format", format, "-"}, text).status,
                      hasError ? rejected : accepted);
        }
        EXPECT_EQ(runTool({"check", "-"}, text).status, text == "a = []\n" ? rejected : accepted);
    }
}

TEST(VornTomlCheck, CallsStandardInputAsItIsTold)
{
    expectRun(runTool({"check", "--stdin-name", "conf.d/a.toml", "-"}, "a= []\n"), rejected,
              "conf.d/a.toml: rejected\n", "conf.d/a.toml" + emptyArray);
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

TEST(VornTomlCheck, ExplainsWhatIsDeep)
{
    const test::ProgramRun run = runTool({"check", "-"}, "a = " + std::string(1000000, '['));
    EXPECT_EQ(run.status, rejected);
    EXPECT_EQ(run.standardError.substr(0, run.standardError.find('\n')),
              "-:1:1000005: error: the array opened on line 1 is not closed before the end of the "
              "file");
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
    for (int kilobytes = 10000; kilobytes <= 330000; kilobytes += 80000)
    {
        for (const char* const command : {"check", "tree", "tokens", "json"})
        {
            SCOPED_TRACE(std::string(command) + " with " + std::to_string(kilobytes));
            const test::ProgramRun run =
                runLimited("-v " + std::to_string(kilobytes), command, text);
            const bool isShort = run.standardError.find("not enough memory") != std::string::npos;
            EXPECT_EQ(run.status, isShort ? unreadable : rejected);
            EXPECT_TRUE(isShort || countOf(": error: ", run.standardError) == 20)
                << run.standardError;
        }
    }
}

} // namespace
