// Which texts of booleans and numbers take the short way, and that it is the stated way's value.
#include <gtest/gtest.h>

#include "plain_number.h"

#include <vorn/parsers/toml.h>

#include <atomic>
#include <cerrno>
#include <cfenv>
#include <cmath>
#include <limits>
#include <locale>
#include <string>
#include <thread>
#include <vector>

#include "stated_conversions.h"
#include "support/global_locale.h"

using namespace vorn::parsers::toml;
using test::GlobalLocale;

namespace
{

void expectPlainInteger(const std::string& text, long long expected)
{
    SCOPED_TRACE(text);
    long long value = 0;
    EXPECT_TRUE(readPlainInteger(text, value));
    EXPECT_EQ(value, expected);
    EXPECT_EQ(stated::parseInteger(std::string(text)), expected);
}

// Whether the two are the same, zeros of different signs being different.
bool isSame(double one, double other)
{
    return one == other && std::signbit(one) == std::signbit(other);
}

void expectPlainFloat(const std::string& text, double expected)
{
    SCOPED_TRACE(text);
    double value = 1;
    EXPECT_TRUE(readPlainFloat(text, value));
    EXPECT_TRUE(isSame(value, expected)) << value;
    EXPECT_TRUE(isSame(stated::parseFloat(std::string(text)), expected));
}

bool isPlainBoolean(const std::string& text)
{
    bool value = false;
    return readPlainBoolean(text, value);
}

bool isPlainInteger(const std::string& text)
{
    long long value = 0;
    return readPlainInteger(text, value);
}

bool isPlainFloat(const std::string& text)
{
    double value = 0;
    return readPlainFloat(text, value);
}

// Decimal commas, groups of digits and names of its own.
class Punctuation : public std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
    std::string do_truename() const override { return "ja"; }
    std::string do_falsename() const override { return "nein"; }
};

std::locale ownPunctuation()
{
    return std::locale(std::locale::classic(), new Punctuation);
}

// The way of rounding while it lives.
class Rounding
{
public:
    explicit Rounding(int way) { std::fesetround(way); }
    Rounding(const Rounding&) = delete;
    Rounding& operator=(const Rounding&) = delete;
    ~Rounding() { std::fesetround(FE_TONEAREST); }
};

} // namespace

TEST(PlainNumber, booleansAreTheTwoWords)
{
    bool value = false;
    EXPECT_TRUE(readPlainBoolean("true", value));
    EXPECT_TRUE(value);
    EXPECT_TRUE(readPlainBoolean("false", value));
    EXPECT_FALSE(value);
    for (const char* text : {"", " true", "true ", "True", "truefalse", "tru", "1", "ja"})
    {
        EXPECT_FALSE(isPlainBoolean(text)) << text;
    }
}

TEST(PlainNumber, integersAreThoseOfTheGrammar)
{
    expectPlainInteger("0", 0);
    expectPlainInteger("-0", 0);
    expectPlainInteger("+42", 42);
    expectPlainInteger("-1_000", -1000);
    expectPlainInteger("9223372036854775807", std::numeric_limits<long long>::max());
    expectPlainInteger("-9223372036854775807", -std::numeric_limits<long long>::max());
    expectPlainInteger("0xDEAD_beef", 3735928559);
    expectPlainInteger("0x0123456789abcdef", 0x0123456789abcdef);
    expectPlainInteger("0x7fff_ffff_ffff_ffff", std::numeric_limits<long long>::max());
    expectPlainInteger("0o755", 493);
    expectPlainInteger("0o777_777_777_777_777_777_777", std::numeric_limits<long long>::max());
}

// The stated way takes less time for them.
TEST(PlainNumber, integersInBinaryAreNotPlain)
{
    for (const char* text : {"0b0", "0b1101_0101", "0b11111111111111111111111111111111"})
    {
        EXPECT_FALSE(isPlainInteger(text)) << text;
    }
}

TEST(PlainNumber, integersNearALimitAndOtherTextsAreNotPlain)
{
    for (const char* text : {"9223372036854775808",
                             "-9223372036854775808",
                             "18446744073709551616",
                             "100000000000000000000",
                             "0x8000000000000000",
                             "0x00000000000000001",
                             "0o1000000000000000000000",
                             "0o0000000000000000000001",
                             "",
                             " 1",
                             "1 ",
                             "01",
                             "1__0",
                             "_1",
                             "1_",
                             "+",
                             "-",
                             "0x",
                             "0b2",
                             "0o8",
                             "-0x1",
                             "0X1",
                             "1.0",
                             "1,000"})
    {
        EXPECT_FALSE(isPlainInteger(text)) << text;
    }
}

TEST(PlainNumber, floatsAreThoseOfTheGrammarAndDecimalIntegers)
{
    expectPlainFloat("0.0", 0.0);
    expectPlainFloat("-0.0", -0.0);
    expectPlainFloat("-0", -0.0);
    expectPlainFloat("0e400", 0.0);
    expectPlainFloat("+3.5", 3.5);
    expectPlainFloat("-1_000.5", -1000.5);
    expectPlainFloat("1_0.0_1e+1_0", 10.01e10);
    expectPlainFloat("6.626e-34", 6.626e-34);
    expectPlainFloat("1.7976931348623157e308", std::numeric_limits<double>::max());
    expectPlainFloat("-1.7976931348623158e308", -std::numeric_limits<double>::max());
    expectPlainFloat("2.2250738585072019e-308", 2.2250738585072019e-308);
    expectPlainFloat("9007199254740993", 9007199254740992.0);
    expectPlainFloat("9007199254740993.00000000000000000000000000000000001", 9007199254740994.0);
    expectPlainFloat("42", 42.0);
}

TEST(PlainNumber, floatsNearALimitAndOtherTextsAreNotPlain)
{
    for (const char* text : {"1.7976931348623159e308",
                             "1e400",
                             "-1e400",
                             "2.2250738585072014e-308",
                             "1e-310",
                             "4.9e-324",
                             "1e-400",
                             "1e99999999999999999999",
                             "inf",
                             "-inf",
                             "+nan",
                             "",
                             " 1.0",
                             "1.0 ",
                             "1.",
                             ".5",
                             "1e",
                             "01.0",
                             "1__0.0",
                             "1.5.0",
                             "0x10",
                             "1,5",
                             "1_0.000000000000000000000000000000000000000000000000000"})
    {
        EXPECT_FALSE(isPlainFloat(text)) << text;
    }
}

TEST(PlainNumber, floatsSetErrnoWhereTheStatedWayDoes)
{
    for (const char* text :
         {"3.5", "0.1", "0.0", "1e400", "1e-400", "1e-310", "2.2250738585072014e-308"})
    {
        errno = 0;
        const double value = parseFloat(text);
        const int error = errno;
        errno = 0;
        EXPECT_TRUE(isSame(stated::parseFloat(std::string(text)), value)) << text;
        EXPECT_EQ(errno, error) << text;
    }
}

TEST(PlainNumber, noTextIsPlainInAnotherLocale)
{
    {
        const GlobalLocale locale(ownPunctuation());
        EXPECT_FALSE(isPlainBoolean("true"));
        EXPECT_FALSE(isPlainInteger("1"));
        EXPECT_FALSE(isPlainFloat("3.5"));
        EXPECT_FALSE(parseBoolean("true"));
        EXPECT_TRUE(parseBoolean("ja"));
        EXPECT_EQ(parseInteger("1.000"), 1000);
        EXPECT_EQ(parseFloat("3.5"), 35.0);
    }
    EXPECT_TRUE(isPlainBoolean("true"));
    EXPECT_TRUE(isPlainInteger("1"));
    EXPECT_EQ(parseFloat("3.5"), 3.5);
}

TEST(PlainNumber, theLocaleMayBeSetOnAnotherThread)
{
    std::thread([] { std::locale::global(ownPunctuation()); }).join();
    EXPECT_EQ(parseFloat("3.5"), 35.0);
    EXPECT_FALSE(parseBoolean("true"));
    std::thread([] { std::locale::global(std::locale::classic()); }).join();
    EXPECT_EQ(parseFloat("3.5"), 3.5);
    EXPECT_TRUE(parseBoolean("true"));
}

TEST(PlainNumber, theLocaleMayChangeOnAnotherThreadMeanwhile)
{
    std::atomic<bool> isOver{false};
    std::thread other(
        [&isOver]
        {
            const std::locale own = ownPunctuation();
            while (!isOver)
            {
                std::locale::global(own);
                std::locale::global(std::locale::classic());
            }
        });
    int classic = 0;
    for (int round = 0; round < 20'000; ++round)
    {
        const double value = parseFloat("3.5");
        EXPECT_TRUE(value == 3.5 || value == 35.0) << value;
        classic += value == 3.5 ? 1 : 0;
        const long long integer = parseInteger("1_000");
        EXPECT_EQ(integer, 1000);
    }
    isOver = true;
    other.join();
    EXPECT_GT(classic, 0);
    EXPECT_EQ(parseFloat("3.5"), 3.5);
}

TEST(PlainNumber, floatsAreRoundedAsTheProcessRounds)
{
    constexpr double nearest = 0.1;
    const double below = std::nextafter(nearest, 0.0); // 0.1 itself is between these two
    {
        const Rounding down(FE_DOWNWARD);
        EXPECT_FALSE(isPlainFloat("0.1"));
        EXPECT_EQ(parseFloat("0.1"), below);
    }
    {
        const Rounding up(FE_UPWARD);
        EXPECT_EQ(parseFloat("-0.1"), -below);
        EXPECT_EQ(parseFloat("0.1"), nearest);
    }
    const Rounding zero(FE_TOWARDZERO);
    EXPECT_FALSE(isPlainFloat("0.1"));
    EXPECT_EQ(parseFloat("0.1"), below);
}
