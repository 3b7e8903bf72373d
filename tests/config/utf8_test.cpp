#include "config/utf8.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace
{

using namespace vorn::parsers::toml::config;

constexpr std::uint32_t endOfInput = 0xFFFFFFFF;

} // namespace

TEST(Utf8, knowsAscii)
{
    EXPECT_TRUE(isAscii('\0'));
    EXPECT_TRUE(isAscii('\x7f'));
    EXPECT_FALSE(isAscii('\x80'));
    EXPECT_FALSE(isAscii('\xff'));
}

TEST(Utf8, findsTheByteOrderMark)
{
    EXPECT_EQ(byteOrderMarkLength("\xEF\xBB\xBF"), 3U);
    EXPECT_EQ(byteOrderMarkLength("\xEF\xBB\xBF"
                                  "a"),
              3U);
    EXPECT_EQ(byteOrderMarkLength("a\xEF\xBB\xBF"), 0U);
    EXPECT_EQ(byteOrderMarkLength("\xEF\xBB"), 0U);
    EXPECT_EQ(byteOrderMarkLength(""), 0U);
}

TEST(Utf8, hasCharactersOfOneToFourBytes)
{
    for (const std::string_view text :
         {"a", "\x7f", "\xc2\x80", "\xdf\xbf", "\xe0\xa0\x80", "\xe1\x80\x80", "\xed\x9f\xbf",
          "\xee\x80\x80", "\xef\xbf\xbf", "\xf0\x90\x80\x80", "\xf1\x80\x80\x80",
          "\xf4\x8f\xbf\xbf"})
    {
        const std::string within = 'a' + std::string(text) + "\x80";
        EXPECT_EQ(characterLength(text, 0), text.size()) << text;
        EXPECT_EQ(characterLength(within, 1), text.size()) << text;
        // Cut, or with another byte in it, it is none.
        for (std::size_t at = 1; at < text.size(); ++at)
        {
            std::string broken(text);
            broken[at] = 'a';
            EXPECT_EQ(characterLength(broken, 0), 1U) << broken;
            broken[at] = '\xc0';
            EXPECT_EQ(characterLength(broken, 0), 1U) << broken;
            EXPECT_EQ(characterLength(text.substr(0, at), 0), 1U) << text;
        }
    }
}

TEST(Utf8, hasNoOverlongFormsSurrogatesAndCharactersBeyondTheLast)
{
    for (const char* const text :
         {"\x80", "\xbf\x80", "\xc0\x80", "\xc1\xbf", "\xe0\x80\x80", "\xe0\x9f\xbf",
          "\xed\xa0\x80", "\xed\xbf\xbf", "\xf0\x80\x80\x80", "\xf0\x8f\xbf\xbf",
          "\xf4\x90\x80\x80", "\xf5\x80\x80\x80", "\xf8\x88\x80\x80\x80",
          "\xfc\x84\x80\x80\x80\x80", "\xff\x80\x80\x80\x80\x80"})
    {
        EXPECT_EQ(characterLength(text, 0), 1U) << text;
    }
}

TEST(Utf8, readsCharactersLikeTheParser)
{
    const auto expect = [](std::string_view text, std::uint32_t code, std::size_t length)
    {
        const ReadCharacter character = readCharacter(text, 0);
        EXPECT_EQ(character.code, code) << text;
        EXPECT_EQ(character.length, length) << text;
    };
    expect("a\x80", 'a', 1);
    expect("\xc3\xa9z", 0xe9, 2);
    expect("\xe2\x82\xac", 0x20ac, 3);
    expect("\xf0\x9f\x98\x80z", 0x1f600, 4);
    expect("\x80z", 0x80, 1);
    // Malformed bytes may be a line feed, and longer forms are read, too.
    expect("\xc0\x8a", '\n', 2);
    expect("\xf8\x88\x80\x80\x80z", 0x200000, 5);
    expect("\xfc\x84\x80\x80\x80\x80z", 0x4000000, 6);
    // What ends within one is read as the end.
    expect("\xc3", endOfInput, 1);
    expect("\xf0\x9f\x98", endOfInput, 3);
    EXPECT_EQ(readCharacter("ab\xe2\x82", 2).length, 2U);
}
