// The record of a document's first events.
#include <gtest/gtest.h>

#include "direct/event_record.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "direct/event_writer.h"
#include "support/event_recorder.h"
#include "support/event_sink.h"
#include "support/reserved_memory.h"

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

const std::string document = makeDocument(3000 * 1000);

// A record as for a document of some size, and lines for it, however many.
class Recording
{
public:
    explicit Recording(std::size_t size)
        : entries_(EventRecord::entriesFor(size)),
          record_(entries_.data(), entries_.size(), document.data())
    {
    }

    // All lines, of integers: their lengths, each text a byte after the one before.
    using Line = std::vector<std::size_t>;
    void writeAll(const std::vector<Line>& lines)
    {
        ends_ = {document.data()};
        calls_ = {0};
        test::EventSink sink;
        EventWriter writer(record_);
        const char* at = document.data();
        for (const Line& line : lines)
        {
            write(writer, at, line);
            at = write(sink, at, line);
            calls_.push_back(sink.events.size());
            ends_.push_back(at);
        }
        lines_ = lines;
        whole_ = sink.events;
    }

    // How many lines are kept.
    std::size_t kept() const
    {
        const auto end = std::find(ends_.begin(), ends_.end(), record_.position());
        EXPECT_NE(end, ends_.end()) << "it ends within a line";
        return static_cast<std::size_t>(end - ends_.begin());
    }

    // Where the last line ends, whether it is kept or not.
    const char* end() const { return ends_.back(); }

    // What the visitor gets when the rest is read again.
    void expectHandedOver()
    {
        test::EventRecorder visitor;
        std::vector<char> buffer(VisitorCalls::bytesFor(record_.longestText()));
        VisitorCalls calls(visitor, buffer.data(), document.data() + document.size());
        const std::size_t kept = this->kept();
        record_.handTo(calls);
        ASSERT_EQ(visitor.events().size(), calls_[kept]);
        EXPECT_TRUE(std::equal(visitor.events().begin(), visitor.events().end(), whole_.begin()));
        EventWriter writer(record_);
        for (std::size_t line = kept; line < lines_.size(); ++line)
        {
            write(writer, ends_[line], lines_[line]);
        }
        record_.finish();
        EXPECT_EQ(record_.position(), ends_.back());
        ASSERT_EQ(visitor.events().size(), whole_.size());
        EXPECT_TRUE(visitor.events() == whole_);
    }

    const EventRecord& record() const { return record_; }

private:
    template <typename Sink>
    static const char* write(Sink& sink, const char* at, const Line& line)
    {
        sink.keyOfPair(Event::visitBareKey, {at, 1});
        ++at;
        sink.event(Event::beginArray);
        for (const std::size_t length : line)
        {
            sink.text(Event::visitInteger, {at + 1, length});
            at += 1 + length;
        }
        sink.event(Event::endArray);
        sink.event(Event::endKeyValue);
        at += 3; // bytes that are in no text
        sink.lineEnd(at);
        return at;
    }

    std::vector<RecordEntry> entries_;
    EventRecord record_;
    std::vector<Line> lines_;
    std::vector<const char*> ends_;
    std::vector<std::size_t> calls_; // until each line's end
    Events whole_;
};

using Line = Recording::Line;

} // namespace

TEST(EventRecord, hasEntriesForHalfTheBytesOfADocument)
{
    constexpr std::size_t spare = EventRecord::entriesFor(0);
    EXPECT_EQ(spare, 2 * longestEntry);
    EXPECT_EQ(EventRecord::entriesFor(1), spare);
    EXPECT_EQ(EventRecord::entriesFor(2), spare + 1);
    EXPECT_EQ(EventRecord::entriesFor(1000), spare + 500);
    EXPECT_EQ(EventRecord::entriesFor(256 * 1024 - 1), spare + 128 * 1024 - 1);
    for (const std::size_t large : {std::size_t{256} * 1024, ~std::size_t{0}})
    {
        EXPECT_EQ(EventRecord::entriesFor(large), spare + 128 * 1024);
    }
}

TEST(EventRecord, ofNothingIsEmpty)
{
    Recording recording(10);
    recording.writeAll({});
    EXPECT_EQ(recording.record().position(), document.data());
    EXPECT_GE(recording.record().longestText(), maxShortText);
    recording.expectHandedOver();
}

TEST(EventRecord, keepsLinesThatItHasRoomFor)
{
    Recording recording(100);
    const std::vector<Line> lines = {{1, 2}, {}, {3}, {0, 200, 4}, {}};
    recording.writeAll(lines);
    EXPECT_EQ(recording.kept(), lines.size());
    recording.expectHandedOver();
}

TEST(EventRecord, leavesOutALineThatHasNotEnded)
{
    std::vector<RecordEntry> entries(EventRecord::entriesFor(100));
    EventRecord record(entries.data(), entries.size(), document.data());
    EventWriter writer(record);
    writer.pair({document.data(), 3}, Event::visitInteger, {document.data() + 4, 2});
    writer.lineEnd(document.data() + 7);
    writer.keyOfPair(Event::visitBareKey, {document.data() + 8, 4});
    EXPECT_EQ(record.position(), document.data() + 7);
    test::EventRecorder visitor;
    std::vector<char> buffer(VisitorCalls::bytesFor(record.longestText()));
    VisitorCalls calls(visitor, buffer.data(), document.data() + document.size());
    record.handTo(calls);
    EXPECT_EQ(visitor.events(), Events({"beginKeyValue", "visitBareKey " + document.substr(0, 3),
                                        "visitInteger " + document.substr(4, 2), "endKeyValue"}));
}

// Whatever there is room for, it is whole lines from the start on, and no line after one that did
// not fit, however short it is; and what is lost comes when it is read again.
TEST(EventRecord, isCutOffAtTheEndOfALine)
{
    for (std::size_t size = 0; size < 60; ++size)
    {
        for (std::size_t first = 0; first < 12; ++first)
        {
            SCOPED_TRACE(testing::Message() << size << " bytes, " << first);
            std::vector<Line> lines = {Line(first, 1)};
            for (std::size_t line = 0; line < 10; ++line)
            {
                // Some have long texts, which take more entries.
                lines.push_back(Line(line * 5 % 4, line % 3 == 2 ? 300 : 5));
            }
            lines.push_back(Line(100, 1)); // more than all entries
            lines.push_back({});
            Recording recording(size);
            recording.writeAll(lines);
            EXPECT_LT(recording.kept(), lines.size() - 1);
            recording.expectHandedOver();
        }
    }
}

TEST(EventRecord, keepsALineThatTakesAllOfItsRoom)
{
    // A key, two brackets, and at most an entry that starts where there is just none left.
    const std::size_t room = EventRecord::entriesFor(100) - EventRecord::entriesFor(0);
    Recording exact(100);
    exact.writeAll({Line(room - 2, 1)});
    EXPECT_EQ(exact.kept(), 1u);
    exact.expectHandedOver();

    Recording larger(100);
    larger.writeAll({Line(room - 1, 1)});
    EXPECT_EQ(larger.kept(), 0u);
    larger.expectHandedOver();
}

TEST(EventRecord, handsOverALineThatIsLargerThanItself)
{
    for (const std::size_t count : {31u, 32u, 33u, 1000u, 10000u})
    {
        SCOPED_TRACE(count);
        Recording recording(20);
        recording.writeAll({{1}, Line(count, 7), Line(count, 0), {2}});
        EXPECT_EQ(recording.kept(), 1u);
        recording.expectHandedOver();
    }
}

TEST(EventRecord, knowsTheLongestTextWhetherItWasKeptOrNot)
{
    for (const std::size_t length : {256u, 65535u, 65536u, 300000u})
    {
        Recording recording(1000);
        recording.writeAll({{1}, {length, 2}});
        EXPECT_EQ(recording.kept(), 2u);
        EXPECT_EQ(recording.record().longestText(), length);
        recording.expectHandedOver();

        Recording full(4);
        full.writeAll({Line(20, 1), {1}, {2, length, length - 1}, {5}});
        EXPECT_EQ(full.kept(), 0u);
        EXPECT_EQ(full.record().longestText(), length);
        full.expectHandedOver();
    }
}

TEST(EventRecord, knowsWhereTheLastLineEndsWhetherItWasKeptOrNot)
{
    for (const std::vector<Line>& lines : std::vector<std::vector<Line>>{
             {}, {{1}}, {{1}, {2}}, {Line(20, 1)}, {{1}, Line(20, 1)}, {Line(20, 1), {1}, {2}}})
    {
        Recording recording(8);
        recording.writeAll(lines);
        EXPECT_EQ(recording.record().linesEnd(), recording.end());
        // What is handed over ends with the kept ones, until the others come again.
        const std::size_t kept = recording.kept();
        recording.expectHandedOver();
        EXPECT_EQ(recording.record().linesEnd(), recording.end()) << kept << " were kept";
    }
}

// A line that does not end is none, be it the first that the record has no room for or a later one.
TEST(EventRecord, doesNotKnowTheEndOfALineThatHasNone)
{
    std::vector<RecordEntry> entries(EventRecord::entriesFor(4));
    EventRecord record(entries.data(), entries.size(), document.data());
    EventWriter writer(record);
    const char* at = document.data();
    const auto writeLine = [&](std::size_t count)
    {
        writer.keyOfPair(Event::visitBareKey, {at, 1});
        for (; count > 0; --count)
        {
            at += 2;
            writer.text(Event::visitInteger, {at, 1});
        }
        at += 2;
    };
    writeLine(1);
    EXPECT_EQ(record.linesEnd(), document.data());
    writer.lineEnd(at);
    const char* const first = at;
    EXPECT_EQ(record.linesEnd(), first);
    writeLine(20);
    EXPECT_EQ(record.linesEnd(), first);
    writer.lineEnd(at);
    const char* const second = at;
    EXPECT_EQ(record.linesEnd(), second);
    EXPECT_EQ(record.position(), first);
    writeLine(1);
    EXPECT_EQ(record.linesEnd(), second);
}

TEST(EventRecord, isBounded)
{
    constexpr std::size_t lines = 60000;
    Recording recording(lines * 100);
    recording.writeAll(std::vector<Line>(lines, Line{1}));
    // Each line takes four entries.
    EXPECT_EQ(recording.kept(), std::size_t{128} * 1024 / 4);
    recording.expectHandedOver();
}

// Nothing is read of what is between the texts, so that none of it needs memory.
TEST(EventRecord, handsOverTextsThatAreFarFromEachOther)
{
    if (sizeof(std::size_t) < sizeof(std::uint64_t))
    {
        GTEST_SKIP() << "no document is as large";
    }
    const std::size_t size = std::size_t{5} << (sizeof(std::size_t) * 4 - 2);
    const test::ReservedMemory memory(size);
    std::memcpy(memory.begin(), "a", 1);
    std::memcpy(memory.begin() + size - 100, "12", 2);
    const std::string_view first(memory.begin(), 1);
    const std::string_view second(memory.begin() + size - 100, 2);
    std::vector<RecordEntry> entries(EventRecord::entriesFor(100));
    EventRecord record(entries.data(), entries.size(), memory.begin());
    EventWriter writer(record);
    writer.keyOfPair(Event::visitBareKey, first);
    writer.valueOfPair(Event::visitInteger, second);
    writer.lineEnd(memory.begin() + size - 90);

    test::EventRecorder visitor;
    std::vector<char> buffer(VisitorCalls::bytesFor(record.longestText()));
    VisitorCalls calls(visitor, buffer.data(), memory.begin() + size);
    record.handTo(calls);
    EXPECT_EQ(visitor.events(),
              Events({"beginKeyValue", "visitBareKey a", "visitInteger 12", "endKeyValue"}));

    const std::string_view all(memory.begin(), size);
    EventWriter(record).text(Event::visitBasicString, all);
    EXPECT_EQ(record.longestText(), size);
}
