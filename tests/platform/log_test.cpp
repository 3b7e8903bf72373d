// The stand-in's logger: one line on standard error for each message.
#include <gtest/gtest.h>

#include <vorn/utils/log.h>

#include <sstream>
#include <thread>

#include "support/stderr_capture.h"

namespace
{

// The line of a message that is logged with this level and format.
template <typename... Arguments>
std::string logged(int level, const char* format, Arguments... arguments)
{
    const test::StderrCapture capture;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    logInternal("module", "dir/file.cpp", "function", 42, level, 0, 0, format, arguments...);
#pragma GCC diagnostic pop
    return capture.text();
}

} // namespace

TEST(PlatformLog, namesTheLevelTheModuleAndThePlace)
{
    EXPECT_EQ(logged(3, "a message"), "error module dir/file.cpp:42 function: a message\n");
}

TEST(PlatformLog, namesLevelsLikeSyslog)
{
    for (const auto& [level, name] : std::vector<std::pair<int, std::string>>{{0, "emergency"},
                                                                              {1, "alert"},
                                                                              {2, "critical"},
                                                                              {3, "error"},
                                                                              {4, "warning"},
                                                                              {5, "notice"},
                                                                              {6, "info"},
                                                                              {7, "debug"},
                                                                              {8, "unknown"},
                                                                              {-1, "unknown"}})
    {
        EXPECT_EQ(logged(level, "x"), name + " module dir/file.cpp:42 function: x\n");
    }
}

TEST(PlatformLog, fillsInTheArguments)
{
    EXPECT_EQ(logged(3, "%s has %d errors, %5.1f%%", "it", -7, 2.25),
              "error module dir/file.cpp:42 function: it has -7 errors,   2.2%\n");
    EXPECT_EQ(logged(3, "%s", "%s%n"), "error module dir/file.cpp:42 function: %s%n\n");
    EXPECT_EQ(logged(3, "%s", ""), "error module dir/file.cpp:42 function: \n");
}

TEST(PlatformLog, escapesLineBreaksOfTheMessage)
{
    EXPECT_EQ(logged(3, "%s", "a\nb\r\nc\n\n"),
              "error module dir/file.cpp:42 function: a\\nb\\r\\nc\\n\\n\n");
    EXPECT_EQ(logged(3, "a\n%s", "\\n\t\xc3\xa9"),
              "error module dir/file.cpp:42 function: a\\n\\n\t\xc3\xa9\n");
}

TEST(PlatformLog, keepsLongMessagesWhole)
{
    const std::string text(1'000'000, 'x');
    EXPECT_TRUE(logged(3, "%s", text.c_str()) ==
                "error module dir/file.cpp:42 function: " + text + "\n");
}

TEST(PlatformLog, keepsTheLinesOfThreadsApart)
{
    const std::string first(5000, 'a');
    const std::string second(5000, 'b');
    const auto logMany = [](const std::string& text)
    {
        for (int index = 0; index < 200; ++index)
        {
            logInternal("m", "f", "f", 1, 3, 0, 0, "%s", text.c_str());
        }
    };
    const test::StderrCapture capture;
    std::thread other(logMany, second);
    logMany(first);
    other.join();

    std::istringstream lines(capture.text());
    std::string line;
    int count = 0;
    for (; std::getline(lines, line); ++count)
    {
        EXPECT_TRUE(line == "error m f:1 f: " + first || line == "error m f:1 f: " + second)
            << "line " << count;
    }
    EXPECT_EQ(count, 400);
}
