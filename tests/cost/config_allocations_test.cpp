// How often readConfig() asks for memory.
#include <gtest/gtest.h>

#include <vorn/parsers/toml_config.h>

#include <cstddef>
#include <string>

#include "bench/services.h"
#include "support/allocation_counter.h"

namespace
{

// Beside the values: the record and the scratch text of the direct reader, the list of sources and
// what counts their lines, and a few vectors of what is open, whose room doubles up to the depth
// of the schema.  None of these knows how large the document is.
constexpr long mostBesideValues = 16;

long allocationsByHand(std::size_t count)
{
    const test::AllocationCounter counter;
    const bench::Services filled = bench::servicesByHand(count);
    EXPECT_EQ(filled.services.size(), count);
    return counter.allocations();
}

// What readConfig() asks for beyond what the values take when they are filled by hand.
long besideValues(std::size_t count)
{
    const std::string text = bench::servicesDocument(count);
    bench::Services read;
    const test::AllocationCounter counter;
    const bool isRead = readConfig(text, bench::servicesSchema(), read).empty();
    const long allocations = counter.allocations();
    EXPECT_TRUE(isRead);
    EXPECT_EQ(read.services.size(), count);
    return allocations - allocationsByHand(count);
}

} // namespace

TEST(ConfigAllocations, areThoseOfTheValuesAndAFewThatDoNotGrow)
{
    bench::servicesSchema(); // which is made once
    // Lists double their room, by hand as in the reading, and what they take cancels out.
    const long few = besideValues(534);
    EXPECT_EQ(besideValues(5340), few);
    EXPECT_GE(few, 0);
    EXPECT_LE(few, mostBesideValues);
}

TEST(ConfigAllocations, areTakenBackWithTheValues)
{
    const std::string text = bench::servicesDocument(534);
    bench::servicesSchema();
    const test::AllocationCounter counter;
    {
        bench::Services read;
        EXPECT_TRUE(readConfig(text, bench::servicesSchema(), read).empty());
    }
    EXPECT_EQ(counter.allocations(), counter.releases());
}
