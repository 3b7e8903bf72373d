// Bytes of a machine word.
#include <gtest/gtest.h>

#include "scan/packed_bytes.h"

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

// In memory that comes first is lowest: only there do the marks of others not matter.
TEST(PackedBytes, thatEqualACharacterAreFoundFromTheLowestOn)
{
    if (!littleEndian)
    {
        GTEST_SKIP() << "words are not searched on this processor";
    }
    for (int value = 0; value < 256; ++value)
    {
        const char c = static_cast<char>(value);
        const char other = static_cast<char>(value + 1);
        EXPECT_EQ(bytesEqual(loadBytes(std::string(sizeof(PackedBytes), other).data()), c) &
                      highBits,
                  0u);
        for (std::size_t place = 0; place < sizeof(PackedBytes); ++place)
        {
            std::string bytes(sizeof(PackedBytes), other);
            bytes[place] = c;
            const PackedBytes found = bytesEqual(loadBytes(bytes.data()), c) & highBits;
            ASSERT_NE(found, 0u) << value;
            EXPECT_EQ(lowestByte(found), static_cast<std::ptrdiff_t>(place)) << value;
        }
    }
}
