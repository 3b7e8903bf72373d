// The recognisers come in only where the direct reader refuses a document.
#include <gtest/gtest.h>

#include "pipeline_spy.h"
#include "support/direct_reading.h"
#include "support/event_lists.h"
#include "support/reading.h"
#include "support/refused_documents.h"

using namespace std::string_literals;
using namespace test;
using vorn::parsers::toml::visitTomlTree;

namespace
{

// What a reading shows, and what the driver did with the runtime's objects.
struct Outcome
{
    Reading reading;
    Steps steps;
};

Outcome outcomeOf(const std::string& text)
{
    PipelineSpy spy;
    Outcome outcome = {read(text), {}};
    outcome.steps = spy.steps;
    return outcome;
}

Outcome outcomeWithDirectReader(const std::string& text)
{
    const DirectReadingOn on;
    return outcomeOf(text);
}

Events messagesOf(const Reading& reading)
{
    Events messages;
    for (const LogLine& line : reading.lines)
    {
        messages.push_back(line.message);
    }
    return messages;
}

} // namespace

TEST(DirectReading, makesNoObjectsOfTheRuntimeForADocumentThatIsRight)
{
    std::string large;
    for (int line = 0; line < 100000; ++line)
    {
        large += "a = [1, {b = 'x'}]\n";
    }
    for (const std::string& text :
         {""s, "\n# c"s, "\xef\xbb\xbf"s, "a = 1\n"s,
          "[t.'u']\n[[v]]\na = [\n1, {b = 'x'}\n]\nd = 1979-05-27\n"s,
          "a = " + std::string(5000, '[') + "1" + std::string(5000, ']') + "\n", large})
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 80)));
        const Outcome outcome = outcomeWithDirectReader(text);
        EXPECT_TRUE(outcome.reading.accepted);
        EXPECT_EQ(outcome.steps, Steps());
        EXPECT_EQ(outcome.reading.events.front(), "beginDocument");
        EXPECT_EQ(outcome.reading.events.back(), "endDocument");
        EXPECT_TRUE(outcome.reading.lines.empty());
        EXPECT_EQ(outcome.reading.standardError, "");
    }
}

TEST(DirectReading, showsWhatTheRecognisersShow)
{
    for (const std::string text :
         {"", "# c", "a = 1\n", "[t.'u']\n[[v]]\na = [\n1, {b = 'x', \"c\" = inf}\n]\n",
          "\xef\xbb\xbf"
          "a.b = '\xc3\xa9'\n"})
    {
        SCOPED_TRACE(testing::PrintToString(text));
        const Outcome alone = outcomeOf(text);
        EXPECT_TRUE(alone.reading.accepted);
        EXPECT_FALSE(alone.steps.empty());
        EXPECT_EQ(outcomeWithDirectReader(text).reading.events, alone.reading.events);
    }
}

TEST(DirectReading, leavesDocumentsWithAMistakeToTheRecognisers)
{
    for (const auto& [mistake, texts] : refusedDocuments)
    {
        SCOPED_TRACE(mistake);
        for (const std::string& text : texts)
        {
            SCOPED_TRACE(testing::PrintToString(text));
            const Outcome alone = outcomeOf(text);
            const Outcome both = outcomeWithDirectReader(text);
            EXPECT_FALSE(alone.reading.accepted);
            EXPECT_FALSE(both.reading.accepted);
            EXPECT_EQ(both.steps, alone.steps);
            EXPECT_EQ(both.reading.events, alone.reading.events);
            EXPECT_EQ(messagesOf(both.reading), messagesOf(alone.reading));
        }
    }
}

TEST(DirectReading, leavesDocumentsWithUnusualBytesToTheRecognisers)
{
    for (const std::string& text : unusualDocuments)
    {
        SCOPED_TRACE(testing::PrintToString(text));
        const Outcome alone = outcomeOf(text);
        const Outcome both = outcomeWithDirectReader(text);
        EXPECT_TRUE(both.reading.accepted);
        EXPECT_FALSE(both.steps.empty());
        EXPECT_EQ(both.steps, alone.steps);
        EXPECT_EQ(both.reading.events, alone.reading.events);
        EXPECT_TRUE(both.reading.lines.empty());
    }
}

TEST(DirectReading, makesNoCallBeforeTheWalkOfADocumentWithAMistake)
{
    for (const std::string text : {"a = 1", "a = 1\nb = []\n", "[t]\na = 1\n@\n", "a = 1\n\r"})
    {
        SCOPED_TRACE(testing::PrintToString(text));
        const DirectReadingOn on;
        const LogRecorder log;
        const StderrCapture quiet;
        PipelineSpy spy;
        EventRecorder visitor;
        Steps before;
        visitor.onEvent(
            [&](const std::string&)
            {
                if (visitor.events().size() == 1)
                {
                    before = spy.steps;
                }
            });
        EXPECT_FALSE(visitTomlTree(text, visitor));
        ASSERT_FALSE(before.empty());
        EXPECT_EQ(before.back(), "walk");
        Steps made;
        for (const std::string& step : before)
        {
            if (step.rfind("display", 0) != 0)
            {
                made.push_back(step);
            }
        }
        EXPECT_EQ(made, creation());
    }
}

TEST(DirectReading, mayBeginAnotherReadingInEveryCall)
{
    const std::string text = "[t.'u']\na = [1, {b = \"x\"}]\n";
    const DirectReadingOn on;
    const LogRecorder log;
    const StderrCapture quiet;
    EventRecorder alone;
    ASSERT_TRUE(visitTomlTree(text, alone));
    EventRecorder visitor;
    visitor.onEvent(
        [&](const std::string&)
        {
            PipelineSpy spy;
            EventRecorder inner;
            EXPECT_TRUE(visitTomlTree(text, inner));
            EXPECT_EQ(inner.events(), alone.events());
            EXPECT_EQ(spy.steps, Steps());
            EXPECT_FALSE(visitTomlTree(text + "a = 1", inner));
            EXPECT_EQ(spy.steps.back(), "close input");
        });
    EXPECT_TRUE(visitTomlTree(text, visitor));
    EXPECT_EQ(visitor.events(), alone.events());
}
