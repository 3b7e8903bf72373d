// Recorded entries as calls of the visitor.
#include <gtest/gtest.h>

#include "direct/repetition.h"

#include <cstddef>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "support/event_recorder.h"
#include "support/event_sink.h"

using namespace vorn::parsers::toml;
using test::Events;

namespace
{

// Bytes that tell where they come from.
std::string makeDocument(std::size_t size)
{
    std::string text;
    for (std::size_t index = 0; index < size; ++index)
    {
        text += static_cast<char>('!' + (index / 7 * 5 + index) % 89);
    }
    return text;
}

const std::string document = makeDocument(200000);

struct Repeated
{
    Events calls;
    std::size_t end; // of the last text
};

Repeated repeated(const std::vector<RecordEntry>& entries, std::size_t start = 0)
{
    test::EventRecorder visitor;
    std::vector<char> buffer(VisitorCalls::bytesFor(document.size()));
    const VisitorCalls calls(visitor, buffer.data(), document.data() + document.size());
    const char* const end =
        repeat(entries.data(), entries.data() + entries.size(), document.data() + start, calls);
    return {visitor.events(), static_cast<std::size_t>(end - document.data())};
}

std::vector<RecordEntry> longEntry(RecordEntry kind, std::size_t gap, std::size_t length)
{
    const LongText text = {gap, length};
    std::vector<RecordEntry> entries(longestEntry);
    std::memcpy(&entries[1], &text, sizeof(text));
    entries.back() = kind;
    return entries;
}

std::string nameOf(Event event)
{
    return test::eventNames.at(static_cast<std::size_t>(event));
}

using EdgeCall = std::pair<RecordEntry, const char*>;

// Of each group, at most one edge is that of an entry.
const std::vector<EdgeCall> outerStarts = {{0, nullptr},
                                           {startsPair, "beginKeyValue"},
                                           {startsTable, "beginTable"},
                                           {startsArrayTable, "beginArrayTable"}};
const std::vector<EdgeCall> innerStarts = {{0, nullptr}, {startsDottedKey, "beginDottedKey"}};
const std::vector<EdgeCall> innerEnds = {{0, nullptr}, {endsDottedKey, "endDottedKey"}};
const std::vector<EdgeCall> outerEnds = {{0, nullptr},
                                         {endsPair, "endKeyValue"},
                                         {endsTable, "endTable"},
                                         {endsArrayTable, "endArrayTable"}};

void append(Events& events, const char* name)
{
    if (name != nullptr)
    {
        events.emplace_back(name);
    }
}

} // namespace

TEST(Repetition, ofNothingMakesNoCall)
{
    const auto [calls, end] = repeated({}, 5);
    EXPECT_EQ(calls, Events());
    EXPECT_EQ(end, 5u);
}

TEST(Repetition, callsWhatStartsBeforeATextAndWhatEndsAfterIt)
{
    for (std::size_t number = test::firstEventWithText; number < test::eventCount; ++number)
    {
        const auto event = static_cast<Event>(number);
        const std::string text = nameOf(event) + ' ' + document.substr(12, 3);
        for (const auto& [outerStart, outerStartName] : outerStarts)
        {
            for (const auto& [innerStart, innerStartName] : innerStarts)
            {
                for (const auto& [innerEnd, innerEndName] : innerEnds)
                {
                    for (const auto& [outerEnd, outerEndName] : outerEnds)
                    {
                        const RecordEntry edges = outerStart | innerStart | innerEnd | outerEnd;
                        Events expected;
                        append(expected, outerStartName);
                        append(expected, innerStartName);
                        expected.push_back(text);
                        append(expected, innerEndName);
                        append(expected, outerEndName);
                        EXPECT_EQ(repeated({entryOf(event, edges, 2, 3)}, 10).calls, expected);
                        EXPECT_EQ(repeated(longEntry(entryOf(event, edges), 2, 3), 10).calls,
                                  expected);
                    }
                }
            }
        }
    }
}

TEST(Repetition, callsWhatEndsAfterABracket)
{
    for (const Event event :
         {Event::beginArray, Event::endArray, Event::beginInlineTable, Event::endInlineTable})
    {
        for (const auto& [edge, name] : outerEnds)
        {
            Events expected = {nameOf(event)};
            append(expected, name);
            const auto [calls, end] = repeated({entryOf(event, edge)}, 7);
            EXPECT_EQ(calls, expected);
            EXPECT_EQ(end, 7u);
        }
    }
}

TEST(Repetition, findsTheTextsOneAfterTheOther)
{
    std::vector<RecordEntry> entries;
    Events expected;
    std::size_t at = 1;
    for (std::size_t length = 0; length < 256; length += 5)
    {
        const std::size_t gap = 255 - length;
        entries.push_back(entryOf(Event::visitInteger, 0, gap, length));
        entries.push_back(entryOf(Event::endArray));
        expected.push_back("visitInteger " + document.substr(at + gap, length));
        expected.emplace_back("endArray");
        at += gap + length;
    }
    const auto [calls, end] = repeated(entries, 1);
    EXPECT_EQ(calls, expected);
    EXPECT_EQ(end, at);
}

TEST(Repetition, findsTextsThatAreLongOrFarAway)
{
    for (const std::size_t gap : {0u, 255u, 256u, 65535u, 65536u, 90000u})
    {
        for (const std::size_t length : {0u, 255u, 256u, 65535u, 65536u, 90000u})
        {
            SCOPED_TRACE(gap);
            std::vector<RecordEntry> entries =
                longEntry(entryOf(Event::visitLiteralString, endsPair), gap, length);
            entries.push_back(entryOf(Event::visitBareKey, startsPair, 3, 2));
            const auto [calls, end] = repeated(entries, 1);
            EXPECT_EQ(calls, Events({"visitLiteralString " + document.substr(1 + gap, length),
                                     "endKeyValue", "beginKeyValue",
                                     "visitBareKey " + document.substr(1 + gap + length + 3, 2)}));
            EXPECT_EQ(end, 1 + gap + length + 5);
        }
    }
}
