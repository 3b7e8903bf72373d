// Characters as findings show them.
#include "diagnosis/characters.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <string>

#include "support/utf8.h"

using namespace vorn::parsers::toml::diagnosis;

namespace
{

// With the number of columns.
std::string shownOf(const std::string& text)
{
    const ShownCharacter result = shown(text, characterAt(text, 0), 0);
    return result.text + ' ' + std::to_string(result.columns);
}

std::string shownOf(std::uint32_t code)
{
    return shownOf(test::utf8(code));
}

} // namespace

TEST(Characters, areShownAsTheyAre)
{
    EXPECT_EQ(shownOf("a"), "a 1");
    EXPECT_EQ(shownOf("~"), "~ 1");
    EXPECT_EQ(shownOf(0xE9), "\xC3\xA9 1");
    EXPECT_EQ(shownOf(0x4E00), "\xE4\xB8\x80 2");
    EXPECT_EQ(shownOf(0x1F600), "\xF0\x9F\x98\x80 2");
    EXPECT_EQ(shownOf(0x300), "\xCC\x80 0");
}

TEST(Characters, areShownAsEscapesIfTheyAreControlCharactersOrBytes)
{
    EXPECT_EQ(shownOf("\t"), "     4");
    EXPECT_EQ(shownOf(std::string(1, '\0')), "\\x00 4");
    EXPECT_EQ(shownOf("\x1F"), "\\x1F 4");
    EXPECT_EQ(shownOf("\x7F"), "\\x7F 4");
    EXPECT_EQ(shownOf("\xFF"), "\\xFF 4");
    EXPECT_EQ(shownOf("\xC3("), "\\xC3 4");
    EXPECT_EQ(shownOf(0x85), "\\u0085 6");
}

TEST(Characters, areShownAsEscapesIfTheyAreNotSeen)
{
    // Each first and last one of those in a row.
    for (const std::uint32_t code :
         {0xADU, 0x61CU, 0x200BU, 0x200FU, 0x2028U, 0x2029U, 0x202AU, 0x202EU, 0x2060U, 0x206FU,
          0xFEFFU, 0xFFFFU, 0xE0001U, 0xE007FU})
    {
        char escape[16] = {};
        std::snprintf(escape, sizeof(escape), code > 0xFFFF ? "\\U%08X 10" : "\\u%04X 6", code);
        EXPECT_EQ(shownOf(code), escape);
    }
}

TEST(Characters, nextToThoseThatAreNotSeenAreShown)
{
    for (const std::uint32_t code : {0xAEU, 0x61BU, 0x2010U, 0x2027U, 0x202FU, 0x205FU, 0x2070U,
                                     0xFE70U, 0xFF01U, 0x1F600U, 0xE0100U})
    {
        const std::string text = test::utf8(code);
        EXPECT_EQ(shownOf(code).rfind(code < 0xE0000 ? text : "\\U000E0100", 0), 0U) << code;
    }
}

TEST(Characters, beginBeforeTheirOtherBytes)
{
    const std::string text = "a\xE4\xB8\x80\x80";
    EXPECT_EQ(characterBegin(text, 0), 0U);
    EXPECT_EQ(characterBegin(text, 1), 1U);
    EXPECT_EQ(characterBegin(text, 2), 1U);
    EXPECT_EQ(characterBegin(text, 3), 1U);
    EXPECT_EQ(characterBegin(text, 4), 4U);
    EXPECT_EQ(characterBegin("\x80\x80", 1), 1U);
    EXPECT_EQ(characterBegin("\x80\x80\x80\x80\x80", 4), 4U);
}

TEST(Characters, areNamedByTheirCode)
{
    EXPECT_EQ(codeName(0), "U+0000");
    EXPECT_EQ(codeName(0xFEFF), "U+FEFF");
    EXPECT_EQ(codeName(0x1F600), "U+1F600");
}
