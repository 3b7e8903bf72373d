// The record of a document's first events.
#include <gtest/gtest.h>

#include "direct/event_record.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "support/event_sink.h"

using vorn::parsers::toml::Event;
using vorn::parsers::toml::EventRecord;

namespace
{

// A record with bytes of its own.
class Record : std::vector<EventRecord::Byte>, public EventRecord
{
public:
    explicit Record(const std::string& document)
        : vector(bytesFor(document.size())),
          EventRecord(vector::data(), vector::size(), document.data())
    {
    }
};

// Hands the same events to a record and to a list of what is expected of it.
class Recording
{
public:
    explicit Recording(const std::string& document) : record(document), next_(document.data()) {}

    void event(Event event)
    {
        record.event(event);
        expected.event(event);
    }
    void text(Event event, std::size_t gap, std::size_t length)
    {
        const std::string_view text = next(gap, length);
        record.text(event, text);
        expected.text(event, text);
    }
    void keyOfPair(Event event, std::size_t gap, std::size_t length)
    {
        const std::string_view text = next(gap, length);
        record.keyOfPair(event, text);
        expected.keyOfPair(event, text);
    }
    void valueOfPair(Event event, std::size_t gap, std::size_t length)
    {
        const std::string_view text = next(gap, length);
        record.valueOfPair(event, text);
        expected.valueOfPair(event, text);
    }
    void lineEnd() { record.lineEnd(next_); }

    const char* position() const { return next_; }

    Record record;
    test::EventSink expected;

private:
    std::string_view next(std::size_t gap, std::size_t length)
    {
        const std::string_view text(next_ + gap, length);
        next_ = text.data() + length;
        return text;
    }

    const char* next_;
};

void expectRepeated(const EventRecord& record, const test::EventSink& expected)
{
    test::EventSink repeated;
    record.repeat(repeated);
    ASSERT_EQ(repeated.events.size(), expected.events.size());
    EXPECT_EQ(repeated.events, expected.events);
    ASSERT_EQ(repeated.texts.size(), expected.texts.size());
    for (std::size_t index = 0; index < expected.texts.size(); ++index)
    {
        EXPECT_EQ(repeated.texts[index].data(), expected.texts[index].data()) << index;
    }
}

} // namespace

TEST(EventRecord, ofNothingIsEmpty)
{
    for (const std::string& document : {std::string(), std::string("a = 1\n")})
    {
        const Record record(document);
        expectRepeated(record, {});
        EXPECT_EQ(record.position(), document.data());
        EXPECT_EQ(record.longestText(), 0u);
    }
}

TEST(EventRecord, repeatsEveryEvent)
{
    const std::string document(20000, 'x');
    Recording recording(document);
    for (std::size_t number = 0; number < test::firstEventWithText; ++number)
    {
        recording.event(static_cast<Event>(number));
    }
    for (std::size_t number = test::firstEventWithText; number < test::eventCount; ++number)
    {
        recording.text(static_cast<Event>(number), 1, number);
        recording.keyOfPair(static_cast<Event>(number), 0, 300 + number);
        recording.valueOfPair(static_cast<Event>(number), 300, number);
    }
    recording.lineEnd();
    expectRepeated(recording.record, recording.expected);
    EXPECT_EQ(recording.record.position(), recording.position());
    EXPECT_EQ(recording.record.longestText(), 300 + test::eventCount - 1);
}

TEST(EventRecord, repeatsTextsOfAnyLengthBehindAnyGap)
{
    const std::size_t gaps[] = {0, 1, 15, 16, 253, 254, 255, 256, 257, 65535, 65536, 100000};
    const std::size_t lengths[] = {0,   1,    31,   32,    254,   255,  256,
                                   257, 2047, 2048, 65535, 65536, 99999};
    const std::string document(20 * 1000 * 1000, 'x');
    Recording recording(document);
    std::size_t line = 0;
    for (const std::size_t gap : gaps)
    {
        for (const std::size_t length : lengths)
        {
            recording.event(Event::beginKeyValue);
            recording.text(line % 2 == 0 ? Event::visitBareKey : Event::visitLocalTime, gap,
                           length);
            recording.text(Event::visitInteger, 1, 1);
            recording.lineEnd();
            ++line;
        }
    }
    expectRepeated(recording.record, recording.expected);
    EXPECT_EQ(recording.record.position(), recording.position());
    EXPECT_EQ(recording.record.longestText(), 99999u);
}

TEST(EventRecord, leavesOutALineThatHasNotEnded)
{
    const std::string document(100, 'x');
    Recording recording(document);
    recording.text(Event::visitBareKey, 0, 3);
    recording.lineEnd();
    const char* const position = recording.position();
    recording.record.event(Event::beginKeyValue);
    recording.record.text(Event::visitBareKey, {position + 1, 50});
    expectRepeated(recording.record, recording.expected);
    EXPECT_EQ(recording.record.position(), position);
    EXPECT_EQ(recording.record.longestText(), 50u);
}

// Whatever there is room for, it is whole lines from the start on, and no line after
// one that did not fit, however short it is.
TEST(EventRecord, isCutOffAtTheEndOfALine)
{
    for (std::size_t size = 0; size < 60; ++size)
    {
        SCOPED_TRACE(size);
        const std::string document(size, 'x');
        Record record(document);
        // More events than a document of this size can have.
        test::EventSink whole;
        std::set<std::size_t> lineEnds = {0};
        for (std::size_t line = 0; line < 40; ++line)
        {
            for (std::size_t count = 0; count < line % 7 + 1; ++count)
            {
                record.event(static_cast<Event>(line % 12));
                whole.event(static_cast<Event>(line % 12));
            }
            record.lineEnd(document.data() + std::min(line, size));
            lineEnds.insert(whole.events.size());
        }
        test::EventSink repeated;
        record.repeat(repeated);
        const std::size_t count = repeated.events.size();
        ASSERT_LT(count, whole.events.size());
        EXPECT_EQ(lineEnds.count(count), 1u) << count;
        EXPECT_EQ(repeated.events,
                  test::Events(whole.events.begin(),
                               whole.events.begin() + static_cast<std::ptrdiff_t>(count)));
    }
}

TEST(EventRecord, isBounded)
{
    constexpr std::size_t lines = 200000;
    constexpr std::size_t limit = 256 * 1024;
    const std::string document(lines * 6, 'x');
    Record record(document);
    const char* at = document.data();
    for (std::size_t line = 0; line < lines; ++line, at += 6)
    {
        record.event(Event::beginKeyValue);
        record.text(Event::visitBareKey, {at, 1});
        record.text(Event::visitInteger, {at + 4, 1});
        record.event(Event::endKeyValue);
        record.lineEnd(at + 6);
    }
    test::EventSink repeated;
    record.repeat(repeated);
    const std::size_t count = repeated.events.size();
    EXPECT_LE(count, limit);
    EXPECT_GE(count, limit - 16);
    EXPECT_EQ(count % 4, 0u);
    EXPECT_EQ(record.position(), document.data() + count / 4 * 6);
    EXPECT_EQ(repeated.texts.back().data(), record.position() - 2);

    // A text after the record counts all the same.
    EXPECT_EQ(record.longestText(), 1u);
    record.text(Event::visitBareKey, {document.data(), 5000});
    EXPECT_EQ(record.longestText(), 5000u);
}
