#include <gtest/gtest.h>
#include <vorn/parsers/toml_values.h>

#include <string_view>

using namespace vorn::parsers::toml;

TEST(BooleanValue, IsThatOfTheText)
{
    EXPECT_TRUE(booleanValue("true"));
    EXPECT_FALSE(booleanValue("false"));
}

TEST(BooleanValue, IsFalseForOtherTexts)
{
    using namespace std::string_view_literals;
    for (const std::string_view text :
         {""sv, "True"sv, "1"sv, "true "sv, " true"sv, "tru"sv, "true\0"sv, "yes"sv})
    {
        EXPECT_FALSE(booleanValue(text)) << text;
    }
}
