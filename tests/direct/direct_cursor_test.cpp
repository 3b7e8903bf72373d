// The same tokens as those of the token cursor.
#include <gtest/gtest.h>

#include "direct/direct_cursor.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "support/block_types.h"
#include "support/guarded_memory.h"
#include "support/text_generator.h"

using namespace std::string_literals;
using namespace vorn::parsers::toml;

namespace
{

const std::string significant = "at01.-+_\"'\\,=[]{}# \t\n\r\0\xC3\xA9"
                                "ex:"s;

// What comes after a token: nothing, or so much that no block of bytes reaches the end.
const std::vector<std::string> rests = {"", " = 1\n", ", " + std::string(60, 'x') + "\n",
                                        "\"\nkey = \"value\" # comment\n[table.other]\na = 1.5\n"s +
                                            "list = [1, 2, 3]\n"};

// Both cursors in the same place of a text.
template <typename Block>
class Cursors
{
public:
    Cursors(const char* begin, const char* end) : tokens(begin, end), direct(begin, end) {}

    bool areInTheSamePlace() const { return tokens.position() == direct.position(); }

    TokenCursor tokens;
    BlockCursor<Block> direct;
};

testing::AssertionResult areSame(const TakenText& text, const TakenText& direct)
{
    // Where a token does not fit its place nobody asks for more.
    const bool isSame = direct.event == text.event &&
                        (text.event == Event::none || (direct.text.data() == text.text.data() &&
                                                       direct.text.size() == text.text.size()));
    return isSame ? testing::AssertionSuccess()
                  : testing::AssertionFailure()
                        << "event " << static_cast<int>(direct.event) << ' ' << direct.text
                        << ", not " << static_cast<int>(text.event) << ' ' << text.text;
}

template <typename Block>
void expectSameNewline(Cursors<Block> cursors)
{
    ASSERT_EQ(cursors.direct.takeNewline(), cursors.tokens.takeNewline());
    ASSERT_TRUE(cursors.areInTheSamePlace());
}

template <typename Block>
void expectSameKeyPart(Cursors<Block> cursors)
{
    const TakenText part = takeKeyPart(cursors.tokens);
    ASSERT_TRUE(areSame(part, takeKeyPart(cursors.direct)));
    ASSERT_TRUE(part.event == Event::none || cursors.areInTheSamePlace());
}

template <typename Block>
void expectSameValue(Cursors<Block> cursors)
{
    const TakenText value = takeValue(cursors.tokens);
    ASSERT_TRUE(areSame(value, takeValue(cursors.direct)));
    ASSERT_TRUE(value.event == Event::none || cursors.areInTheSamePlace());
}

// It is a bare key, the sign, and then what may be a value; or nothing has been taken.
template <typename Block>
void expectSamePlainKey(Cursors<Block> cursors)
{
    std::string_view key = "none";
    if (!takePlainKey(cursors.direct, key))
    {
        ASSERT_TRUE(cursors.areInTheSamePlace());
        ASSERT_EQ(key, "none");
        return;
    }
    ASSERT_TRUE(areSame(takeKeyPart(cursors.tokens), {Event::visitBareKey, key}));
    ASSERT_TRUE(cursors.tokens.take('='));
    ASSERT_TRUE(cursors.areInTheSamePlace());
    ASSERT_FALSE(cursors.tokens.takeNewline());
}

// After the comma the rules must find a value, not a line break or the array's end.
template <typename Block>
void expectSameComma(Cursors<Block> cursors)
{
    if (!takeCommaBeforeValue(cursors.direct))
    {
        ASSERT_TRUE(cursors.areInTheSamePlace());
        return;
    }
    ASSERT_TRUE(cursors.tokens.take(','));
    ASSERT_TRUE(cursors.areInTheSamePlace());
    ASSERT_FALSE(cursors.tokens.isNext(']'));
    ASSERT_FALSE(cursors.tokens.takeNewline());
}

template <typename Block>
void expectSameAt(const char* begin, const char* end)
{
    const Cursors<Block> cursors(begin, end);
    ASSERT_TRUE(cursors.areInTheSamePlace());
    ASSERT_EQ(cursors.direct.atEnd(), cursors.tokens.atEnd());
    expectSameNewline(cursors);
    expectSameKeyPart(cursors);
    expectSameValue(cursors);
    expectSamePlainKey(cursors);
    expectSameComma(cursors);
}

// At the start of the text, which a page that cannot be read comes after.
template <typename Block>
void expectSame(test::GuardedMemory& memory, const std::string& text)
{
    const char* const begin = memory.holdTerminated(text);
    expectSameAt<Block>(begin, memory.terminator());
    ASSERT_FALSE(testing::Test::HasFatalFailure()) << testing::PrintToString(text);
}

// At every place of it.
template <typename Block>
void expectSameEverywhere(test::GuardedMemory& memory, const std::string& text)
{
    const char* const begin = memory.holdTerminated(text);
    for (const char* at = begin; at <= memory.terminator(); ++at)
    {
        expectSameAt<Block>(at, memory.terminator());
        ASSERT_FALSE(testing::Test::HasFatalFailure())
            << at - begin << " of " << testing::PrintToString(text);
    }
}

// All texts of at most as many characters.
std::vector<std::string> shortTexts(std::size_t maxLength)
{
    std::vector<std::string> texts = {""};
    std::size_t begin = 0;
    for (std::size_t length = 1; length <= maxLength; ++length)
    {
        const std::size_t end = texts.size();
        for (; begin < end; ++begin)
        {
            for (const char c : significant)
            {
                texts.push_back(texts[begin] + c);
            }
        }
    }
    return texts;
}

template <typename Block>
class DirectCursorWith : public testing::Test
{
};

} // namespace

TYPED_TEST_SUITE(DirectCursorWith, test::Blocks, );

TYPED_TEST(DirectCursorWith, takesTheTokensOfTheTokenCursorForAllShortTexts)
{
    test::GuardedMemory memory(200);
    const std::vector<std::string> texts = shortTexts(3);
    for (const std::string& rest : rests)
    {
        for (std::size_t index = 0; index < texts.size(); index += VORN_TEST_STEP)
        {
            expectSame<TypeParam>(memory, texts[index] + rest);
            ASSERT_FALSE(this->HasFatalFailure());
        }
    }
}

// After what could be the start of a token, or all of one.
TYPED_TEST(DirectCursorWith, takesTheTokensOfTheTokenCursorAfterEveryStart)
{
    test::GuardedMemory memory(300);
    const std::vector<std::string> texts = shortTexts(2);
    for (const std::string start : {"key",
                                    "true",
                                    "tru",
                                    "false",
                                    "fals",
                                    "inf",
                                    "nan",
                                    "truex",
                                    "12",
                                    "0",
                                    "-1",
                                    "+0",
                                    "1.5",
                                    "1.",
                                    "07:32:00",
                                    "1979-05-27",
                                    "\"x",
                                    "\"x\"",
                                    "\"\"",
                                    "'x",
                                    "'x'",
                                    ",",
                                    ", ",
                                    "\n",
                                    "\r\n",
                                    "a = ",
                                    "a =",
                                    "true = ",
                                    "0x1",
                                    "abcdefghijklmnopqrstuvwxyz0123456789",
                                    "012345678901234567890",
                                    "12345678901234567890.12345678901234567890",
                                    "\"abcdefghijklmnopqrstuvwxyz"})
    {
        for (const std::string& rest : rests)
        {
            for (std::size_t index = 0; index < texts.size(); index += VORN_TEST_STEP)
            {
                expectSame<TypeParam>(memory, start + texts[index] + rest);
                ASSERT_FALSE(this->HasFatalFailure());
            }
        }
    }
}

TYPED_TEST(DirectCursorWith, takesTheTokensOfTheTokenCursorAtEveryPlaceOfGeneratedTexts)
{
    const std::vector<std::string> pieces = {"key",
                                             "a",
                                             "b-c_1",
                                             " = ",
                                             "=",
                                             "  =",
                                             "= ",
                                             " ",
                                             "\t",
                                             "\n",
                                             "\r\n",
                                             "\n\n",
                                             " # c\n",
                                             ",",
                                             ", ",
                                             ",  ",
                                             "[",
                                             "]",
                                             "{",
                                             "}",
                                             ".",
                                             "1",
                                             "-12",
                                             "3.25",
                                             "1e5",
                                             "0x1F",
                                             "true",
                                             "false",
                                             "inf",
                                             "nan",
                                             "1979-05-27",
                                             "07:32:00",
                                             "\"\"",
                                             "\"text\"",
                                             "'x'",
                                             "\"\"\"",
                                             "'''",
                                             "\"",
                                             "\\",
                                             "\xC3\xA9",
                                             "12345",
                                             "trueish",
                                             "falsey",
                                             "info",
                                             "nanny",
                                             "\\u00e9",
                                             "\"a string that is longer than a block\"",
                                             "a_key_that_is_longer_than_a_block"};
    constexpr std::size_t maxPieces = 25;
    test::GuardedMemory memory(maxPieces * 64);
    test::TextGenerator generator;
    for (int round = 0; round < 10000; round += VORN_TEST_STEP)
    {
        expectSameEverywhere<TypeParam>(memory, generator.mixture(pieces, maxPieces));
        expectSameEverywhere<TypeParam>(memory, generator.characters(significant, 0, 60));
        ASSERT_FALSE(this->HasFatalFailure());
    }
}
