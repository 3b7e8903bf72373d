// vorn-toml on a terminal: colours and progress.
#include "support/temporary_directory.h"
#include "support/terminal_run.h"
#include "support/variable.h"
#include "tools/tool_run.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>

namespace
{

using test::Variable;

const std::string escape = "\x1B[";

class VornTomlTerminal : public testing::Test
{
protected:
    bool hasColours(const std::vector<std::string>& options) const
    {
        const test::TerminalRun run =
            test::runOnTerminal(test::joined(test::joined({VORN_TOML, "check"}, options), {bad_}));
        EXPECT_EQ(run.status, test::rejected);
        EXPECT_NE(run.terminal.find("the array is empty"), std::string::npos) << run.terminal;
        return run.terminal.find(escape) != std::string::npos;
    }

    const Variable term_{"TERM", "xterm"};
    const Variable noColour_{"NO_COLOR", nullptr};
    const test::TemporaryDirectory directory_;
    const std::string bad_ = directory_.write("bad.toml", "a = []\n");
};

TEST_F(VornTomlTerminal, hasColoursUnlessTheUserIsAgainst)
{
    EXPECT_TRUE(hasColours({}));
    EXPECT_TRUE(hasColours({"--color", "auto"}));
    EXPECT_FALSE(hasColours({"--color", "never"}));
    {
        const Variable against("NO_COLOR", "1");
        EXPECT_FALSE(hasColours({}));
        EXPECT_TRUE(hasColours({"--color=always"}));
    }
    {
        // As no-color.org has it.
        const Variable empty("NO_COLOR", "");
        EXPECT_TRUE(hasColours({}));
    }
    const Variable dumb("TERM", "dumb");
    EXPECT_FALSE(hasColours({}));
}

TEST_F(VornTomlTerminal, showsProgressOfLargeFilesAndTakesItAway)
{
    const std::string large =
        directory_.write("large.toml", std::string(std::size_t{33} * 1024 * 1024, '\n'));
    const test::TerminalRun run = test::runOnTerminal({VORN_TOML, "check", large});
    EXPECT_EQ(run.status, test::accepted);
    // Where reading it takes long, that shows first.
    const std::regex reading(", [0-9]+ MB read\r\x1B\\[K\\[1/1\\] " + large);
    EXPECT_EQ(std::regex_replace(run.terminal, reading, ""), "[1/1] " + large + ", 35 MB\r\x1B[K")
        << run.terminal;
}

// (Under an emulator, everything takes long.)
class VornTomlTerminalWithLimits : public VornTomlTerminal
{
};

TEST_F(VornTomlTerminalWithLimits, showsWhichOfManyFilesTakesLong)
{
    const std::string fifo = directory_.path("fifo.toml");
    const test::TerminalRun run = test::runOnTerminal(
        {"/bin/sh", "-c", R"(mkfifo "$2"; (sleep 1; echo >"$2") & exec "$0" check -q "$1" "$2")",
         VORN_TOML, bad_, fifo});
    EXPECT_EQ(run.status, test::rejected);
    const std::size_t at = run.terminal.find("[2/2] " + fifo + "\r\x1B[K");
    EXPECT_NE(at, std::string::npos) << run.terminal;
    EXPECT_EQ(run.terminal.substr(run.terminal.size() - 4), "\r\x1B[K");
}

TEST_F(VornTomlTerminal, showsNoProgressOfSmallFilesNorElsewhere)
{
    const std::string small = directory_.write("small.toml", "a = 1\n");
    EXPECT_EQ(test::runOnTerminal({VORN_TOML, "check", small}).terminal, "");
    const std::string large =
        directory_.write("large.toml", std::string(std::size_t{33} * 1024 * 1024, '\n'));
    test::expectRun(test::runTool({"check", large}), test::accepted, large + ": accepted\n", "");
    const Variable dumb("TERM", "dumb");
    EXPECT_EQ(test::runOnTerminal({VORN_TOML, "check", large}).terminal, "");
}

} // namespace
