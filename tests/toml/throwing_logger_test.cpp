// Loggers that throw.  This program's logger throws at the line that it is told.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>

#include <algorithm>
#include <string>
#include <vector>

#include "reference/reference_pipeline.h"
#include "support/counting_visitor.h"
#include "support/damaged_documents.h"
#include "support/event_recorder.h"
#include "support/stderr_capture.h"
#include "support/throwing_logger.h"

using test::LogFailure;
using vorn::parsers::toml::FilePath;
using vorn::parsers::toml::visitTomlTree;

namespace
{

// Where the visitor's calls and the lines of the log stand in one list, these start so.
const std::string lineMark = "log: ";

bool isLine(const std::string& shown)
{
    return shown.rfind(lineMark, 0) == 0;
}

// What a reading shows, in its order, with the logger throwing at one of the lines.
struct Outcome
{
    int lines = 0;
    int thrownAt = 0;
    std::vector<std::string> shown;

    std::ptrdiff_t calls() const
    {
        return std::count_if(shown.begin(), shown.end(),
                             [](const std::string& one) { return !isLine(one); });
    }
};

template <typename Source>
Outcome read(bool (*visit)(const Source&, vorn::parsers::toml::ITomlTreeVisitor&),
             const Source& source, int line)
{
    const test::StderrCapture capture;
    Outcome outcome;
    test::EventRecorder visitor;
    visitor.onEvent([&outcome](const std::string& event) { outcome.shown.push_back(event); });
    test::onLine([&outcome](const std::string& text) { outcome.shown.push_back(lineMark + text); });
    test::throwAtLine(line);
    try
    {
        EXPECT_FALSE(visit(source, visitor));
    }
    catch (const LogFailure& failure)
    {
        outcome.thrownAt = failure.line;
    }
    outcome.lines = test::loggedLines();
    test::throwAtLine(0);
    test::onLine(nullptr);
    return outcome;
}

template <typename Source>
Outcome read(const Source& source, int line)
{
    return read<Source>(visitTomlTree, source, line);
}

// Of what a whole reading shows, what one shows whose logger throws at a line: there are no lines
// after it, and no calls unless the walk has begun, which goes on to where it ends anyway.
std::vector<std::string> untilThrown(const std::vector<std::string>& whole, int line)
{
    std::vector<std::string> shown;
    int lines = 0;
    bool isWalked = false;
    for (const std::string& one : whole)
    {
        if (lines < line || (isWalked && !isLine(one)))
        {
            shown.push_back(one);
        }
        lines += isLine(one) ? 1 : 0;
        isWalked = isWalked || (lines < line && !isLine(one));
    }
    return shown;
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
        EXPECT_EQ(outcome.shown, untilThrown(quiet.shown, line));
    }
}

} // namespace

TEST(TomlThrowingLogger, passesItsExceptionWhereverItThrows)
{
    const auto expectPassedFor = [](const std::string& text, int lines)
    { expectPassed(text, lines); };
    expectPassedFor("a = 1", 1);              // the walk fails
    expectPassedFor("a = 1979-05-27 \n", 3);  // the lexer, the parser, the count
    expectPassedFor("a = 1 2\n", 3);          // the parser, the tree parser, the count
    expectPassedFor("@\na = {}\n@ b c\n", 6); // all three, and the count
    expectPassedFor("a = [1,\n\n[2 2\n", 3);  // the parser within arrays
    expectPassed(FilePath("/nowhere"), 1);
}

TEST(TomlThrowingLogger, passesItsExceptionFromAmongValidLines)
{
    for (const std::string& document : test::damagedDocuments)
    {
        SCOPED_TRACE(document);
        const Outcome reference = read(reference::visitTomlTree, document, 0);
        EXPECT_GT(reference.lines, 3);
        EXPECT_GT(reference.calls(), 0);
        EXPECT_EQ(read(document, 0).shown, reference.shown);
        expectPassed(document, reference.lines);
    }
}

// The lexer's errors come while the parser runs, and the walk has not begun then.
TEST(TomlThrowingLogger, endsTheReadingBeforeTheWalk)
{
    const std::string document = "a = 1\n@\n";
    EXPECT_GT(read(document, 0).calls(), 0);
    EXPECT_EQ(read(document, 1).calls(), 0);
}

TEST(TomlThrowingLogger, leavesTheNextReadingAlone)
{
    read(std::string("@\n"), 1);
    test::CountingVisitor visitor;
    EXPECT_TRUE(visitTomlTree(std::string("a = 1\n"), visitor));
}
