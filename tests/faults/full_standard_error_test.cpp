// Refused documents where standard error takes nothing: the runtime's own reports are lost,
// and that is all.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>

#include "support/large_documents.h"
#include "support/reading.h"
#include "support/refused_documents.h"
#include "support/temporary_directory.h"

using test::Reading;
using vorn::parsers::toml::FilePath;

namespace
{

// Standard error is this file, or none, while this lives.
class StandardError
{
public:
    explicit StandardError(int file) : saved_(dup(STDERR_FILENO))
    {
        std::fflush(stderr);
        close(STDERR_FILENO);
        if (file >= 0)
        {
            dup2(file, STDERR_FILENO);
            close(file);
        }
    }
    StandardError(const StandardError&) = delete;
    StandardError& operator=(const StandardError&) = delete;
    ~StandardError()
    {
        std::fflush(stderr);
        std::clearerr(stderr);
        dup2(saved_, STDERR_FILENO);
        close(saved_);
    }

private:
    int saved_;
};

// Reads as test::read() does, without the capture.
template <typename Source>
Reading readTo(int standardError, const Source& source)
{
    test::EventRecorder visitor;
    const test::LogRecorder log;
    const StandardError replaced(standardError);
    const bool accepted = vorn::parsers::toml::visitTomlTree(source, visitor);
    return {accepted, visitor.events(), log.lines(), ""};
}

int fullDevice()
{
    return open("/dev/full", O_WRONLY | O_CLOEXEC);
}

// A pipe that nobody reads.
int brokenPipe()
{
    int ends[2] = {-1, -1};
    EXPECT_EQ(pipe(ends), 0);
    close(ends[0]);
    return ends[1];
}

int nothing()
{
    return -1;
}

void expectSame(const Reading& reading, const Reading& usual)
{
    EXPECT_EQ(reading.accepted, usual.accepted);
    EXPECT_EQ(reading.events, usual.events);
    ASSERT_EQ(reading.lines.size(), usual.lines.size());
    for (std::size_t index = 0; index < reading.lines.size(); ++index)
    {
        EXPECT_EQ(reading.lines[index].message, usual.lines[index].message);
        EXPECT_EQ(reading.lines[index].line, usual.lines[index].line);
    }
}

std::vector<std::string> documents()
{
    std::vector<std::string> all = {"a = 1\n", test::mixedDocument(2000) + "@",
                                    test::repeated("a 1\n@\n", 50)};
    for (const auto& [mistake, texts] : test::refusedDocuments)
    {
        all.insert(all.end(), texts.begin(), texts.end());
    }
    return all;
}

class FullStandardError : public testing::Test
{
protected:
    FullStandardError() : handler_(std::signal(SIGPIPE, SIG_IGN)) {}
    ~FullStandardError() override { std::signal(SIGPIPE, handler_); }

private:
    void (*handler_)(int);
};

} // namespace

TEST_F(FullStandardError, changesNothingForTexts)
{
    std::size_t reported = 0;
    for (const std::string& text : documents())
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 40)));
        const Reading usual = test::read(text);
        reported += usual.standardError.empty() ? 0 : 1;
        for (const auto make : {fullDevice, brokenPipe, nothing})
        {
            expectSame(readTo(make(), text), usual);
        }
    }
    EXPECT_GT(reported, 200u);
}

// Without a standard error, the document's file gets its number.
TEST_F(FullStandardError, changesNothingForFiles)
{
    const test::TemporaryDirectory directory;
    for (const std::string& text : documents())
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 40)));
        const FilePath path(directory.write("file", text));
        const Reading usual = test::read(path);
        for (const auto make : {fullDevice, brokenPipe, nothing})
        {
            expectSame(readTo(make(), path), usual);
        }
        expectSame(test::read(FilePath(path)), usual);
    }
}

TEST_F(FullStandardError, isStandardErrorAgainBehindIt)
{
    const Reading usual = test::read(std::string("a = 1 2\n"));
    ASSERT_FALSE(usual.standardError.empty());
    for (const auto make : {fullDevice, brokenPipe, nothing})
    {
        readTo(make(), std::string("a = 1 2\n"));
        EXPECT_FALSE(test::read(std::string("a = 1 2\n")).standardError.empty());
    }
}
