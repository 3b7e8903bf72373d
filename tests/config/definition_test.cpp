#include "config/definition.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace
{

using vorn::parsers::toml::config::Definition;
using vorn::parsers::toml::config::How;

// Whether the last one of these ways is perhaps one too many.
bool isAgain(std::initializer_list<How> ways)
{
    Definition definition;
    bool result = false;
    for (const How how : ways)
    {
        result = definition.add(how);
    }
    return result;
}

} // namespace

TEST(Definition, letsEachWayStandAlone)
{
    for (const How how :
         {How::value, How::dottedKey, How::header, How::headerOfMore, How::arrayHeader})
    {
        EXPECT_FALSE(isAgain({how}));
    }
}

TEST(Definition, letsThroughWhatAddsToATable)
{
    EXPECT_FALSE(isAgain({How::dottedKey, How::dottedKey}));
    EXPECT_FALSE(isAgain({How::headerOfMore, How::headerOfMore}));
    EXPECT_FALSE(isAgain({How::headerOfMore, How::header}));
    EXPECT_FALSE(isAgain({How::header, How::headerOfMore}));
    EXPECT_FALSE(isAgain({How::dottedKey, How::headerOfMore}));
    EXPECT_FALSE(isAgain({How::arrayHeader, How::headerOfMore, How::arrayHeader}));
}

TEST(Definition, suspectsWhatMayBeForbidden)
{
    EXPECT_TRUE(isAgain({How::value, How::value}));
    EXPECT_TRUE(isAgain({How::header, How::header}));
    EXPECT_TRUE(isAgain({How::dottedKey, How::header}));
    EXPECT_TRUE(isAgain({How::header, How::dottedKey}));
    EXPECT_TRUE(isAgain({How::value, How::headerOfMore}));
    EXPECT_TRUE(isAgain({How::headerOfMore, How::arrayHeader}));
    EXPECT_TRUE(isAgain({How::arrayHeader, How::header}));
    EXPECT_TRUE(isAgain({How::dottedKey, How::value}));
}

TEST(Definition, beginsAnewWithAnotherDocument)
{
    Definition definition;
    definition.add(How::value);
    definition.clear();
    EXPECT_FALSE(definition.add(How::value));
}
