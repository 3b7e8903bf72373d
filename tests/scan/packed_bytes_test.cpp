// Bytes of a machine word.
#include <gtest/gtest.h>

#include "scan/packed_bytes.h"

#include <cstddef>
#include <cstdint>
#include <string>

using namespace vorn::parsers::toml;

namespace
{

const std::string text = "abcdefghijklmnop";

} // namespace

TEST(PackedBytes, areTheSameEverywhereWhereTheyAreToBe)
{
    EXPECT_EQ(everywhere(0), 0u);
    EXPECT_EQ(everywhere(0xA5), loadBytes(std::string(sizeof(PackedBytes), '\xA5').data()));
}

TEST(PackedBytes, areLoadedFromAnyAddress)
{
    for (std::size_t place = 0; place < sizeof(PackedBytes); ++place)
    {
        const PackedBytes word = loadBytes(text.data() + place);
        EXPECT_EQ(std::string(reinterpret_cast<const char*>(&word), sizeof(word)),
                  text.substr(place, sizeof(word)));
    }
}

TEST(PackedBytes, areCountedFromTheLowest)
{
    for (std::size_t place = 0; place < sizeof(PackedBytes); ++place)
    {
        const PackedBytes marked = PackedBytes{0x80} << (8 * place);
        EXPECT_EQ(lowestByte(marked), static_cast<std::ptrdiff_t>(place));
        EXPECT_EQ(lowestByte(marked | highBits << (8 * place)), static_cast<std::ptrdiff_t>(place));
    }
}

// Of other types, too: what is looked at may have a length of its own.
TEST(PackedBytes, areLoadedIntoWordsOfAnySize)
{
    const auto word = loadBytes<std::uint64_t>(text.data() + 3);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(&word), sizeof(word)), text.substr(3, 8));
    const auto half = loadBytes<std::uint16_t>(text.data() + 3);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(&half), sizeof(half)), text.substr(3, 2));
}
