// Tokens that the direct cursor takes together.
#include <gtest/gtest.h>

#include "direct/direct_cursor.h"

#include <string>
#include <string_view>

#include "support/block_types.h"

using namespace std::string_literals;
using namespace vorn::parsers::toml;

namespace
{

template <typename Block>
bool takesPlainKey(const std::string& text)
{
    BlockCursor<Block> tokens(text.data(), text.data() + text.size());
    std::string_view key;
    return takePlainKey(tokens, key);
}

template <typename Block>
bool takesComma(const std::string& text)
{
    BlockCursor<Block> tokens(text.data(), text.data() + text.size());
    return takeCommaBeforeValue(tokens);
}

template <typename Block>
class TokensTogether : public testing::Test
{
};

} // namespace

TYPED_TEST_SUITE(TokensTogether, test::Blocks, );

TYPED_TEST(TokensTogether, takesAKeyAndTheSignTogetherWhereThatIsEasyToSee)
{
    const std::string rest(40, 'x');
    for (const std::string text :
         {"a = ", "a=", "key-1_B = ", "abcdefghijklmnopqr = ", "truth = ", "i=", "n = ", "t=-"})
    {
        EXPECT_TRUE(takesPlainKey<TypeParam>(text + rest)) << text;
    }
    for (const std::string text : {"true = ", "falsehood = ", "inf=", "nano = ", "1a = ", "-a = ",
                                   "'a' = ", "a.b = ", "a  = ", "a =  ", "a =\"", "a\t= ", "a = # ",
                                   "a = \n", "a = ]", "a == ", "= ", " ", "a\xC3\xA9 = "})
    {
        EXPECT_FALSE(takesPlainKey<TypeParam>(text + rest)) << text;
    }
    EXPECT_FALSE(takesPlainKey<TypeParam>("a=1")) << "too close to the end, whatever the blocks";
}

TYPED_TEST(TokensTogether, takesACommaBeforeAValueOnTheSameLine)
{
    for (const char first : "a0-+_\"'[{"s)
    {
        EXPECT_TRUE(takesComma<TypeParam>(","s + first)) << first;
        EXPECT_TRUE(takesComma<TypeParam>(", "s + first)) << first;
        EXPECT_FALSE(takesComma<TypeParam>(",  "s + first)) << first;
        EXPECT_FALSE(takesComma<TypeParam>(""s + first)) << first;
    }
    for (const std::string& text : {","s, ", "s, ",\n1"s, ", \n1"s, ",]"s, ", ]"s, ",}"s, ",#"s,
                                    ",,"s, ",\t1"s, ",\0"s, ",.1"s})
    {
        EXPECT_FALSE(takesComma<TypeParam>(text)) << testing::PrintToString(text);
    }
}
