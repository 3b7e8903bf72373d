// Tokens that the direct cursor takes together.
#include <gtest/gtest.h>

#include "direct/direct_cursor.h"

#include <string>
#include <string_view>

using namespace std::string_literals;
using namespace vorn::parsers::toml;

namespace
{

bool takesPlainKey(const std::string& text)
{
    DirectCursor tokens(text.data(), text.data() + text.size());
    std::string_view key;
    return takePlainKey(tokens, key);
}

bool takesComma(const std::string& text)
{
    DirectCursor tokens(text.data(), text.data() + text.size());
    return takeCommaBeforeValue(tokens);
}

} // namespace

TEST(DirectCursor, takesAKeyAndTheSignTogetherWhereThatIsEasyToSee)
{
    const std::string rest(40, 'x');
    for (const std::string text :
         {"a = ", "a=", "key-1_B = ", "abcdefghijklmnopqr = ", "truth = ", "i=", "n = ", "t=-"})
    {
        EXPECT_TRUE(takesPlainKey(text + rest)) << text;
    }
    for (const std::string text : {"true = ", "falsehood = ", "inf=", "nano = ", "1a = ", "-a = ",
                                   "'a' = ", "a.b = ", "a  = ", "a =  ", "a =\"", "a\t= ", "a = # ",
                                   "a = \n", "a = ]", "a == ", "= ", " ", "a\xC3\xA9 = "})
    {
        EXPECT_FALSE(takesPlainKey(text + rest)) << text;
    }
    EXPECT_FALSE(takesPlainKey("a=1")) << "too close to the end, whatever the blocks";
}

TEST(DirectCursor, takesACommaBeforeAValueOnTheSameLine)
{
    for (const char first : "a0-+_\"'[{"s)
    {
        EXPECT_TRUE(takesComma(","s + first)) << first;
        EXPECT_TRUE(takesComma(", "s + first)) << first;
        EXPECT_FALSE(takesComma(",  "s + first)) << first;
        EXPECT_FALSE(takesComma(""s + first)) << first;
    }
    for (const std::string& text : {","s, ", "s, ",\n1"s, ", \n1"s, ",]"s, ", ]"s, ",}"s, ",#"s,
                                    ",,"s, ",\t1"s, ",\0"s, ",.1"s})
    {
        EXPECT_FALSE(takesComma(text)) << testing::PrintToString(text);
    }
}
