// Generated texts of booleans and floats against a second computation of their values.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include <vorn/parsers/toml.h>

#include "support/printed.h"
#include "support/text_generator.h"
#include "support/value_text.h"

using namespace std::string_literals;
using namespace vorn::parsers::toml;
using test::printed;
using test::TextGenerator;
using test::withoutBlanks;
using test::withoutUnderscores;

namespace
{

constexpr int rounds = 100'000 / VORN_TEST_STEP;

// Less than this of a kind of text would not be worth the name of a test.
constexpr int many = rounds / 100;

// What the stream makes of a text is a decimal number at its start.  Only such a number,
// whole and within the range, goes to strtod(), which would read more: infinities, values
// that are not numbers and hexadecimal floats.  A number that lacks the digits of its
// exponent is one for strtod(), and none for the stream.
double expectedFloat(const std::string& token)
{
    const std::string text = withoutBlanks(withoutUnderscores(token));
    std::size_t at = 0;
    const auto skipOneOf = [&](const char* characters)
    {
        const bool is = at < text.size() && std::strchr(characters, text[at]) && text[at] != '\0';
        at += is;
        return is;
    };
    const auto skipDigits = [&]
    {
        const std::size_t start = at;
        at = std::min(text.find_first_not_of("0123456789", at), text.size());
        return at > start;
    };
    skipOneOf("+-");
    const bool hasWhole = skipDigits();
    const bool hasFraction = skipOneOf(".") && skipDigits();
    if (!hasWhole && !hasFraction)
    {
        return 0.0;
    }
    if (skipOneOf("eE") && (skipOneOf("+-"), !skipDigits()))
    {
        return 0.0;
    }
    const double value = std::strtod(text.substr(0, at).c_str(), nullptr);
    return std::isinf(value) ? std::copysign(std::numeric_limits<double>::max(), value) : value;
}

std::string floatToken(TextGenerator& generator)
{
    std::string text = generator.oneOf({"", "+", "-"}) + generator.digits("0123456789", 20);
    if (generator.chance())
    {
        text += "." + generator.digits("0123456789", 20);
    }
    if (generator.chance())
    {
        text += generator.oneOf({"e", "E"}) + generator.oneOf({"", "+", "-"}) +
                generator.digits("0123456789", 4);
    }
    return text;
}

std::string floatText(TextGenerator& generator)
{
    static const std::vector<std::string> pieces = {
        "0", "1", "5", "9",   "12",  ".",  ".",  "e",    "E",    "-",   "+",  "_",
        " ", "x", ",", "inf", "nan", "0x", "p3", "e-32", "e308", "\0"s, "\n", "17976931348623157"};
    return generator.chance() ? floatToken(generator) : generator.mixture(pieces, 6);
}

// A pattern that differs between any two floats, zeros of different signs included.
std::uint64_t pattern(double value)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

} // namespace

TEST(TomlProperty, booleans)
{
    const std::vector<std::string> pieces = {"true", "true", "false", "false", "t", "tru", "T",
                                             "rue",  " ",    "\t",    "\n",    "_", "\0"s, "1"};
    TextGenerator generator;
    int trues = 0;
    for (int round = 0; round < rounds; ++round)
    {
        const std::string text = generator.mixture(pieces, 4);
        const bool value = withoutBlanks(text).substr(0, 4) == "true";
        ASSERT_EQ(parseBoolean(text), value) << "of " << testing::PrintToString(text);
        trues += value;
    }
    EXPECT_GT(trues, many);
    EXPECT_LT(trues, rounds - many);
}

TEST(TomlProperty, floats)
{
    TextGenerator generator;
    int zeros = 0;
    int largest = 0;
    for (int round = 0; round < rounds; ++round)
    {
        const std::string text = floatText(generator);
        const double expected = expectedFloat(text);
        ASSERT_EQ(pattern(parseFloat(text)), pattern(expected))
            << "of " << testing::PrintToString(text) << ": " << parseFloat(text) << " instead of "
            << expected;
        zeros += expected == 0.0;
        largest += std::abs(expected) == std::numeric_limits<double>::max();
    }
    EXPECT_GT(zeros, many);
    EXPECT_LT(zeros, rounds / 2);
    EXPECT_GT(largest, many);
}

TEST(TomlProperty, floatsThatHaveBeenPrinted)
{
    TextGenerator generator;
    for (int round = 0; round < rounds; ++round)
    {
        const std::uint64_t bits = generator.bits();
        double value = 0.0;
        std::memcpy(&value, &bits, sizeof value);
        if (std::isfinite(value))
        {
            const std::string text = printed("%.16e", value);
            ASSERT_EQ(pattern(parseFloat(text)), bits) << "of " << text;
        }
    }
}
