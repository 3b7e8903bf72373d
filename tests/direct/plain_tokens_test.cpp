// Where plain tokens end, and what is left to the scanner.
#include <gtest/gtest.h>

#include "direct/plain_tokens.h"

#include <string>

#include "support/block_types.h"

using namespace vorn::parsers::toml;

namespace
{

// After it no block of bytes reaches the end.
const std::string rest = ", " + std::string(60, 'x');

template <typename Block>
class PlainTokens : public testing::Test
{
protected:
    // What ends at the place that a function finds; "?" if it is not easy to see.
    template <typename Find>
    static std::string found(const std::string& text, Find find)
    {
        const char* const begin = text.data();
        const char* const stop = find(begin, begin + text.size());
        return stop != nullptr ? std::string(begin, stop) : "?";
    }

    static std::string key(const std::string& text) { return found(text, plainKeyEnd<Block>); }
    static std::string string(const std::string& text)
    {
        return found(text, plainStringEnd<Block>);
    }
    static std::string number(const std::string& text, Event event)
    {
        return found(text,
                     [event](const char* begin, const char* end)
                     {
                         const PlainNumber number = plainNumber<Block>(begin, end);
                         EXPECT_EQ(number.event, number.stop != nullptr ? event : Event::none);
                         return number.stop;
                     });
    }
};

} // namespace

TYPED_TEST_SUITE(PlainTokens, test::Blocks, );

TYPED_TEST(PlainTokens, areKeysThatAreNoValues)
{
    for (const std::string text : {"a", "key-1_B", "a_key_longer_than_a_block", "nothing"})
    {
        EXPECT_EQ(this->key(text + rest), text);
    }
    for (const std::string text : {"true", "falsehood", "inf", "nano", "1a", "-a", "_a", "\"a\""})
    {
        EXPECT_EQ(this->key(text + rest), "?") << text;
    }
    EXPECT_EQ(this->key("abc"), "?") << "at the end";
}

TYPED_TEST(PlainTokens, areStringsOfOneLineWithoutEscapes)
{
    for (const std::string text : {"\"a\"", "\"a b, # c\"", "\"a string longer than a block\""})
    {
        EXPECT_EQ(this->string(text + rest), text);
    }
    for (const std::string text :
         {"\"\"", "\"\"\"a\"\"\"", "\"a\\tb\"", "\"a\nb\"", "\"\xC3\xA9\""})
    {
        EXPECT_EQ(this->string(text + rest), "?") << text;
    }
}

TYPED_TEST(PlainTokens, areIntegersAndFractions)
{
    for (const std::string text : {"0", "7", "8080", "12345678901"})
    {
        EXPECT_EQ(this->number(text + rest, Event::visitInteger), text);
        EXPECT_EQ(this->number(text + "]" + rest, Event::visitInteger), text);
    }
    for (const std::string text : {"0.5", "3.25", "12345.678901"})
    {
        EXPECT_EQ(this->number(text + rest, Event::visitFloat), text);
    }
    for (const std::string text : {"", "01", "1_0", "1e5", "1.", "1.5e5", "1._5", "0x1F",
                                   "1979-05-27", "07:32:00", "1a", "1.5.1", "1\xC3\xA9"})
    {
        EXPECT_EQ(this->number(text + rest, Event::none), "?") << text;
    }
}

TEST(PlainWord, endsWhereNoKeyGoesOn)
{
    const auto ends = [](const std::string& text)
    { return plainWordEnd(text.data(), text.data() + text.size(), "true") == text.data() + 4; };
    EXPECT_TRUE(ends("true\n"));
    EXPECT_TRUE(ends("true]"));
    EXPECT_FALSE(ends("truex"));
    EXPECT_FALSE(ends("true-"));
    EXPECT_FALSE(ends("tru\n\n"));
    EXPECT_FALSE(ends("true")) << "at the end";
}
