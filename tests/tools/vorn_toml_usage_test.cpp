// vorn-toml where it is used in a wrong way, and its versions.
#include "tools/tool_run.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using test::runTool;
using test::Words;

// The question at the end, without "Did you mean".
std::string questionTo(const Words& words)
{
    const test::ProgramRun run = runTool(words);
    EXPECT_EQ(run.status, test::usage);
    EXPECT_EQ(run.standardOutput, "");
    const std::string start = "\nDid you mean ";
    const std::size_t at = run.standardError.find(start);
    return at == std::string::npos ? "" : run.standardError.substr(at + start.size());
}

TEST(VornTomlUsage, AsksWhichSubcommandIsMeant)
{
    EXPECT_EQ(questionTo({"chek", "a.toml"}), "check instead of chek?\n");
    EXPECT_EQ(questionTo({"token", "a.toml"}), "tokens instead of token?\n");
    EXPECT_EQ(questionTo({"event"}), "events instead of event?\n");
    EXPECT_EQ(questionTo({"jsn"}), "json instead of jsn?\n");
    EXPECT_EQ(questionTo({"a.toml"}), "");
    EXPECT_EQ(questionTo({"configure"}), "");
    EXPECT_EQ(questionTo({std::string(100000, 'x')}), "");
    EXPECT_EQ(questionTo({}), "");
}

TEST(VornTomlUsage, AsksWhichOptionIsMeant)
{
    EXPECT_EQ(questionTo({"check", "--jsn", "a.toml"}), "--json instead of --jsn?\n");
    EXPECT_EQ(questionTo({"check", "--fromat=json", "a"}), "--format instead of --fromat?\n");
    EXPECT_EQ(questionTo({"check", "--colour", "auto", "a"}), "--color instead of --colour?\n");
    EXPECT_EQ(questionTo({"tree", "--dto", "a.toml"}), "--dot instead of --dto?\n");
    EXPECT_EQ(questionTo({"--versoin"}), "--version instead of --versoin?\n");
    EXPECT_EQ(questionTo({"check", "--surprise", "a.toml"}), "");
    EXPECT_EQ(questionTo({"check", "--json"}), "");
    EXPECT_EQ(questionTo({"check", "--format", "yaml", "a.toml"}), "");
}

TEST(VornTomlUsage, ShowsItsVersions)
{
    const std::string version = VORN_TOML_VERSION;
    test::expectRun(runTool({"--version"}), test::accepted,
                    "vorn-toml " + version + "\nlibvorn_parsers " + version +
                        "\nlibvorn_toml_diagnosis " + version + '\n',
                    "");
}

} // namespace
