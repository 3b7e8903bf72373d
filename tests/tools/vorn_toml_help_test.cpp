// The help of vorn-toml: that it exists, and that its examples are true.
#include "tools/tool_run.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace
{

struct HelpCase
{
    std::vector<std::string> arguments;
    std::string usage;
};

std::vector<HelpCase> helpCases()
{
    const std::string tool = "Usage: vorn-toml [OPTIONS] SUBCOMMAND\n";
    const std::string events = "Usage: vorn-toml events [OPTIONS] FILE...\n";
    const std::string values = "Usage: vorn-toml values [OPTIONS] FILE...\n";
    const std::string check = "Usage: vorn-toml check [OPTIONS] FILE...\n";
    const std::string tree = "Usage: vorn-toml tree [OPTIONS] FILE...\n";
    const std::string tokens = "Usage: vorn-toml tokens [OPTIONS] FILE...\n";
    const std::string json = "Usage: vorn-toml json [OPTIONS] FILE\n";
    return {
        {{"--help"}, tool},
        {{"-h"}, tool},
        {{"events", "--help"}, events},
        {{"events", "-h"}, events},
        {{"values", "--help"}, values},
        {{"values", "-h"}, values},
        {{"check", "--help"}, check},
        {{"check", "-h"}, check},
        {{"tree", "--help"}, tree},
        {{"tokens", "--help"}, tokens},
        {{"fix", "--help"}, "Usage: vorn-toml fix [OPTIONS] FILE...\n"},
        {{"json", "--help"}, json},
    };
}

std::string helpOf(const HelpCase& c)
{
    const test::ProgramRun run = test::runTool(c.arguments);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.standardError, "");
    return run.standardOutput;
}

struct Example
{
    std::string command;
    std::string output;
};

// The indented lines after "Example:": commands, and what each of them prints.
std::vector<Example> examplesIn(const std::string& help)
{
    std::vector<Example> examples;
    const std::size_t heading = help.find("\nExample:\n");
    std::istringstream lines(heading == std::string::npos ? "" : help.substr(heading + 10));
    for (std::string line; std::getline(lines, line) && line.rfind("  ", 0) == 0;)
    {
        if (line.rfind("  $ ", 0) == 0)
        {
            examples.push_back({line.substr(4), ""});
        }
        else if (!examples.empty())
        {
            examples.back().output += line.substr(2) + '\n';
        }
    }
    return examples;
}

// Runs a command line where the examples are and the tool is known by its name.
test::ProgramRun runInExamples(const std::string& command)
{
    const std::string tools = std::filesystem::path(VORN_TOML).parent_path().string();
    return test::runProgram({"/bin/sh", "-c", R"(cd "$1" && PATH="$2:$PATH" && eval "$3")", "sh",
                             VORN_EXAMPLES, tools, command});
}

TEST(VornTomlHelp, SaysHowTheToolIsUsed)
{
    for (const HelpCase& c : helpCases())
    {
        SCOPED_TRACE(testing::PrintToString(c.arguments));
        const std::string help = helpOf(c);
        EXPECT_NE(help.find(c.usage), std::string::npos) << help;
        EXPECT_NE(help.find("--help"), std::string::npos) << help;
    }
}

TEST(VornTomlHelp, NamesSubcommandsAndExitStatuses)
{
    const std::string help = helpOf({{"--help"}, ""});
    for (const std::string text :
         {"\n  events ", "\n  values ", "\n  check ", "\n  tree ", "\n  tokens ", "\n  json ",
          "0 accepted", "1 rejected", "2 wrong usage", "3 a file could not be read"})
    {
        EXPECT_NE(help.find(text), std::string::npos) << text << " is not in:\n" << help;
    }
}

TEST(VornTomlHelp, SaysWhichTextsHaveNoValue)
{
    const std::string help = helpOf({{"values", "--help"}, ""});
    EXPECT_NE(help.find("Bare keys, local dates and"), std::string::npos) << help;
    EXPECT_NE(help.find("have no conversion and no arrow"), std::string::npos) << help;
}

TEST(VornTomlHelp, ShowsTrueExamples)
{
    for (const HelpCase& c : helpCases())
    {
        SCOPED_TRACE(testing::PrintToString(c.arguments));
        const std::vector<Example> examples = examplesIn(helpOf(c));
        EXPECT_FALSE(examples.empty()) << "The help shows no example.";
        for (const Example& example : examples)
        {
            SCOPED_TRACE(example.command);
            EXPECT_NE(example.output, "");
            const test::ProgramRun run = runInExamples(example.command);
            EXPECT_EQ(run.status, 0);
            EXPECT_EQ(run.standardOutput, example.output);
            EXPECT_EQ(run.standardError, "");
        }
    }
}

} // namespace
