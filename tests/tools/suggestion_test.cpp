// suggestionFor(): the nearest name, if it is near.
#include "suggestion.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

TEST(Suggestion, IsTheNearestName)
{
    EXPECT_EQ(tool::suggestionFor("tokenss", {"token", "tokens", "tokened"}), "tokens");
    EXPECT_EQ(tool::suggestionFor("check", {"chick", "check"}), "check");
    // The first of two that are as near.
    EXPECT_EQ(tool::suggestionFor("cat", {"car", "cut"}), "car");
}

TEST(Suggestion, CountsWhatIsInsertedRemovedAndReplaced)
{
    EXPECT_EQ(tool::suggestionFor("vlues", {"values"}), "values");
    EXPECT_EQ(tool::suggestionFor("vvalues", {"values"}), "values");
    EXPECT_EQ(tool::suggestionFor("valuex", {"values"}), "values");
    EXPECT_EQ(tool::suggestionFor("vaulse", {"values"}), "");
    EXPECT_EQ(tool::suggestionFor("vaules", {"values"}), "values");
}

TEST(Suggestion, IsLeftOutIfNothingIsNear)
{
    EXPECT_EQ(tool::suggestionFor("a", {"check", "ab"}), "ab");
    EXPECT_EQ(tool::suggestionFor("xyz", {"xy", "tree"}), "xy");
    EXPECT_EQ(tool::suggestionFor("abc", {"ade", "tree"}), "");
    EXPECT_EQ(tool::suggestionFor("", {"check"}), "");
    EXPECT_EQ(tool::suggestionFor("check", {}), "");
    EXPECT_EQ(tool::suggestionFor(std::string(41, 'x'), {std::string(41, 'x')}), "");
}

} // namespace
