#include <gtest/gtest.h>

#include "grammar/runtime_string.h"

#include <string>

using vorn::parsers::toml::characters;

TEST(RuntimeString, hasCharactersThatAreNeverNull)
{
    EXPECT_STREQ(characters(nullptr), "");
    ANTLR3_STRING string = {};
    EXPECT_STREQ(characters(&string), "");
    std::string text = "a\xc3\xa9";
    string.chars = reinterpret_cast<pANTLR3_UINT8>(text.data());
    EXPECT_EQ(characters(&string), text.data());
}
