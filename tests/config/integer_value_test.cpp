#include <gtest/gtest.h>
#include <vorn/parsers/toml_values.h>

#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

using namespace vorn::parsers::toml;

namespace
{

constexpr std::int64_t min = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t max = std::numeric_limits<std::int64_t>::max();

} // namespace

TEST(IntegerValue, IsThatOfTheText)
{
    const std::vector<std::pair<std::string, std::int64_t>> cases = {
        {"0", 0},
        {"+0", 0},
        {"-0", 0},
        {"7", 7},
        {"+42", 42},
        {"-17", -17},
        {"-1_000", -1000},
        {"5_349_221", 5349221},
        {"1_2_3_4_5", 12345},
        {"0xDEAD_beef", 3735928559},
        {"0x0", 0},
        {"0x00ff", 255},
        {"0o755", 493},
        {"0o0_1", 1},
        {"0b1101_0101", 213},
        {"0b100000000000000000000000000000000", 4294967296},
    };
    for (const auto& [text, value] : cases)
    {
        EXPECT_EQ(integerValue(text), value) << text;
    }
}

TEST(IntegerValue, HasSixtyFourBits)
{
    const std::string ones(63, '1');
    EXPECT_EQ(integerValue("9223372036854775807"), max);
    EXPECT_EQ(integerValue("+9_223_372_036_854_775_807"), max);
    EXPECT_EQ(integerValue("-9223372036854775808"), min);
    EXPECT_EQ(integerValue("0x7FFFFFFFFFFFFFFF"), max);
    EXPECT_EQ(integerValue("0o777777777777777777777"), max);
    EXPECT_EQ(integerValue("0b" + ones), max);
    EXPECT_EQ(integerValue("0x" + std::string(100, '0') + "1"), 1);
    for (const std::string& text :
         {std::string("9223372036854775808"), std::string("-9223372036854775809"),
          std::string("18446744073709551616"), std::string("18446744073709551617"),
          std::string("0x8000000000000000"), std::string("0xFFFFFFFFFFFFFFFF"),
          std::string("0x10000000000000000"), std::string("0o1000000000000000000000"), "0b1" + ones,
          "0b1" + ones + "0", std::string(10000, '9')})
    {
        EXPECT_EQ(integerValue(text), std::nullopt) << text;
    }
}

TEST(IntegerValue, OtherTextsHaveNone)
{
    for (const std::string& text :
         {std::string(),         std::string(" 1"),   std::string("1 "),    std::string("1\n"),
          std::string("1\0", 2), std::string("-"),    std::string("+"),     std::string("+-1"),
          std::string("012"),    std::string("-01"),  std::string("00"),    std::string("0_1"),
          std::string("1_"),     std::string("_1"),   std::string("1__0"),  std::string("0x"),
          std::string("0x_1"),   std::string("0x1_"), std::string("0X1"),   std::string("0o8"),
          std::string("0b2"),    std::string("-0x1"), std::string("0xg"),   std::string("1.0"),
          std::string("1e5"),    std::string("true"), std::string("1\xC3"), std::string("1:"),
          std::string("1/"),     std::string("0x@"),  std::string("0x`"),   std::string("0x\xE1")})
    {
        EXPECT_EQ(integerValue(text), std::nullopt) << text;
    }
}
