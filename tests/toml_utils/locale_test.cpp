// Values in a global locale other than the classic one.
#include <gtest/gtest.h>

#include <clocale>
#include <limits>
#include <locale>
#include <stdexcept>
#include <string>
#include <vector>

#include <vorn/parsers/toml.h>

#include "support/global_locale.h"

using namespace vorn::parsers::toml;
using test::germanLocale;
using test::GlobalLocale;

namespace
{

constexpr double largestFloat = std::numeric_limits<double>::max();
constexpr long long largestInteger = std::numeric_limits<long long>::max();

void expectBooleans(const std::vector<std::pair<std::string, bool>>& cases)
{
    for (const auto& [text, value] : cases)
    {
        EXPECT_EQ(parseBoolean(text), value) << testing::PrintToString(text);
    }
}

void expectIntegers(const std::vector<std::pair<std::string, long long>>& cases)
{
    for (const auto& [text, value] : cases)
    {
        EXPECT_EQ(parseInteger(text), value) << testing::PrintToString(text);
    }
}

void expectFloats(const std::vector<std::pair<std::string, double>>& cases)
{
    for (const auto& [text, value] : cases)
    {
        EXPECT_EQ(parseFloat(text), value) << testing::PrintToString(text);
    }
}

void expectClassicValues()
{
    expectBooleans({{"true", true}, {"false", false}, {"ja", false}});
    expectIntegers({{"1.000", 1}, {"1,000", 1}, {"1_000", 1000}});
    expectFloats({{"3.5", 3.5}, {"3,5", 3.0}, {"1_000.5", 1000.5}});
}

// Every test ends with the classic locale in force again.
class TomlLocale : public testing::Test
{
protected:
    void SetUp() override { expectClassicValues(); }

    void TearDown() override
    {
        EXPECT_EQ(std::locale(), std::locale::classic());
        EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
        expectClassicValues();
    }
};

using Punctuation = std::numpunct<char>;

struct PunctuationNames
{
    std::string trueName;
    std::string falseName;
};

// The classic punctuation, with other names.
class NamedPunctuation : public Punctuation
{
public:
    explicit NamedPunctuation(PunctuationNames names) : names_(std::move(names)) {}

protected:
    std::string do_truename() const override { return names_.trueName; }
    std::string do_falsename() const override { return names_.falseName; }

private:
    PunctuationNames names_;
};

// The classic names, with other characters in numbers.
class NumberPunctuation : public Punctuation
{
public:
    NumberPunctuation(char decimalPoint, char separator, std::string grouping)
        : decimalPoint_(decimalPoint), separator_(separator), grouping_(std::move(grouping))
    {
    }

protected:
    char do_decimal_point() const override { return decimalPoint_; }
    char do_thousands_sep() const override { return separator_; }
    std::string do_grouping() const override { return grouping_; }

private:
    char decimalPoint_;
    char separator_;
    std::string grouping_;
};

// The classic locale with another punctuation, which the locale owns.
std::locale with(Punctuation* punctuation)
{
    return std::locale(std::locale::classic(), punctuation);
}

} // namespace

TEST_F(TomlLocale, germanHasDecimalCommasAndPointsBetweenThousands)
{
    const std::locale german = germanLocale();
    const auto& punctuation = std::use_facet<Punctuation>(german);
    EXPECT_EQ(punctuation.decimal_point(), ',');
    EXPECT_EQ(punctuation.thousands_sep(), '.');
    EXPECT_EQ(punctuation.grouping(), "\3\3");
}

TEST_F(TomlLocale, germanFloats)
{
    const GlobalLocale german(germanLocale());
    expectFloats({{"3,5", 3.5},
                  {"-3,5", -3.5},
                  {",5", 0.5},
                  {"1.000,5", 1000.5},
                  {"1.000.000,25e-1", 100000.025},
                  {"3,5,5", 3.5},
                  {"1,000.5", 1.0},
                  {"1e5", 1e5},
                  {"1e400", largestFloat},
                  {"inf", 0.0},
                  {"", 0.0}});
}

TEST_F(TomlLocale, germanTakesThePointsOfFloatsForDigitGrouping)
{
    const GlobalLocale german(germanLocale());
    expectFloats({{"3.5", 35.0},
                  {"-1.5", -15.0},
                  {"1_000.5", 10005.0},
                  {"1.00", 100.0},
                  {"1.2.3", 123.0},
                  {"1.5e3", 15000.0},
                  {"1.5e1.0", 150.0},
                  {"6.626e-34", 6626e-34},
                  {"1.", 1.0},
                  {".5", 0.0},
                  {"1..5", 0.0}});
}

TEST_F(TomlLocale, germanIntegers)
{
    const GlobalLocale german(germanLocale());
    expectIntegers({{"42", 42},
                    {"1_000", 1000},
                    {"1.000", 1000},
                    {"-1.000", -1000},
                    {"1.0", 10},
                    {"1.", 1},
                    {".1", 0},
                    {"1..0", 0},
                    {"1.000x", 1000},
                    {"1,5", 1},
                    {"0x1.f", 31},
                    {"0x1.000", 4096},
                    {"0o1.7", 15},
                    {"9.223.372.036.854.775.807", largestInteger},
                    {"9.223.372.036.854.775.808", largestInteger},
                    {"0xDEAD_beef", 3735928559},
                    {"", 0}});
}

TEST_F(TomlLocale, germanBinaryDigitsAreNotGrouped)
{
    const GlobalLocale german(germanLocale());
    expectIntegers({{"0b1101_0101", 213}, {"0b", 0}});
    EXPECT_THROW(parseInteger("0b1.000"), std::invalid_argument);
}

TEST_F(TomlLocale, germanHasNoNamesOfItsOwnForBooleans)
{
    const GlobalLocale german(germanLocale());
    expectBooleans({{"true", true}, {"false", false}, {"wahr", false}, {"ja", false}, {"", false}});
}

TEST_F(TomlLocale, germanStringsAreTheSame)
{
    const GlobalLocale german(germanLocale());
    EXPECT_EQ(unquote("'1000,5'"), "1000,5");
    EXPECT_EQ(unquote("1000.5.1000", "1000"), ".5.");
    EXPECT_EQ(enquote("1000.5", "1000"), "10001000.51000");
    EXPECT_EQ(processMultilineString("\"\"\"\n1000\\\n 5\"\"\""), "10005");
    EXPECT_EQ(processMultilineLiteralString("'''\n1000\\\n 5'''"), "1000\\\n 5");
}

TEST_F(TomlLocale, appliesFromTheNextCallOn)
{
    EXPECT_EQ(parseFloat("3.5"), 3.5);
    {
        const GlobalLocale german(germanLocale());
        EXPECT_EQ(parseFloat("3.5"), 35.0);
    }
    EXPECT_EQ(parseFloat("3.5"), 3.5);
}

TEST_F(TomlLocale, ofTheCLibraryAloneDoesNotApply)
{
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr) << "see LOCPATH";
    EXPECT_STREQ(std::localeconv()->decimal_point, ",");
    expectClassicValues();
    std::setlocale(LC_ALL, "C");
}

TEST_F(TomlLocale, withOtherNamesForBooleans)
{
    const GlobalLocale named(with(new NamedPunctuation({"ja", "nein"})));
    expectBooleans({{"ja", true},
                    {" ja", true},
                    {"jawohl", true},
                    {"nein", false},
                    {"j", false},
                    {"Ja", false},
                    {"true", false},
                    {"false", false},
                    {"1", false},
                    {"", false}});
    expectIntegers({{"1_000", 1000}, {"1.000", 1}});
    expectFloats({{"3.5", 3.5}});
}

TEST_F(TomlLocale, withNamesThatBeginAlike)
{
    const GlobalLocale named(with(new NamedPunctuation({"on", "off"})));
    expectBooleans({{"on", true}, {"off", false}, {"o", false}, {"of", false}, {"onoff", true}});
}

TEST_F(TomlLocale, withTheNamesExchanged)
{
    const GlobalLocale named(with(new NamedPunctuation({"false", "true"})));
    expectBooleans({{"false", true}, {"true", false}});
}

TEST_F(TomlLocale, withADecimalCommaOnly)
{
    const GlobalLocale comma(with(new NumberPunctuation(',', '.', "")));
    expectFloats({{"3.5", 3.0}, {"3,5", 3.5}, {"6.626e-34", 6.0}, {"1_000,5", 1000.5}});
    expectIntegers({{"1.000", 1}, {"1,000", 1}});
    expectBooleans({{"true", true}});
}

TEST_F(TomlLocale, withGroupingOnly)
{
    const GlobalLocale grouping(with(new NumberPunctuation('.', ',', "\3")));
    expectFloats({{"3.5", 3.5}, {"1,000.5", 1000.5}, {"1,0.5", 10.5}});
    expectIntegers({{"1,000", 1000}, {"1,0", 10}, {"1.000", 1}});
}

TEST_F(TomlLocale, withUnderscoresBetweenGroupsChangesNothing)
{
    const GlobalLocale underscores(with(new NumberPunctuation('.', '_', "\3")));
    expectFloats({{"1_000.5", 1000.5}, {"1_0.5", 10.5}, {"_1_", 1.0}});
    expectIntegers({{"1_000", 1000}, {"1_0", 10}, {"_1_", 1}, {"0xDEAD_beef", 3735928559}});
}
