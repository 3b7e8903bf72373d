// Visitors that throw, at each of their calls in turn.
#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "descriptors.h"
#include "failing_memory.h"
#include "quiet_log.h"
#include "reference/reference_pipeline.h"
#include "support/damaged_documents.h"
#include "support/event_recorder.h"
#include "support/large_documents.h"
#include "support/stderr_capture.h"
#include "support/temporary_directory.h"

using test::Events;
using vorn::parsers::toml::FilePath;
using vorn::parsers::toml::ITomlTreeVisitor;
using vorn::parsers::toml::visitTomlTree;

namespace
{

struct Stop
{
    std::size_t call;
};

struct Outcome
{
    bool accepted = false;
    std::size_t thrownAt = 0; // 0: nowhere
    Events events;
    std::vector<std::string> formats;     // of the log lines
    std::vector<std::size_t> linesBefore; // each event
    int file = -1;                        // the lowest descriptor that is free after it
};

template <typename Source>
using Visit = bool (*)(const Source&, ITomlTreeVisitor&);

// Reads with a visitor that throws at a call; with 0, at none.
template <typename Source>
Outcome read(const Source& source, std::size_t throwingCall, Visit<Source> visit = visitTomlTree)
{
    test::clearLog();
    Outcome outcome;
    test::EventRecorder visitor;
    visitor.onEvent(
        [&](const std::string&)
        {
            outcome.linesBefore.push_back(test::loggedLines());
            if (visitor.events().size() == throwingCall)
            {
                throw Stop{throwingCall};
            }
        });
    try
    {
        outcome.accepted = visit(source, visitor);
    }
    catch (const Stop& stop)
    {
        outcome.thrownAt = stop.call;
    }
    outcome.events = visitor.events();
    outcome.formats = test::loggedFormats();
    outcome.file = test::lowestFreeDescriptor();
    return outcome;
}

template <typename List>
List firstOf(const List& list, std::size_t count)
{
    return {list.begin(), list.begin() + static_cast<std::ptrdiff_t>(count)};
}

void expectSame(const Outcome& outcome, const Outcome& whole)
{
    EXPECT_EQ(outcome.accepted, whole.accepted);
    EXPECT_EQ(outcome.thrownAt, 0u);
    EXPECT_EQ(outcome.events, whole.events);
    EXPECT_EQ(outcome.formats, whole.formats);
    EXPECT_EQ(outcome.linesBefore, whole.linesBefore);
}

// Throws at each call that the reference makes for the text, which the source has.
template <typename Source>
void expectPassed(const Source& source, const std::string& text, bool accepted)
{
    const test::StderrCapture quiet;
    const Outcome whole = read(text, 0, reference::visitTomlTree);
    EXPECT_EQ(whole.accepted, accepted);
    ASSERT_FALSE(whole.events.empty());
    expectSame(read(source, 0), whole);
    // The first exception of a thread sets up what all of them share.
    read(source, 1);
    for (std::size_t call = 1; call <= whole.events.size(); ++call)
    {
        SCOPED_TRACE("call " + std::to_string(call));
        const test::FailingMemory memory(0);
        {
            const Outcome outcome = read(source, call);
            EXPECT_EQ(outcome.thrownAt, call);
            EXPECT_EQ(outcome.events, firstOf(whole.events, call));
            EXPECT_EQ(outcome.formats, firstOf(whole.formats, whole.linesBefore[call - 1]));
            EXPECT_EQ(outcome.file, whole.file);
        }
        EXPECT_EQ(memory.blocks(), 0);
    }
    expectSame(read(source, 0), whole);
}

const std::vector<std::string> acceptedDocuments = {
    "",
    "a = 1\n",
    "[t.'u'.\"v\"]\n[[w]]\n",
    "a = [1, [2.5, true], {b.c = 'x', d = 1979-05-27T07:32:00Z}]\n",
    test::mixedDocument(1500),
    test::nestedDocument("[{a=", "}]", 20),
};

const std::vector<std::string> refusedDocuments = {
    "a = 1",
    "@\n",
    "a = 1\nb = @\nc = [1, 2]\n",
    "a = {}\nb = []\n[t]\nc = [1,, 2]\n",
    "a = [1, [2, {b = 'x'}]\nc = 3\n",
    test::mixedDocument(1000) + "a 1\n" + test::mixedDocument(1000),
    test::nestedDocument("[{a=", "}]", 20) + "@",
};

} // namespace

TEST(ThrowingVisitor, endsTheReadingOfAnAcceptedText)
{
    for (const std::string& text : acceptedDocuments)
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 40)));
        expectPassed(text, text, true);
    }
}

TEST(ThrowingVisitor, endsTheReadingOfARefusedText)
{
    for (const std::string& text : refusedDocuments)
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 40)));
        expectPassed(text, text, false);
    }
}

TEST(ThrowingVisitor, endsTheReadingAmongLinesWithMistakes)
{
    const test::TemporaryDirectory directory;
    for (const std::string& text : test::damagedDocuments)
    {
        SCOPED_TRACE(text);
        expectPassed(text, text, false);
        expectPassed(FilePath(directory.write("damaged", text)), text, false);
    }
}

TEST(ThrowingVisitor, endsTheReadingOfAFile)
{
    const test::TemporaryDirectory directory;
    for (const std::string& text : acceptedDocuments)
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 40)));
        expectPassed(FilePath(directory.write("accepted", text)), text, true);
    }
    for (const std::string& text : refusedDocuments)
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 40)));
        expectPassed(FilePath(directory.write("refused", text)), text, false);
    }
}

// The exception is the very one that was thrown.
TEST(ThrowingVisitor, mayThrowAnything)
{
    const test::StderrCapture quiet;
    const std::runtime_error error("of the visitor");
    const auto throwing = [](auto thrown)
    {
        test::EventRecorder visitor;
        visitor.onEvent([thrown](const std::string&) { throw thrown; });
        return visitor;
    };
    for (const std::string document : {"a = 1\n", "a = 1"})
    {
        SCOPED_TRACE(document);
        auto ofNumber = throwing(42);
        EXPECT_THROW(visitTomlTree(document, ofNumber), int);
        auto ofPointer = throwing(&error);
        try
        {
            visitTomlTree(document, ofPointer);
            ADD_FAILURE() << "the exception did not arrive";
        }
        catch (const std::runtime_error* caught)
        {
            EXPECT_EQ(caught, &error);
        }
        auto ofMemory = throwing(std::bad_alloc());
        EXPECT_THROW(visitTomlTree(document, ofMemory), std::bad_alloc);
    }
}
