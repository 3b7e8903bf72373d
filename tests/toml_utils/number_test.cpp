// Booleans and floats.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include <vorn/parsers/toml.h>

#include "support/log_recorder.h"

using namespace std::string_literals;
using vorn::parsers::toml::parseBoolean;
using vorn::parsers::toml::parseFloat;

namespace
{

void expectBooleans(bool value, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        SCOPED_TRACE(testing::PrintToString(text));
        EXPECT_EQ(parseBoolean(text), value);
    }
}

using Limits = std::numeric_limits<double>;

struct FloatCase
{
    std::string text;
    double value;
};

// Equal values, zeros with equal signs.
void expectFloats(const std::vector<FloatCase>& cases)
{
    for (const FloatCase& number : cases)
    {
        SCOPED_TRACE(testing::PrintToString(number.text));
        const double value = parseFloat(number.text);
        EXPECT_EQ(value, number.value);
        EXPECT_EQ(std::signbit(value), std::signbit(number.value));
    }
}

void expectEach(double value, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        expectFloats({{text, value}});
    }
}

void expectZero(const std::vector<std::string>& texts)
{
    expectEach(0.0, texts);
}

} // namespace

TEST(ParseBoolean, ofItsTwoNames)
{
    static_assert(std::is_same_v<decltype(&parseBoolean), bool (*)(const std::string&)>);
    expectBooleans(true, {"true"});
    expectBooleans(false, {"false"});
}

TEST(ParseBoolean, ofAnyOtherTextIsFalse)
{
    const test::LogRecorder log;
    expectBooleans(false,
                   {"True",  "TRUE",    "tRUE",    "1",    "0",      "yes",      "on",    "t",
                    "tru",   "tr ue",   "trux",    "T",    "'true'", "\"true\"", "+true", "_true",
                    "tr_ue", "\0true"s, "tru\0e"s, "wahr", "False",  "fals",     "no",    "2"});
    EXPECT_EQ(log.messages(), std::vector<std::string>());
}

TEST(ParseBoolean, ofAnEmptyOrBlankTextIsFalse)
{
    expectBooleans(false, {"", " ", "\t", "\n", " \t\r\n\v\f "});
}

TEST(ParseBoolean, readsOneNameAtTheStartBehindBlanks)
{
    expectBooleans(true, {"truex", "trueish", "true false", "truefalse", "true\n", "true ", "true#",
                          "true_", "true\0"s, "true\0false"s, " true", " \t\n\v\f\rtrue"});
    expectBooleans(false,
                   {"falsex", "false true", "falsetrue", "false\0true"s, " false", "\nfalse"});
}

TEST(ParseFloat, ofDigitsFractionAndExponent)
{
    static_assert(std::is_same_v<decltype(&parseFloat), double (*)(std::string)>);
    expectFloats({{"0.5", 0.5},
                  {"1.5", 1.5},
                  {"+1.0", 1.0},
                  {"-3.14", -3.14},
                  {"3.1415", 3.1415},
                  {"0.1", 0.1},
                  {"1e5", 1e5},
                  {"+1e5", 1e5},
                  {"1E+05", 1e5},
                  {"1e-5", 1e-5},
                  {"1e05", 1e5},
                  {"-1.5E3", -1500},
                  {"6.626e-34", 6.626e-34},
                  {"1.05e+01", 10.5},
                  {"224617.445991228", 224617.445991228},
                  {"9007199254740993.0", 9007199254740992.0}, // halfway, to even
                  {"1" + std::string(300, '0') + ".0", 1e300},
                  {"0." + std::string(300, '0') + "1", 1e-301}});
}

TEST(ParseFloat, dropsUnderscoresAnywhere)
{
    expectFloats({{"1_000.5", 1000.5},
                  {"1_000.000_1", 1000.0001},
                  {"1e1_0", 1e10},
                  {"1.05e+0_1", 10.5},
                  {"_1.5", 1.5},
                  {"1.5_", 1.5},
                  {"1._5", 1.5},
                  {"1_.5", 1.5},
                  {"-_1.5", -1.5},
                  {"1_e_+_5_", 1e5},
                  {"1__0.0__1", 10.01},
                  {std::string(10'000, '_') + "0.5", 0.5}});
}

TEST(ParseFloat, keepsTheSignOfZero)
{
    expectFloats({{"0.0", 0.0},
                  {"+0.0", 0.0},
                  {"-0.0", -0.0},
                  {"-0", -0.0},
                  {"-0e0", -0.0},
                  {"-0e999", -0.0},
                  {"0e99999999999999999999", 0.0},
                  {"0.000e-99999999999999999999", 0.0}});
}

TEST(ParseFloat, ofInfinityAndNotANumberIsZero)
{
    const test::LogRecorder log;
    expectZero({"inf", "+inf", "-inf", "nan", "+nan", "-nan", "infinity", "-infinity", "INF", "NaN",
                "nan(1)"});
    EXPECT_EQ(log.messages(), std::vector<std::string>());
}

TEST(ParseFloat, beyondTheRangeIsTheLargestFiniteFloat)
{
    const double largest = Limits::max();
    expectEach(largest,
               {"1.7976931348623157e308", "1.7976931348623158e308", "1.7976931348623159e308",
                "1e309", "1e400", "+1e400", "1e99999999999999999999", "1e" + std::string(1000, '9'),
                std::string(400, '9'), "0.001e400x"});
    expectEach(-largest, {"-1.7976931348623157e308", "-1.7976931348623159e308", "-1e400",
                          "-1e+99999999999999999999", "-" + std::string(400, '9') + ".0"});
    expectEach(1.7976931348623156e308, {"1.7976931348623156e308"});
    expectEach(1.0, {std::string(400, '9') + "e-400"});
}

TEST(ParseFloat, belowTheRangeIsSubnormalOrZero)
{
    expectFloats({{"2.2250738585072014e-308", Limits::min()},
                  {"2.2250738585072011e-308", 2.2250738585072011e-308},
                  {"-1e-310", -1e-310},
                  {"4.9406564584124654e-324", Limits::denorm_min()},
                  {"-4.9406564584124654e-324", -Limits::denorm_min()},
                  {"3e-324", Limits::denorm_min()},
                  {"2e-324", 0.0},
                  {"1e-400", 0.0},
                  {"-1e-400", -0.0},
                  {"1e-99999999999999999999", 0.0},
                  {"-1e-99999999999999999999", -0.0}});
}

TEST(ParseFloat, needsNoDigitsOnOneSideOfThePoint)
{
    expectFloats({{"1.", 1.0},
                  {".5", 0.5},
                  {"-.5", -0.5},
                  {"+.5", 0.5},
                  {"1.e5", 1e5},
                  {".5e1", 5.0},
                  {"7", 7.0},
                  {"-17", -17.0},
                  {"007.50", 7.5}});
}

TEST(ParseFloat, stopsAtTheFirstCharacterThatDoesNotBelongToTheNumber)
{
    expectFloats({{"1.5abc", 1.5}, {"1.5 2.5", 1.5},  {"1.5\n", 1.5},        {"1.5\0005"s, 1.5},
                  {"1.2.3", 1.2},  {"1..2", 1.0},     {"1e5.5", 1e5},        {"1e5e5", 1e5},
                  {"1,5", 1.0},    {"1,000.5", 1.0},  {"1.5-2", 1.5},        {"1.5+2", 1.5},
                  {"1.5f", 1.5},   {"2.5inf", 2.5},   {"1'000", 1.0},        {"1\xc2\xb2", 1.0},
                  {"0x1p3", 0.0},  {"-0x1.8", -0.0},  {"1e5-5", 1e5},        {"1.5E+2E", 150.0},
                  {"0b101", 0.0},  {"07:32:00", 7.0}, {"1979-05-27", 1979.0}});
}

TEST(ParseFloat, withoutADigitIsZero)
{
    const test::LogRecorder log;
    expectZero({"+",     "-",   ".",    "+.",  "-.",       "--1.5", "+-1.5", "- 1.5",
                "+ 1.5", "e5",  ".e5",  "-e5", "E",        "x1.5",  ",5",    "..5",
                "-x",    "abc", "true", "\0"s, "\0001.5"s, "\xff"});
    EXPECT_EQ(log.messages(), std::vector<std::string>());
}

TEST(ParseFloat, withAnExponentWithoutDigitsIsZero)
{
    expectZero({"1e", "1.5e", "1.5E", "1e+", "1.5e-", "-1.5e", "1ex", "1e 5", "1e.5", "1e+-5",
                "1e\0005"s, "1einf", "1e_"});
}

TEST(ParseFloat, ofAnEmptyOrBlankTextIsZero)
{
    expectZero({"", " ", "\t", " \t\r\n\v\f ", "_", "___", "_ _"});
}

TEST(ParseFloat, skipsBlanksBeforeANumber)
{
    expectFloats({{" 1.5", 1.5}, {" \t\r\n\v\f-1.5", -1.5}, {"_ _1.5", 1.5}});
}

TEST(ParseFloat, doesNotChangeItsArgument)
{
    const std::string text = "1_000.5";
    EXPECT_EQ(parseFloat(text), 1000.5);
    EXPECT_EQ(text, "1_000.5");
}
