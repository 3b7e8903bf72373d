// That no locale of the process changes a value.
#include <gtest/gtest.h>
#include <vorn/parsers/toml_values.h>

#include <locale>
#include <string>

#include "support/global_locale.h"

using namespace vorn::parsers::toml;

namespace
{

// Decimal commas, groups of digits, and other names for true and false.
class Other : public std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
    std::string do_truename() const override { return "wahr"; }
    std::string do_falsename() const override { return "falsch"; }
};

void expectValues()
{
    EXPECT_EQ(floatValue("3.5"), 3.5);
    EXPECT_EQ(floatValue("3,5"), std::nullopt);
    EXPECT_EQ(floatValue("1_000.25"), 1000.25);
    EXPECT_EQ(floatValue("1e400"), std::nullopt);
    EXPECT_EQ(floatValue("1e-400"), 0.0);
    EXPECT_EQ(integerValue("1000000"), 1000000);
    EXPECT_EQ(integerValue("1.000"), std::nullopt);
    EXPECT_TRUE(booleanValue("true"));
    EXPECT_FALSE(booleanValue("wahr"));
    EXPECT_EQ(stringValue("\"\\u00e9\xE9\""), "\xC3\xA9\xE9");
    EXPECT_EQ(dateTimeValue("07:32:00.5"), (DateTime{std::nullopt, Time{7, 32, 0, 500000000}, {}}));
}

} // namespace

TEST(ValuesLocale, DoesNotMatter)
{
    expectValues();
    const test::GlobalLocale current(std::locale(std::locale::classic(), new Other));
    expectValues();
}

TEST(ValuesLocale, OfTheCLibraryDoesNotMatter)
{
    const test::GlobalLocale current(test::germanLocale());
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    expectValues();
}
