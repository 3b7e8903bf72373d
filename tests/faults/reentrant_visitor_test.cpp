// Visitors that read other documents from within their calls.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "support/driver_log.h"
#include "support/event_recorder.h"
#include "support/large_documents.h"
#include "support/log_recorder.h"
#include "support/stderr_capture.h"

using test::EventRecorder;
using test::Events;
using test::Messages;
using vorn::parsers::toml::visitTomlTree;

namespace
{

constexpr std::size_t levels = 5;

// Accepted and refused ones in turn.
const std::vector<std::string> documents = {
    "a = [1, {b.c = 'x'}]\n[t]\n",
    "a = 1 2\nb = [1, @, 2]\n[t]\nc = 3\n",
    "[[t]]\nd = 1979-05-27T07:32:00Z\n",
    "e = [[1, 2], {f = 'y'}\ng = 'z\n",
    test::mixedDocument(300),
    "h = '" + std::string(3000, 'x') + "'\nh = {}",
};

// A recorder whose observer may read other documents: a text must still be there after it.
class LastingTexts : public EventRecorder
{
private:
    void called(const char* operation) override { EventRecorder::called(operation); }
    void called(const char* operation, const char* text) override
    {
        EventRecorder::called(operation, text);
        EXPECT_EQ(events().back(), std::string(operation) + ' ' + text);
    }
};

const std::string& documentOf(std::size_t level)
{
    return documents[level % documents.size()];
}

// What a reading alone shows.
struct Alone
{
    bool accepted;
    Events events;
    Messages messages;
};

std::vector<Alone> readAlone()
{
    std::vector<Alone> all;
    for (const std::string& document : documents)
    {
        EventRecorder visitor;
        const test::LogRecorder log;
        const bool accepted = visitTomlTree(document, visitor);
        all.push_back({accepted, visitor.events(), log.messages()});
    }
    return all;
}

// Reads the document of a level; its visitor reads that of the next level at the call with
// this number, or at the last one.
void readNested(const std::vector<Alone>& alone, std::size_t level, std::size_t end,
                std::size_t call, std::size_t& readings)
{
    const Alone& expected = alone[level % alone.size()];
    LastingTexts visitor;
    visitor.onEvent(
        [&](const std::string&)
        {
            if (level + 1 < end &&
                visitor.events().size() == std::min(call, expected.events.size()))
            {
                readNested(alone, level + 1, end, call, readings);
            }
        });
    EXPECT_EQ(visitTomlTree(documentOf(level), visitor), expected.accepted) << "level " << level;
    EXPECT_EQ(visitor.events(), expected.events) << "level " << level;
    ++readings;
}

} // namespace

TEST(ReentrantVisitor, readsAtAnyCallWhatAReadingAloneShows)
{
    const test::StderrCapture quiet;
    const std::vector<Alone> alone = readAlone();
    for (std::size_t first = 0; first < documents.size(); ++first)
    {
        for (std::size_t call = 1; call <= alone[first].events.size(); ++call)
        {
            SCOPED_TRACE("document " + std::to_string(first) + ", call " + std::to_string(call));
            std::size_t readings = 0;
            const test::LogRecorder log;
            readNested(alone, first, first + levels, call, readings);
            EXPECT_EQ(readings, levels);

            Messages expected;
            for (std::size_t level = first; level < first + levels; ++level)
            {
                const Messages& messages = alone[level % alone.size()].messages;
                expected.insert(expected.end(), messages.begin(), messages.end());
            }
            Messages logged = log.messages();
            std::sort(expected.begin(), expected.end());
            std::sort(logged.begin(), logged.end());
            EXPECT_EQ(logged, expected);
        }
    }
}

TEST(ReentrantVisitor, readsAtEveryCall)
{
    const test::StderrCapture quiet;
    const std::vector<Alone> alone = readAlone();
    for (std::size_t outer = 0; outer < documents.size(); ++outer)
    {
        const Alone& inner = alone[(outer + 1) % alone.size()];
        LastingTexts visitor;
        visitor.onEvent(
            [&](const std::string&)
            {
                EventRecorder nested;
                EXPECT_EQ(visitTomlTree(documentOf(outer + 1), nested), inner.accepted);
                EXPECT_EQ(nested.events(), inner.events);
            });
        EXPECT_EQ(visitTomlTree(documents[outer], visitor), alone[outer].accepted);
        EXPECT_EQ(visitor.events(), alone[outer].events);
    }
}

// An exception at the innermost reading's last call passes through all of them.
TEST(ReentrantVisitor, passesExceptionsThroughAllLevels)
{
    struct Stop
    {
    };
    const test::StderrCapture quiet;
    const std::vector<Alone> alone = readAlone();
    for (std::size_t first = 0; first < documents.size(); ++first)
    {
        std::size_t begun = 0;
        std::function<void()> readNext = [&]
        {
            const std::size_t level = first + begun++;
            const std::size_t lastCall = alone[level % alone.size()].events.size();
            EventRecorder visitor;
            visitor.onEvent(
                [&](const std::string&)
                {
                    if (visitor.events().size() == lastCall)
                    {
                        begun < levels ? readNext() : throw Stop();
                    }
                });
            visitTomlTree(documentOf(level), visitor);
        };
        EXPECT_THROW(readNext(), Stop);
        EXPECT_EQ(begun, levels);
        EXPECT_EQ(readAlone().at(first).events, alone[first].events);
    }
}
