// Runs of characters, and where they end.
#include <gtest/gtest.h>

#include "scan/character_run.h"

#include <cstddef>
#include <string>

#include "support/block_types.h"
#include "support/guarded_memory.h"

using namespace vorn::parsers::toml;

namespace
{

template <typename Block>
class CharacterRun : public testing::Test
{
};

std::size_t placeAfter(const std::string& text, bool (*isMember)(char))
{
    std::size_t place = 0;
    while (place < text.size() && isMember(text[place]))
    {
        ++place;
    }
    return place;
}

// Both ways to find the end, of which one stops before the last bytes of the text.
template <typename Run, typename Block>
void expectEnd(test::GuardedMemory& memory, const std::string& text, std::size_t place)
{
    const char* const begin = memory.hold(text);
    const char* const end = memory.end();
    ASSERT_EQ((runEnd<Run, Block>(begin, end)), begin + place) << testing::PrintToString(text);
    const auto size = static_cast<std::size_t>(Block::size);
    const bool isEarly = littleEndian && place < text.size() / size * size;
    ASSERT_EQ((earlyRunEnd<Run, Block>(begin, end)), isEarly ? begin + place : nullptr)
        << testing::PrintToString(text);
}

// Every byte in every place of runs of every length, right before memory that cannot be read.
template <typename Run, typename Block>
void expectRuns(const std::string& members, bool (*isMember)(char))
{
    for (int value = 0; value < 256; ++value)
    {
        const char byte = static_cast<char>(value);
        EXPECT_EQ(Run::has(byte), isMember(byte)) << value;
    }
    constexpr std::size_t maxLength = 2 * Block::size + 3;
    test::GuardedMemory memory(maxLength);
    for (std::size_t length = 0; length <= maxLength; ++length)
    {
        std::string text;
        for (std::size_t index = 0; index < length; ++index)
        {
            text += members[index * 7 % members.size()];
        }
        expectEnd<Run, Block>(memory, text, length);
        for (std::size_t place = 0; place < length; ++place)
        {
            for (int value = 0; value < 256; ++value)
            {
                std::string changed = text;
                changed[place] = static_cast<char>(value);
                expectEnd<Run, Block>(memory, changed, placeAfter(changed, isMember));
            }
        }
    }
}

const std::string digits = "0123456789";
const std::string keyCharacters =
    "azAZ09_-bcdefghijklmnopqrstuvwxyBCDEFGHIJKLMNOPQRSTUVWXY12345678";

} // namespace

TYPED_TEST_SUITE(CharacterRun, test::Blocks, );

TYPED_TEST(CharacterRun, ofDigitsEndsAtTheFirstOtherByte)
{
    expectRuns<Digits, TypeParam>(digits,
                                  [](char c) { return digits.find(c) != std::string::npos; });
}

TYPED_TEST(CharacterRun, ofKeyCharactersEndsAtTheFirstOtherByte)
{
    expectRuns<KeyCharacters, TypeParam>(keyCharacters, [](char c)
                                         { return keyCharacters.find(c) != std::string::npos; });
}

TYPED_TEST(CharacterRun, ofPlainBytesEndsAtTheFirstOtherByte)
{
    expectRuns<Plain<'"', '\n', '\\'>, TypeParam>(
        "a Z\t'\x01~\x7F!#[]",
        [](char c) { return c != '"' && c != '\n' && c != '\\' && (c & 0x80) == 0; });
    expectRuns<Plain<'\n'>, TypeParam>("a\"\\\t'\r",
                                       [](char c) { return c != '\n' && (c & 0x80) == 0; });
}

// The block that a processor has is the one that is used.
TEST(CharacterRuns, areFoundWithoutNamingABlock)
{
    const std::string text = "0123456789012345678901234567890123456789x" + std::string(40, '1');
    const char* const end = text.data() + text.size();
    EXPECT_EQ(runEnd<Digits>(text.data(), end), text.data() + 40);
    EXPECT_EQ(earlyRunEnd<Digits>(text.data(), end), littleEndian ? text.data() + 40 : nullptr);
}
