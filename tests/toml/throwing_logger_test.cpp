// Loggers that throw.  This program's logger throws at the line that it is told.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>
#include <vorn/utils/log.h>

#include <string>
#include <vector>

#include "support/counting_visitor.h"
#include "support/stderr_capture.h"

using vorn::parsers::toml::FilePath;
using vorn::parsers::toml::visitTomlTree;

namespace
{

struct LogFailure
{
    int line;
};

int lines = 0;
int throwingLine = 0; // 0: none

// How many lines a reading logs, with the logger throwing at one of them.
struct Outcome
{
    int lines;
    int thrownAt;
    std::size_t calls;
};

template <typename Source>
Outcome read(const Source& source, int line)
{
    const test::StderrCapture capture;
    test::CountingVisitor visitor;
    lines = 0;
    throwingLine = line;
    int thrownAt = 0;
    try
    {
        EXPECT_FALSE(visitTomlTree(source, visitor));
    }
    catch (const LogFailure& failure)
    {
        thrownAt = failure.line;
    }
    throwingLine = 0;
    return {lines, thrownAt, visitor.calls};
}

template <typename Source>
void expectPassed(const Source& source, int expectedLines)
{
    const Outcome quiet = read(source, 0);
    ASSERT_EQ(quiet.lines, expectedLines);
    EXPECT_EQ(quiet.thrownAt, 0);
    for (int line = 1; line <= expectedLines; ++line)
    {
        SCOPED_TRACE(line);
        const Outcome outcome = read(source, line);
        EXPECT_EQ(outcome.thrownAt, line);
        EXPECT_EQ(outcome.lines, line); // nothing is logged after it
        EXPECT_LE(outcome.calls, quiet.calls);
    }
}

} // namespace

void logInternal(const char*, const char*, const char*, int, int, int, int, const char*, ...)
{
    if (++lines == throwingLine)
    {
        throw LogFailure{lines};
    }
}

TEST(TomlThrowingLogger, passesItsExceptionWhereverItThrows)
{
    expectPassed("a = 1", 1);              // the walk fails
    expectPassed("a = 1979-05-27 \n", 3);  // the lexer, the parser, the count
    expectPassed("a = 1 2\n", 3);          // the parser, the tree parser, the count
    expectPassed("@\na = {}\n@ b c\n", 6); // all three, and the count
    expectPassed("a = [1,\n\n[2 2\n", 3);  // the parser within arrays
    expectPassed(FilePath("/nowhere"), 1);
}

// The lexer's errors come while the parser runs, and the walk has not begun then.
TEST(TomlThrowingLogger, endsTheReadingBeforeTheWalk)
{
    EXPECT_GT(read("a = 1\n@\n", 0).calls, 0u);
    EXPECT_EQ(read("a = 1\n@\n", 1).calls, 0u);
}

TEST(TomlThrowingLogger, leavesTheNextReadingAlone)
{
    read("@\n", 1);
    test::CountingVisitor visitor;
    EXPECT_TRUE(visitTomlTree(std::string("a = 1\n"), visitor));
}
