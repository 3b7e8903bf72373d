#include "config/entry_fault.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <vector>

namespace
{

namespace toml = vorn::parsers::toml;
namespace config = vorn::parsers::toml::config;

enum class Color
{
    red,
    green,
};
enum class Other
{
    one,
};

template <typename Member, typename Argument>
config::Entry entryOf(const Argument& argument)
{
    config::Entry entry;
    entry.path = "a";
    entry.type = &config::typeOf<Member>;
    config::apply<Member>(entry, argument);
    return entry;
}

template <typename Member, typename Argument>
std::string faultOf(const Argument& argument)
{
    return config::faultOf(entryOf<Member>(argument));
}

} // namespace

TEST(EntryFault, isAnEmptyRange)
{
    EXPECT_EQ(faultOf<int>(toml::range(2, 1)), "the range of a is empty");
    EXPECT_EQ(faultOf<int>(toml::range(1, 1)), "");
    EXPECT_EQ(faultOf<double>(toml::range(1.0, 0.5)), "the range of a is empty");
    EXPECT_EQ(faultOf<double>(toml::range(0.0, std::numeric_limits<double>::quiet_NaN())),
              "the range of a is empty");
    EXPECT_EQ(faultOf<std::vector<double>>(toml::range(0.5, 1.0)), "");
}

TEST(EntryFault, isInChoices)
{
    EXPECT_EQ(faultOf<Color>(toml::oneOf({{"red", Color::red}, {"green", Color::green}})), "");
    EXPECT_EQ(faultOf<std::vector<Color>>(toml::oneOf({})), "a has no choices");
    EXPECT_EQ(faultOf<Color>(toml::oneOf({{"one", Other::one}})),
              "the choices of a are of another type");
    EXPECT_EQ(faultOf<Color>(toml::oneOf({{"red", Color::red}, {"red", Color::green}})),
              "a has the choice red twice");
}

// Two names of a value are two choices.
TEST(EntryFault, isNotInNames)
{
    EXPECT_EQ(faultOf<Color>(toml::oneOf({{"red", Color::red}, {"rot", Color::red}})), "");
}

TEST(Range, isNotWiderThanItsMember)
{
    config::Entry entry = entryOf<std::vector<std::int8_t>>(toml::range(-1000, 1000));
    config::narrowRange(entry);
    EXPECT_EQ(entry.range->first.integer, -128);
    EXPECT_EQ(entry.range->second.integer, 127);
    entry = entryOf<double>(toml::range(-1e300, 1e300));
    config::narrowRange(entry);
    EXPECT_EQ(entry.range->first.floating, -1e300);
}

TEST(Range, isOfIntegersOfToml)
{
    const auto entry = entryOf<std::uint64_t>(toml::range(1, std::uint64_t{0} - 1));
    EXPECT_EQ(entry.range->first.integer, 1);
    EXPECT_EQ(entry.range->second.integer, std::numeric_limits<std::int64_t>::max());
}
