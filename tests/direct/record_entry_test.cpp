// Events in 32 bits.
#include <gtest/gtest.h>

#include "direct/record_entry.h"

#include <cstddef>

using namespace vorn::parsers::toml;

namespace
{

constexpr RecordEntry edges[] = {startsPair,    startsTable, startsArrayTable, startsDottedKey,
                                 endsDottedKey, endsPair,    endsTable,        endsArrayTable};

constexpr auto eventCount = static_cast<unsigned>(Event::none);

} // namespace

TEST(RecordEntry, hasAnEventAndItsEdges)
{
    for (unsigned number = 0; number < eventCount; ++number)
    {
        const auto event = static_cast<Event>(number);
        for (RecordEntry chosen = 0; chosen < 256; ++chosen)
        {
            RecordEntry all = 0;
            for (unsigned index = 0; index < 8; ++index)
            {
                all |= (chosen >> index & 1) != 0 ? edges[index] : 0;
            }
            const RecordEntry entry = entryOf(event, all, 255, 254);
            ASSERT_EQ(eventOf(entry), event);
            ASSERT_EQ(hasText(entry), hasText(event));
            ASSERT_EQ(kindOf(entry), entryOf(event, all));
            ASSERT_EQ(entry & (anyStart | anyEnd), all);
            ASSERT_EQ(gapOf(entry), 255u);
            ASSERT_EQ(lengthOf(entry), 254u);
        }
    }
}

TEST(RecordEntry, hasEdgesThatStartOrEnd)
{
    EXPECT_EQ(anyStart & anyEnd, 0u);
    RecordEntry all = 0;
    for (const RecordEntry edge : edges)
    {
        EXPECT_EQ(all & edge, 0u) << "each is a bit of its own";
        all |= edge;
    }
    EXPECT_EQ(anyStart | anyEnd, all);
}

TEST(RecordEntry, hasAnyShortGapAndLength)
{
    for (std::size_t gap = 0; gap < 256; ++gap)
    {
        for (std::size_t length = 0; length < 256; ++length)
        {
            ASSERT_TRUE(fitEntry(gap, length));
            const RecordEntry entry = entryOf(Event::visitFloat, endsPair, gap, length);
            ASSERT_EQ(gapOf(entry), gap);
            ASSERT_EQ(lengthOf(entry), length);
            ASSERT_EQ(kindOf(entry), entryOf(Event::visitFloat, endsPair));
        }
    }
    EXPECT_EQ(maxShortText, 255u);
    for (const std::size_t large : {std::size_t{256}, std::size_t{65536}, ~std::size_t{0xFF}})
    {
        EXPECT_FALSE(fitEntry(large, 0));
        EXPECT_FALSE(fitEntry(0, large));
        EXPECT_FALSE(fitEntry(large, large));
    }
}

// The entry that stands before a long text is no event without a text.
TEST(RecordEntry, isZeroForNoEventThatComesAlone)
{
    for (unsigned number = 0; number < eventCount; ++number)
    {
        const auto event = static_cast<Event>(number);
        const bool waits = event <= Event::endDottedKey; // for the entry of a text
        EXPECT_TRUE(waits || entryOf(event) != 0) << number;
    }
}
