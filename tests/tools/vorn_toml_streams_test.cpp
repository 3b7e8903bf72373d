// vorn-toml where its streams fail: output that cannot be written, streams that are closed.
#include "support/temporary_directory.h"
#include "tools/tool_run.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

using test::ProgramRun;
using test::unreadable;
using test::usage;
using test::Words;

const std::string noSpace = "vorn-toml: standard output: No space left on device\n";
const std::string notOpen = "vorn-toml: standard output: Bad file descriptor\n";

// Runs the tool with streams as a shell redirects them.
ProgramRun runRedirected(const std::string& redirections, const Words& arguments,
                         const std::string& input = "")
{
    Words words = {"/bin/sh", "-c", "exec \"$0\" \"$@\" " + redirections, VORN_TOML};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return test::runProgram(words, input);
}

std::vector<Words> commands()
{
    return {
        {"events"}, {"values"},        {"check"}, {"check", "--json"}, {"check", "--format=sarif"},
        {"tree"},   {"tree", "--dot"}, {"tokens"}};
}

TEST(VornTomlStreams, SaysWhyOutputIsNotWritten)
{
    const test::TemporaryDirectory directory;
    const std::vector<std::string> files = {
        directory.write("empty.toml", ""), directory.write("small.toml", "a = 1\n"),
        directory.write("large.toml", test::repeated("a = 'bcd'\n", 5000))};
    for (Words command : commands())
    {
        command.emplace_back();
        for (const std::string& file : files)
        {
            SCOPED_TRACE(testing::PrintToString(command) + file);
            command.back() = file;
            test::expectRun(runRedirected(">/dev/full", command), unreadable, "", noSpace);
            test::expectRun(runRedirected(">&-", command), unreadable, "", notOpen);
            test::expectRun(runRedirected("<&- >&-", command), unreadable, "", notOpen);
            test::expectRun(runRedirected("<&- >&- 2>&-", command), unreadable, "", "");
        }
    }
}

TEST(VornTomlStreams, SaysWhyHelpIsNotWritten)
{
    for (const Words& command :
         {Words{"--help"}, {"events", "-h"}, {"check", "--help"}, {"tree", "--help"}})
    {
        SCOPED_TRACE(testing::PrintToString(command));
        test::expectRun(runRedirected(">/dev/full", command), unreadable, "", noSpace);
        test::expectRun(runRedirected(">&-", command), unreadable, "", notOpen);
    }
}

TEST(VornTomlStreams, SaysWhatElseIsWrong)
{
    const std::string rejectedDocument = "a = 1\nb = []\n";
    for (Words command : commands())
    {
        SCOPED_TRACE(testing::PrintToString(command));
        command.emplace_back("-");
        for (const char* const redirection : {">/dev/full", ">&-"})
        {
            const ProgramRun run = runRedirected(redirection, command, rejectedDocument);
            const std::string reason = redirection == std::string(">&-") ? notOpen : noSpace;
            EXPECT_EQ(run.status, unreadable);
            ASSERT_GE(run.standardError.size(), reason.size());
            EXPECT_EQ(run.standardError.substr(run.standardError.size() - reason.size()), reason);
            EXPECT_EQ(run.standardError.size() > reason.size(),
                      command[1].rfind("--", 0) != 0 || command[1] == "--dot");
        }
    }
    EXPECT_EQ(runRedirected(">&-", {"check"}).status, usage);
    const std::string missing = "/no/such.toml";
    test::expectRun(runRedirected(">/dev/full", {"json", "-"}, "a = 1\n"), unreadable, "", noSpace);
    test::expectRun(runRedirected(">&-", {"events", missing}), unreadable, "",
                    "vorn-toml: " + missing + ": No such file or directory\n");
}

TEST(VornTomlStreams, ReadsNothingFromAClosedStandardInput)
{
    test::expectRun(runRedirected("<&-", {"check", "-"}), unreadable, "",
                    "vorn-toml: standard input: Bad file descriptor\n");
}

} // namespace
