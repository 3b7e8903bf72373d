#include <gtest/gtest.h>
#include <vorn/parsers/toml_values.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>
#include <vector>

using namespace vorn::parsers::toml;

namespace
{

constexpr double max = std::numeric_limits<double>::max();
constexpr double least = std::numeric_limits<double>::denorm_min();

std::string zeros(std::size_t count)
{
    return std::string(count, '0');
}

} // namespace

TEST(FloatValue, IsTheNearestDouble)
{
    const std::vector<std::pair<std::string, double>> cases = {
        {"1.0", 1.0},
        {"+1.0", 1.0},
        {"-3.1415", -3.1415},
        {"0.5", 0.5},
        {"5e+22", 5e22},
        {"1e06", 1e6},
        {"-2E-2", -2e-2},
        {"6.626e-34", 6.626e-34},
        {"1_000.5", 1000.5},
        {"1_0e1_0", 1e11},
        {"224_617.445_991_228", 224617.445991228},
        {"0.1", 0.1},
        {"0e0", 0.0},
        {"9007199254740993.0", 9007199254740992.0},
        {"9007199254740993.00000000000000000000000000000001", 9007199254740994.0},
        {"1" + zeros(400) + "e-400", 1.0},
        {"0." + zeros(400) + "1e401", 1.0},
        {"0." + zeros(400) + "0e999999999999999999999", 0.0},
    };
    for (const auto& [text, value] : cases)
    {
        EXPECT_EQ(floatValue(text), value) << text;
    }
}

TEST(FloatValue, IsInfiniteOrNoNumberIfItIsWrittenSo)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(floatValue("inf"), infinity);
    EXPECT_EQ(floatValue("+inf"), infinity);
    EXPECT_EQ(floatValue("-inf"), -infinity);
    for (const std::string text : {"nan", "+nan", "-nan"})
    {
        const std::optional<double> value = floatValue(text);
        ASSERT_TRUE(value) << text;
        EXPECT_TRUE(std::isnan(*value)) << text;
        EXPECT_EQ(std::signbit(*value), text == "-nan") << text;
    }
}

TEST(FloatValue, IsZeroIfItIsTooSmall)
{
    for (const std::string& text :
         {std::string("1e-400"), std::string("2e-324"), std::string("1e-99999999999999999999"),
          "0." + zeros(400) + "1", "0." + zeros(400) + "1e10"})
    {
        ASSERT_EQ(floatValue(text), 0.0) << text;
        EXPECT_FALSE(std::signbit(*floatValue(text))) << text;
        ASSERT_EQ(floatValue('-' + text), 0.0) << text;
        EXPECT_TRUE(std::signbit(*floatValue('-' + text))) << text;
    }
    EXPECT_TRUE(std::signbit(*floatValue("-0.0")));
    EXPECT_EQ(floatValue("3e-324"), least);
    EXPECT_EQ(floatValue("-5e-324"), -least);
}

TEST(FloatValue, IsNoneIfItIsTooLarge)
{
    EXPECT_EQ(floatValue("1.7976931348623157e308"), max);
    EXPECT_EQ(floatValue("1.7976931348623158e308"), max);
    for (const std::string& text :
         {std::string("1.7976931348623159e308"), std::string("1e309"), std::string("1e400"),
          std::string("1e99999999999999999999"), '1' + zeros(400) + ".0", '1' + zeros(400) + "e-10",
          "0." + zeros(400) + "1e999"})
    {
        EXPECT_EQ(floatValue(text), std::nullopt) << text;
        EXPECT_EQ(floatValue('-' + text), std::nullopt) << text;
    }
}

TEST(FloatValue, OtherTextsHaveNone)
{
    for (const std::string& text :
         {std::string(),           std::string("1"),        std::string("-1"),
          std::string("1."),       std::string(".5"),       std::string("1.e5"),
          std::string("1e"),       std::string("1e+"),      std::string("01.5"),
          std::string("00.5"),     std::string("1_.5"),     std::string("1._5"),
          std::string("1.5_"),     std::string("1__0.5"),   std::string("1e_5"),
          std::string("1e5_"),     std::string("1e5.0"),    std::string("1.5e5.0"),
          std::string("1,5"),      std::string(" 1.5"),     std::string("1.5 "),
          std::string("1.5\0", 4), std::string("++1.5"),    std::string("Inf"),
          std::string("NaN"),      std::string("infinity"), std::string("nan(1)"),
          std::string("0x1.8p3"),  std::string("0x1p3"),    std::string("-"),
          std::string("+"),        std::string("e5"),       std::string("1e5f"),
          std::string("1.5\xC3")})
    {
        EXPECT_EQ(floatValue(text), std::nullopt) << text;
    }
}
