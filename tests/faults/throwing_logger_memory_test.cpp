// A logger that throws at each of its lines in turn: nothing is left behind.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>

#include "descriptors.h"
#include "failing_memory.h"
#include "support/counting_visitor.h"
#include "support/damaged_documents.h"
#include "support/stderr_capture.h"
#include "support/temporary_directory.h"
#include "support/throwing_logger.h"

using vorn::parsers::toml::FilePath;
using vorn::parsers::toml::visitTomlTree;

namespace
{

// The number of the line at which the logger has thrown; 0: nowhere.
template <typename Source>
int thrownAt(const Source& source, int line)
{
    test::CountingVisitor visitor;
    test::throwAtLine(line);
    try
    {
        EXPECT_FALSE(visitTomlTree(source, visitor));
    }
    catch (const test::LogFailure& failure)
    {
        return failure.line;
    }
    return 0;
}

template <typename Source>
void expectFreed(const Source& source)
{
    const test::StderrCapture quiet;
    // The first exception of a thread sets up what all of them share.
    thrownAt(source, 1);
    const int file = test::lowestFreeDescriptor();
    thrownAt(source, 0);
    const int lines = test::loggedLines();
    EXPECT_GT(lines, 3);
    for (int line = 1; line <= lines; ++line)
    {
        SCOPED_TRACE(line);
        const test::FailingMemory memory(0);
        EXPECT_EQ(thrownAt(source, line), line);
        EXPECT_EQ(memory.blocks(), 0);
        EXPECT_EQ(test::lowestFreeDescriptor(), file);
    }
}

} // namespace

TEST(ThrowingLoggerMemory, isFreed)
{
    const test::TemporaryDirectory directory;
    for (const std::string& text : test::damagedDocuments)
    {
        SCOPED_TRACE(text);
        expectFreed(text);
        expectFreed(FilePath(directory.write("damaged", text)));
    }
}
