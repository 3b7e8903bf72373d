// Documents that have more events than the direct reader records, and visitors that do
// something else while they are called.
#include <gtest/gtest.h>

#include "direct/direct_reader.h"

#include <string>
#include <vector>

#include "support/event_lists.h"
#include "support/event_recorder.h"

using namespace test;
using vorn::parsers::toml::DirectReading;
using vorn::parsers::toml::readDirectly;

namespace
{

// More lines, or elements, than the record has room for.
constexpr int manyLines = 70000;
constexpr int manyElements = 270000;

struct Document
{
    std::string text;
    Events events;

    void add(const std::string& line, const Events& lineEvents)
    {
        text += line;
        events.insert(events.end(), lineEvents.begin(), lineEvents.end());
    }
};

const std::string mixedLines = "[t.'u']\n[[v]] # c\n\na = [1, {b = \"x\"}]\n'c'.d = inf\n";

const Events mixedEvents = concatenated(
    {table(dotted({bare("t"), quoted("'u'")})), arrayTable(bare("v")),
     pair(bare("a"), array({integer("1"),
                            inlineTable({pair(bare("b"), scalar("visitBasicString", "\"x\""))})})),
     pair(dotted({quoted("'c'"), bare("d")}), scalar("visitFloat", "inf"))});

void addShortLines(Document& document, int count)
{
    for (int line = 0; line < count; ++line)
    {
        const std::string number = std::to_string(line);
        document.add('k' + number + " = " + number + '\n',
                     pair(bare('k' + number), integer(number)));
    }
}

// An array in one line, of which the record has no room for all events.
void addLongLine(Document& document)
{
    document.add("l = [\n", {"beginKeyValue", "visitBareKey l", "beginArray"});
    for (int element = 0; element < manyElements; ++element)
    {
        const std::string number = std::to_string(element);
        document.add((element == 0 ? "" : ",") + number, integer(number));
    }
    document.add("\n]\n", {"endArray", "endKeyValue"});
}

void expectRead(const Document& expected)
{
    EventRecorder visitor;
    EXPECT_EQ(readDirectly(expected.text, visitor), DirectReading::accepted);
    const Events events = document({expected.events});
    ASSERT_EQ(visitor.events().size(), events.size());
    for (std::size_t index = 0; index < events.size(); ++index)
    {
        ASSERT_EQ(visitor.events()[index], events[index]) << "call " << index;
    }
}

struct Stop
{
    std::size_t count;
};

// A visitor that throws at its `count`th call.
void expectStoppedAt(std::size_t count, const std::string& text, const Events& whole)
{
    SCOPED_TRACE(count);
    EventRecorder visitor;
    visitor.onEvent(
        [&visitor, count](const std::string&)
        {
            if (visitor.events().size() == count)
            {
                throw Stop{count};
            }
        });
    try
    {
        readDirectly(text, visitor);
        ADD_FAILURE() << "the exception did not arrive";
    }
    catch (const Stop& stop)
    {
        EXPECT_EQ(stop.count, count);
    }
    ASSERT_EQ(visitor.events().size(), count);
    EXPECT_TRUE(std::equal(visitor.events().begin(), visitor.events().end(), whole.begin()));
}

} // namespace

TEST(LargeDocuments, giveTheCallsOfTheirLines)
{
    Document shortLines;
    addShortLines(shortLines, manyLines);
    expectRead(shortLines);

    Document mixed;
    for (int round = 0; round < manyLines / 4; ++round)
    {
        mixed.add(mixedLines, mixedEvents);
    }
    expectRead(mixed);
}

TEST(LargeDocuments, mayHoldALineThatTheRecordCannot)
{
    Document alone;
    addLongLine(alone);
    expectRead(alone);

    Document amongOthers;
    addShortLines(amongOthers, 10);
    addLongLine(amongOthers);
    addShortLines(amongOthers, 10);
    addLongLine(amongOthers);
    addShortLines(amongOthers, manyLines);
    expectRead(amongOthers);
}

// Whatever is left of the record's room, the line after it is read from its start.
TEST(LargeDocuments, giveTheSameCallsWhereverTheRecordEnds)
{
    for (int elements = 0; elements < 9; elements += VORN_TEST_STEP)
    {
        SCOPED_TRACE(elements);
        Document document;
        document.add("x = [0", {"beginKeyValue", "visitBareKey x", "beginArray", "visitInteger 0"});
        for (int element = 0; element < elements; ++element)
        {
            document.add(",1", integer("1"));
        }
        document.add("]\n", {"endArray", "endKeyValue"});
        addShortLines(document, manyLines);
        const std::string text = '"' + std::string(200, 'x') + '"';
        document.add("x = " + text + "\n", pair(bare("x"), scalar("visitBasicString", text)));
        expectRead(document);
    }
}

TEST(LargeDocuments, mayHaveTheirLongestTextBehindTheRecord)
{
    Document document;
    addShortLines(document, manyLines);
    for (const std::size_t length : {100u, 5000u, 300000u, 10u})
    {
        const std::string text = '"' + std::string(length, 'y') + '"';
        document.add("x = " + text + "\n", pair(bare("x"), scalar("visitBasicString", text)));
    }
    expectRead(document);
}

TEST(DirectReaderVisitor, mayThrowAtEveryCall)
{
    const Events whole = document({mixedEvents});
    for (std::size_t count = 1; count <= whole.size(); ++count)
    {
        expectStoppedAt(count, mixedLines, whole);
    }
}

TEST(DirectReaderVisitor, mayThrowFarFromTheBeginning)
{
    Document document;
    addShortLines(document, manyLines);
    const Events whole = test::document({document.events});
    // Two of four calls make an entry.
    constexpr std::size_t record = std::size_t{128} * 1024 / 2 * 4;
    ASSERT_GT(whole.size(), record + 1000);
    for (const std::size_t count : {std::size_t{1000}, record - 10, record - 1, record, record + 1,
                                    record + 10, whole.size() - 1, whole.size()})
    {
        expectStoppedAt(count, document.text, whole);
    }
}

TEST(DirectReaderVisitor, mayReadOtherDocumentsInEveryCall)
{
    const std::string inner = "i = [1, '" + std::string(300, 'z') + "']\n";
    EventRecorder alone;
    ASSERT_EQ(readDirectly(inner, alone), DirectReading::accepted);
    EventRecorder visitor;
    std::size_t readings = 0;
    visitor.onEvent(
        [&](const std::string&)
        {
            EventRecorder other;
            EXPECT_EQ(readDirectly(inner, other), DirectReading::accepted);
            EXPECT_EQ(other.events(), alone.events());
            EXPECT_EQ(readDirectly("a = [1\n", other), DirectReading::refused);
            ++readings;
        });
    EXPECT_EQ(readDirectly(mixedLines, visitor), DirectReading::accepted);
    EXPECT_EQ(visitor.events(), document({mixedEvents}));
    EXPECT_EQ(readings, visitor.events().size());
}
