#include "config/suggestion.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace
{

using vorn::parsers::toml::config::didYouMean;

const std::vector<std::string_view> names{"port", "title", "address", "keep-alive"};

} // namespace

TEST(Suggestion, isTheNearestName)
{
    EXPECT_EQ(didYouMean("prt", names), "did you mean port?");
    EXPECT_EQ(didYouMean("pots", {"port", "pots-and-pans", "spots"}), "did you mean spots?");
    EXPECT_EQ(didYouMean("adress", names), "did you mean address?");
    EXPECT_EQ(didYouMean("Keep_Alive", names), "did you mean keep-alive?");
}

TEST(Suggestion, countsSwappedLettersOnce)
{
    EXPECT_EQ(didYouMean("prot", names), "did you mean port?");
    EXPECT_EQ(didYouMean("tilte", names), "did you mean title?");
}

TEST(Suggestion, isNothingIfNoNameIsNear)
{
    EXPECT_EQ(didYouMean("site", names), "");
    EXPECT_EQ(didYouMean("x", {"y"}), "");
    EXPECT_EQ(didYouMean("", names), "");
    EXPECT_EQ(didYouMean("port", {}), "");
}

TEST(Suggestion, isNotLookedForInLongNames)
{
    const std::string name(41, 'a');
    EXPECT_EQ(didYouMean(name, {name}), "");
    EXPECT_EQ(didYouMean(name.substr(1), {name}), "");
    EXPECT_EQ(didYouMean(name.substr(1), {name.substr(1)}), "did you mean " + name.substr(1) + "?");
}
