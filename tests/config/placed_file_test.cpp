#include <gtest/gtest.h>
#include <vorn/parsers/toml_places.h>

#include <sys/stat.h>

#include <fstream>
#include <string>
#include <thread>

#include "place_recorder.h"
#include "support/event_recorder.h"
#include "support/log_recorder.h"
#include "support/temporary_directory.h"

using namespace vorn::parsers::toml;

namespace
{

std::string longDocument()
{
    std::string text;
    for (int line = 0; line < 2000; ++line)
    {
        text += "key = 'value'\n";
    }
    return text;
}

} // namespace

TEST(PlacedFile, HasThePlacesOfItsText)
{
    const test::TemporaryDirectory directory;
    for (const std::string& text : {std::string(), std::string("a = 1\n"), longDocument()})
    {
        test::PlaceRecorder inText;
        EXPECT_TRUE(visitTomlTree(text, inText));
        test::PlaceRecorder inFile;
        EXPECT_TRUE(visitTomlTree(FilePath(directory.write("a.toml", text)), inFile));
        ASSERT_EQ(inFile.calls().size(), inText.calls().size());
        for (std::size_t index = 0; index < inText.calls().size(); ++index)
        {
            EXPECT_EQ(inFile.calls()[index].event(), inText.calls()[index].event());
            EXPECT_EQ(inFile.calls()[index].place.offset, inText.calls()[index].place.offset);
            EXPECT_EQ(inFile.calls()[index].place.line, inText.calls()[index].place.line);
        }
    }
}

TEST(PlacedFile, MayBeAPipe)
{
    const test::TemporaryDirectory directory;
    const std::string path = directory.path("pipe");
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    const std::string text = longDocument();
    std::thread writer([&] { std::ofstream(path) << text; });
    test::PlaceRecorder recorder;
    EXPECT_TRUE(visitTomlTree(FilePath(path), recorder));
    writer.join();
    EXPECT_EQ(recorder.calls().back().place.line, 2001U);
}

// As visitTomlTree() of vorn_parsers does.
TEST(PlacedFile, IsLoggedIfItCannotBeRead)
{
    const test::TemporaryDirectory directory;
    for (const std::string& path : {directory.path("none.toml"), directory.path(""),
                                    directory.path("none/none.toml"), std::string()})
    {
        test::PlaceRecorder recorder;
        std::vector<test::LogLine> lines;
        {
            const test::LogRecorder log;
            EXPECT_FALSE(visitTomlTree(FilePath(path), recorder)) << path;
            lines = log.lines();
        }
        EXPECT_TRUE(recorder.calls().empty());
        test::EventRecorder other;
        const test::LogRecorder log;
        EXPECT_FALSE(visitTomlTree(FilePath(path), other));
        ASSERT_EQ(lines.size(), 1U);
        ASSERT_EQ(log.lines().size(), 1U);
        EXPECT_EQ(lines[0].message, log.lines()[0].message);
        EXPECT_EQ(lines[0].line, log.lines()[0].line);
    }
}
