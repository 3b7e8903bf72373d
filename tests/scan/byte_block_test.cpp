// Bytes that are looked at all at once.
#include <gtest/gtest.h>

#include "scan/byte_block.h"

#include <cstddef>
#include <string>

#include "support/block_types.h"
#include "support/guarded_memory.h"

using namespace vorn::parsers::toml;

namespace
{

template <typename Block>
class ByteBlockTest : public testing::Test
{
};

bool isAsciiByte(int value)
{
    return value < 0x80;
}

// The place of the first byte, or the size of a block.
template <typename Block, typename Bytes>
std::ptrdiff_t placeOf(Bytes bytes)
{
    return bytes != 0 ? Block::firstOf(bytes) : Block::size;
}

// Bytes of every value in every place, before and after others that are marked or are not.
template <typename Block, typename Mark, typename IsMarked>
void expectMarked(Mark mark, IsMarked isMarked, char marked, char unmarked)
{
    if (!littleEndian)
    {
        GTEST_SKIP() << "words are not searched on this processor";
    }
    const std::size_t size = Block::size;
    test::GuardedMemory memory(size);
    for (int value = 0; value < 256; ++value)
    {
        for (std::size_t place = 0; place < size; ++place)
        {
            for (const char after : {marked, unmarked, '\xFF', '\0', static_cast<char>(value + 1)})
            {
                const auto place_ = static_cast<std::ptrdiff_t>(place);
                const std::string end(size - place - 1, after);
                const char byte = static_cast<char>(value);
                const Block amongMarked(
                    memory.hold(std::string(place, marked).append(1, byte) + end));
                const auto notMarked = amongMarked.notMarked(mark(amongMarked));
                ASSERT_EQ(placeOf<Block>(notMarked) == place_,
                          !isMarked(value) || !isAsciiByte(value))
                    << value << " at " << place;
                const Block amongUnmarked(
                    memory.hold(std::string(place, unmarked).append(1, byte) + end));
                const auto found = amongUnmarked.markedOrNotAscii(mark(amongUnmarked));
                ASSERT_EQ(placeOf<Block>(found) == place_, isMarked(value) || !isAsciiByte(value))
                    << value << " at " << place;
            }
        }
    }
}

} // namespace

TYPED_TEST_SUITE(ByteBlockTest, test::Blocks, );

TYPED_TEST(ByteBlockTest, marksTheBytesThatEqualACharacter)
{
    for (const char c : {'\0', '\n', '"', '\'', '-', '\\', '_', '~', '\x7F'})
    {
        SCOPED_TRACE(static_cast<int>(c));
        expectMarked<TypeParam>([c](TypeParam block) { return block.equal(c); },
                                [c](int value) { return value == c; }, c, 'x');
    }
}

TYPED_TEST(ByteBlockTest, marksTheBytesFromOneCharacterToAnother)
{
    for (const std::string limits : {"09", "az", "AZ", "55", "\x01\x7F"})
    {
        SCOPED_TRACE(limits);
        const char first = limits[0];
        const char last = limits[1];
        expectMarked<TypeParam>([&](TypeParam block) { return block.from(first, last); },
                                [&](int value) { return value >= first && value <= last; }, last,
                                '\0');
    }
}

TYPED_TEST(ByteBlockTest, marksLettersInAnyCase)
{
    for (const std::string limits : {"az", "af", "qq"})
    {
        SCOPED_TRACE(limits);
        const char first = limits[0];
        const char last = limits[1];
        const auto isMarked = [&](int value)
        {
            const int lower = value | 0x20;
            return isAsciiByte(value) && lower >= first && lower <= last;
        };
        expectMarked<TypeParam>([&](TypeParam block) { return block.fromInAnyCase(first, last); },
                                isMarked, static_cast<char>(first - 0x20), '[');
    }
}

TYPED_TEST(ByteBlockTest, hasNoPlaceWhereNothingIsFound)
{
    const std::string same(TypeParam::size, '7');
    const TypeParam block(same.data());
    EXPECT_TRUE(block.notMarked(block.from('0', '9')) == 0);
    EXPECT_TRUE(block.markedOrNotAscii(block.equal('8')) == 0);
}
