// The log lines of vorn-toml: how long they are, and that each is one write.
#include "support/temporary_directory.h"
#include "tools/tool_run.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

using test::accepted;
using test::ProgramRun;
using test::rejected;
using test::runTool;
using test::Words;

// All writes of a run to standard error: a pipe of packets keeps them apart, up to 4096 bytes.
std::vector<std::string> writesOf(const Words& arguments)
{
    std::array<int, 2> pipe = {};
    if (pipe2(pipe.data(), O_CLOEXEC | O_DIRECT) != 0)
    {
        throw std::runtime_error("a pipe of packets cannot be made");
    }
    const auto redirect = [&pipe](posix_spawn_file_actions_t* streams)
    {
        posix_spawn_file_actions_addopen(streams, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(streams, pipe[1], STDERR_FILENO);
    };
    const pid_t child = test::startProgram(test::joined({VORN_TOML}, arguments), redirect);
    close(pipe[1]);
    std::vector<std::string> writes;
    std::array<char, 8192> packet = {};
    for (ssize_t size = 0; (size = read(pipe[0], packet.data(), packet.size())) > 0;)
    {
        writes.emplace_back(packet.data(), static_cast<std::size_t>(size));
    }
    close(pipe[0]);
    if (waitpid(child, nullptr, 0) != child)
    {
        throw std::runtime_error("the tool cannot be run");
    }
    return writes;
}

TEST(VornTomlLog, WritesALogLineAtOnce)
{
    constexpr int statements = 4096;
    const test::TemporaryDirectory directory;
    const std::string file = directory.write("wrong.toml", test::repeated("a 1\n", statements));
    for (const std::string command : {"events", "values"})
    {
        SCOPED_TRACE(command);
        const std::vector<std::string> writes = writesOf({command, file});
        EXPECT_EQ(std::count_if(writes.begin(), writes.end(),
                                [](const std::string& line)
                                { return line.find("parser failure at: a1") != line.npos; }),
                  statements);
        EXPECT_TRUE(std::all_of(writes.begin(), writes.end(),
                                [](const std::string& line) { return line.back() == '\n'; }));
        // Four lines an error: three of the runtime and that of the log.
        EXPECT_EQ(writes.size(), 4 * statements + 1);
    }
}

// The message of the log line that holds all tokens of a document.
std::string parserMessage(const std::string& document)
{
    const ProgramRun run = runTool({"events", "-"}, document);
    EXPECT_EQ(run.status, rejected);
    const std::string start = "Invalid TOML: parser failure at: ";
    const std::size_t begin = run.standardError.find(start);
    EXPECT_NE(begin, std::string::npos) << run.standardError;
    return run.standardError.substr(begin + start.size(),
                                    run.standardError.find('\n', begin) - begin - start.size());
}

TEST(VornTomlLog, ShortensTheDocumentInLogLines)
{
    const std::string xs(197, 'x');
    EXPECT_EQ(parserMessage(xs + "x 1\n"), xs + "x1\\n");
    EXPECT_EQ(parserMessage(xs + "xx 1\n"), xs + "xx1... (201 bytes in all)");
    EXPECT_EQ(parserMessage(xs + " 1\n" + std::string(1000, 'y') + "\n"),
              xs + "1\\ny... (1200 bytes in all)");
    // It is cut between characters: of two bytes, and of three.
    EXPECT_EQ(parserMessage("'" + xs + "\xc3\xa9' 1\n"),
              "'" + xs + "\\xC3\\xA9... (203 bytes in all)");
    EXPECT_EQ(parserMessage("'" + xs + "x\xc3\xa9' 1\n"), "'" + xs + "x... (204 bytes in all)");
    EXPECT_EQ(parserMessage("'" + xs + "\xe2\x82\xac' 1\n"), "'" + xs + "... (204 bytes in all)");
    // Bytes that are no character are kept one by one.
    EXPECT_EQ(parserMessage("'" + xs + "\xa9\xa9\xa9' 1\n"),
              "'" + xs + "\\xA9\\xA9... (204 bytes in all)");
}

TEST(VornTomlLog, ShortensEveryTextInLogLines)
{
    const ProgramRun lexed =
        runTool({"events", "-"}, "a = \"" + std::string(1000, 'b') + "\\q\"\n");
    EXPECT_NE(lexed.standardError.find("lexer failure at: \"" + std::string(199, 'b') +
                                       "... (1003 bytes in all)\n"),
              std::string::npos)
        << lexed.standardError;
    const std::string fraction(1000, '1');
    const ProgramRun converted =
        runTool({"values", "-"}, "a = 1979-05-27t07:32:00." + fraction + '\n');
    EXPECT_EQ(converted.status, accepted);
    EXPECT_NE(converted.standardError.find("date-time: 1979-05-27t07:32:00." +
                                           fraction.substr(0, 180) + "... (1020 bytes in all)\n"),
              std::string::npos)
        << converted.standardError;
}

} // namespace
