// What the driver asks the platform about a path.  This program replaces the platform's
// test of a file's existence.
#include <gtest/gtest.h>

#include <vorn/utils/file.h>

#include "support/driver_log.h"
#include "support/event_lists.h"
#include "support/reading.h"
#include "support/temporary_directory.h"

using namespace test;
using vorn::parsers::toml::FilePath;

namespace
{

struct Question
{
    std::string path;
    bool followLinks;
    int directory;
};

std::vector<Question> questions;
bool answer = false;

} // namespace

bool fileExists(const char* path, bool followLinks, int directory)
{
    questions.push_back({path, followLinks, directory});
    return answer;
}

namespace
{

void expectOneQuestion(const std::string& path)
{
    ASSERT_EQ(questions.size(), 1u);
    EXPECT_EQ(questions[0].path, path);
    EXPECT_TRUE(questions[0].followLinks);
    EXPECT_EQ(questions[0].directory, -100); // the working directory
}

Reading readWhenExistenceIs(bool exists, const std::string& path)
{
    questions.clear();
    answer = exists;
    return read(FilePath(path));
}

void expectNotOpened(const std::string& path)
{
    const Reading reading = readWhenExistenceIs(true, path);
    expectOneQuestion(path);
    EXPECT_FALSE(reading.accepted);
    EXPECT_EQ(reading.events, Events());
    expectDriverLog(reading.lines, {"Failed to open file; " + path});
}

} // namespace

TEST(TomlFileExists, isAskedOnceForAFileThatIsThere)
{
    const TemporaryDirectory directory;
    const std::string path = directory.write("a.toml", "a = 1\n");
    const Reading reading = readWhenExistenceIs(true, path);
    expectOneQuestion(path);
    EXPECT_TRUE(reading.accepted);
    EXPECT_EQ(reading.events, document({pair(bare("a"), integer("1"))}));
    expectDriverLog(reading.lines, {});
}

TEST(TomlFileExists, isBelievedWhenItDeniesAFileThatIsThere)
{
    const TemporaryDirectory directory;
    const std::string path = directory.write("a.toml", "a = 1\n");
    const Reading reading = readWhenExistenceIs(false, path);
    expectOneQuestion(path);
    EXPECT_FALSE(reading.accepted);
    EXPECT_EQ(reading.events, Events());
    expectDriverLog(reading.lines, {"No such file: " + path});
}

TEST(TomlFileExists, doesNotMakeAFileOpen)
{
    expectNotOpened("/nowhere/a.toml");
    expectNotOpened("");
}

TEST(TomlFileExists, doesNotMakeADirectoryReadable)
{
    const TemporaryDirectory directory;
    expectNotOpened(directory.path(""));
}

TEST(TomlFileExists, isNotAskedAboutATextThatIsAPath)
{
    questions.clear();
    EXPECT_FALSE(read(std::string("/etc/app.toml")).accepted);
    EXPECT_TRUE(questions.empty());
}
