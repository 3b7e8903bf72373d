// The entries that are written for events.
#include <gtest/gtest.h>

#include "direct/event_writer.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

using namespace vorn::parsers::toml;

namespace
{

constexpr std::size_t documentSize = 1000;
const std::string document(documentSize, 'x');

std::string_view textAt(std::size_t place, std::size_t length)
{
    return {document.data() + place, length};
}

constexpr RecordEntry unwritten = 0xDEADBEEF;

// All entries that are written for some events.
std::vector<RecordEntry> written(const std::function<void(EventWriter&)>& write)
{
    std::vector<RecordEntry> entries(EventRecord::entriesFor(documentSize), unwritten);
    EventRecord record(entries.data(), entries.size(), document.data());
    EventWriter writer(record);
    write(writer);
    while (!entries.empty() && entries.back() == unwritten)
    {
        entries.pop_back();
    }
    return entries;
}

using Entries = std::vector<RecordEntry>;

Entries withNumbers(std::size_t gap, std::size_t length, RecordEntry entry)
{
    const LongText text = {gap, length};
    Entries entries(longestEntry);
    std::memcpy(&entries[1], &text, sizeof(text));
    entries.back() = entry;
    return entries;
}

Entries concatenated(const Entries& first, const Entries& second)
{
    Entries both = first;
    both.insert(both.end(), second.begin(), second.end());
    return both;
}

} // namespace

TEST(EventWriter, writesAnEntryForEachText)
{
    EXPECT_EQ(written(
                  [](EventWriter& writer)
                  {
                      writer.keyOfPair(Event::visitQuotedKey, textAt(2, 3));
                      writer.event(Event::beginArray);
                      writer.text(Event::visitInteger, textAt(7, 1));
                      writer.event(Event::endArray);
                      writer.event(Event::endKeyValue);
                      writer.keyOfPair(Event::visitBareKey, textAt(10, 4));
                      writer.valueOfPair(Event::visitFloat, textAt(14, 0));
                  }),
              Entries({entryOf(Event::visitQuotedKey, startsPair, 2, 3), entryOf(Event::beginArray),
                       entryOf(Event::visitInteger, 0, 2, 1), entryOf(Event::endArray, endsPair),
                       entryOf(Event::visitBareKey, startsPair, 2, 4),
                       entryOf(Event::visitFloat, endsPair, 0, 0)}));
}

TEST(EventWriter, joinsStartsWithTheFirstPartOfAKeyAndEndsWithTheLast)
{
    struct Edges
    {
        Event begin;
        Event end;
        RecordEntry start;
        RecordEntry stop;
    };
    for (const auto& [begin, end, start, stop] :
         {Edges{Event::beginKeyValue, Event::endKeyValue, startsPair, endsPair},
          Edges{Event::beginTable, Event::endTable, startsTable, endsTable},
          Edges{Event::beginArrayTable, Event::endArrayTable, startsArrayTable, endsArrayTable}})
    {
        EXPECT_EQ(written(
                      [&, begin = begin, end = end](EventWriter& writer)
                      {
                          writer.event(begin);
                          writer.event(Event::beginDottedKey);
                          writer.keyPart(Event::visitBareKey, textAt(1, 1));
                          writer.keyPart(Event::visitQuotedKey, textAt(3, 1));
                          writer.keyPart(Event::visitBareKey, textAt(5, 1));
                          writer.event(Event::endDottedKey);
                          writer.event(end);
                      }),
                  Entries({entryOf(Event::visitBareKey, start | startsDottedKey, 1, 1),
                           entryOf(Event::visitQuotedKey, 0, 1, 1),
                           entryOf(Event::visitBareKey, endsDottedKey | stop, 1, 1)}));
        EXPECT_EQ(written(
                      [&, begin = begin, end = end](EventWriter& writer)
                      {
                          writer.event(begin);
                          writer.keyPart(Event::visitQuotedKey, textAt(0, 4));
                          writer.event(end);
                      }),
                  Entries({entryOf(Event::visitQuotedKey, start | stop, 0, 4)}));
    }
}

// Whatever the lengths, a pair is its key and its value.
TEST(EventWriter, writesAPairAsItsKeyAndItsValue)
{
    for (const std::size_t keyGap : {0u, 255u, 256u})
    {
        for (const std::size_t keyLength : {1u, 255u, 256u})
        {
            for (const std::size_t gap : {1u, 255u, 256u})
            {
                for (const std::size_t length : {1u, 223u, 232u})
                {
                    const std::string_view key = textAt(keyGap, keyLength);
                    const std::string_view value = textAt(keyGap + keyLength + gap, length);
                    EXPECT_EQ(written([&](EventWriter& writer)
                                      { writer.pair(key, Event::visitBoolean, value); }),
                              written(
                                  [&](EventWriter& writer)
                                  {
                                      writer.keyOfPair(Event::visitBareKey, key);
                                      writer.valueOfPair(Event::visitBoolean, value);
                                  }))
                        << keyGap << ' ' << keyLength << ' ' << gap << ' ' << length;
                }
            }
        }
    }
    EXPECT_EQ(written([](EventWriter& writer)
                      { writer.pair(textAt(1, 2), Event::visitBoolean, textAt(5, 300)); }),
              concatenated({entryOf(Event::visitBareKey, startsPair, 1, 2)},
                           withNumbers(2, 300, entryOf(Event::visitBoolean, endsPair))));
}

TEST(EventWriter, writesLargeNumbersApart)
{
    const auto entriesOf = [](std::size_t gap, std::size_t length)
    {
        return written([&](EventWriter& writer)
                       { writer.text(Event::visitBasicString, textAt(gap, length)); });
    };
    EXPECT_EQ(entriesOf(255, 255), Entries({entryOf(Event::visitBasicString, 0, 255, 255)}));
    EXPECT_EQ(entriesOf(256, 0), withNumbers(256, 0, entryOf(Event::visitBasicString)));
    EXPECT_EQ(entriesOf(0, 256), withNumbers(0, 256, entryOf(Event::visitBasicString)));
    EXPECT_EQ(entriesOf(300, 600), withNumbers(300, 600, entryOf(Event::visitBasicString)));
    // The text after it is measured from its end.
    EXPECT_EQ(written(
                  [](EventWriter& writer)
                  {
                      writer.text(Event::visitInteger, textAt(300, 400));
                      writer.text(Event::visitFloat, textAt(701, 2));
                  }),
              concatenated(withNumbers(300, 400, entryOf(Event::visitInteger)),
                           {entryOf(Event::visitFloat, 0, 1, 2)}));
}

TEST(EventWriter, tellsTheRecordWhereLinesEnd)
{
    std::array<RecordEntry, EventRecord::entriesFor(documentSize)> entries = {};
    EventRecord record(entries.data(), entries.size(), document.data());
    EventWriter writer(record);
    writer.pair(textAt(0, 1), Event::visitInteger, textAt(2, 1));
    EXPECT_EQ(record.position(), document.data());
    writer.lineEnd(document.data() + 4);
    EXPECT_EQ(record.position(), document.data() + 4);

    // Another one goes on from there.
    EventWriter next(record);
    next.text(Event::visitInteger, textAt(6, 1));
    EXPECT_EQ(entries[2], entryOf(Event::visitInteger, 0, 2, 1));
}
