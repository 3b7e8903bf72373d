#include "config/byte_block.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>

#include "support/text_generator.h"

using namespace vorn::parsers::toml::config;

namespace
{

// Both are tested where there are both.
template <typename Block>
class ByteBlocks : public testing::Test
{
};

#if defined(__SSE2__)
using Blocks = testing::Types<WordBlock, VectorBlock>;
#else
using Blocks = testing::Types<WordBlock>;
#endif
TYPED_TEST_SUITE(ByteBlocks, Blocks);

// Expects those bytes to be marked for which a condition holds.
template <typename Block, typename IsFound>
void expectMarks(const std::string& bytes, typename Block::Found found, IsFound isFound)
{
    const auto marks = Block::marks(found);
    std::size_t number = 0;
    std::size_t first = Block::size;
    std::size_t end = 0;
    for (std::size_t at = 0; at < Block::size; ++at)
    {
        if (isFound(static_cast<unsigned char>(bytes[at])))
        {
            ++number;
            first = std::min(first, at);
            end = at + 1;
        }
        // Up to here there are as many.
        EXPECT_EQ(Block::count(Block::amongFirst(marks, at + 1)), number);
    }
    EXPECT_EQ(Block::count(marks), number);
    EXPECT_EQ(marks != 0, number != 0);
    if (number != 0)
    {
        EXPECT_EQ(Block::beforeFirst(marks), first);
        EXPECT_EQ(Block::upToLast(marks), end);
    }
}

} // namespace

TYPED_TEST(ByteBlocks, MarkWhatIsFound)
{
    using Block = TypeParam;
    test::TextGenerator random;
    for (int round = 0; round < 2000; ++round)
    {
        std::string bytes;
        for (std::size_t at = 0; at < Block::size; ++at)
        {
            // Neighbours are what a carry would turn one into.
            bytes += random.chance() ? static_cast<char>('*' + random.below(6))
                                     : static_cast<char>(random.below(256));
        }
        SCOPED_TRACE(testing::PrintToString(bytes));
        const Block block(bytes.data());
        expectMarks<Block>(bytes, block.notAscii(), [](unsigned c) { return c >= 0x80; });
        expectMarks<Block>(bytes, block.equal(','), [](unsigned c) { return c == ','; });
        expectMarks<Block>(bytes, block.equal('\0'), [](unsigned c) { return c == 0; });
        expectMarks<Block>(bytes, block.equalWith(0x60, '}'),
                           [](unsigned c) { return (c | 0x60U) == '}'; });
        expectMarks<Block>(bytes, block.lowOrNotAscii(','),
                           [](unsigned c) { return c <= ',' || c >= 0x80; });
        expectMarks<Block>(bytes, block.lowOrNotAscii('\x7F'), [](unsigned) { return true; });
        expectMarks<Block>(bytes, block.equal('+') | block.notAscii(),
                           [](unsigned c) { return c == '+' || c >= 0x80; });
    }
}
