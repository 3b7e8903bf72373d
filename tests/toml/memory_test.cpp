// The memory that a reading takes, however many errors a document has.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

#include "support/event_recorder.h"

namespace
{

[[noreturn]] void readInChild(const std::string& text, bool expected)
{
    // A reading that wants far too much fails instead of taking the machine's memory.
    const rlimit most = {1 << 30, 1 << 30};
    if (setrlimit(RLIMIT_AS, &most) != 0)
    {
        _exit(2);
    }
    // One report of the runtime for each error would drown the test's output.
    const int null = open("/dev/null", O_WRONLY);
    if (null < 0 || dup2(null, STDERR_FILENO) < 0)
    {
        _exit(2);
    }
    test::EventRecorder visitor;
    _exit(vorn::parsers::toml::visitTomlTree(text, visitor) == expected ? 0 : 1);
}

// The most memory, in kilobytes, that a process of its own has while it reads `text`.
long peakOfReading(const std::string& text, bool expected)
{
    const pid_t child = fork();
    if (child == 0)
    {
        readInChild(text, expected);
    }
    int status = -1;
    rusage usage = {};
    EXPECT_EQ(wait4(child, &status, 0, &usage), child);
    EXPECT_TRUE(WIFEXITED(status)) << "signal " << WTERMSIG(status);
    EXPECT_EQ(WEXITSTATUS(status), 0) << "the reading's result was not " << expected;
    return usage.ru_maxrss;
}

std::string repeated(const std::string& line, int count)
{
    std::string text;
    for (int index = 0; index < count; ++index)
    {
        text += line;
    }
    return text;
}

} // namespace

TEST(TomlMemory, staysSmallWhenEveryLineIsWrong)
{
    constexpr long megabyte = 1024;
    const std::string text = repeated("a b\n", 4000);
    EXPECT_LT(peakOfReading(text, false), 120 * megabyte);
}

TEST(TomlMemory, growsWithTheLinesThatAreWrongAndNotWithTheirSquare)
{
    struct Kind
    {
        std::string line;
        bool accepted;
    };
    const long baseline = peakOfReading("", true);
    for (const auto& [line, accepted] :
         {Kind{"a b\n", false}, Kind{"@@@\n", false}, Kind{"a = hello\n", false},
          Kind{"a = 'x\n", false}, Kind{"a = 1\n", true}})
    {
        SCOPED_TRACE(testing::PrintToString(line));
        const long small = peakOfReading(repeated(line, 1000), accepted) - baseline;
        const long large = peakOfReading(repeated(line, 4000), accepted) - baseline;
        // Four times as much, but for pages that are not full; the square would be 16 times.
        EXPECT_LT(large, 6 * small + 4096) << "kilobytes for 1,000 lines: " << small;
    }
}
