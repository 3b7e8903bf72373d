// The stand-in's formatting into a string.
#include <gtest/gtest.h>

#include <vorn/utils/format.h>

using vorn::utils::format;

TEST(PlatformFormat, fillsInTheArguments)
{
    EXPECT_EQ(format("plain"), "plain");
    EXPECT_EQ(format("%s", ""), "");
    EXPECT_EQ(format("%d %s %c %.3f %x %%", -1, "text", 'c', 0.5, 255u), "-1 text c 0.500 ff %");
    EXPECT_EQ(format("%5d|%-5d|%05d", 42, 42, 42), "   42|42   |00042");
    EXPECT_EQ(format("%s", "%s%n"), "%s%n");
    EXPECT_EQ(format("%s", "\xc3\xa9\n"), "\xc3\xa9\n");
}

TEST(PlatformFormat, keepsNulCharacters)
{
    EXPECT_EQ(format("a%cb", '\0'), std::string("a\0b", 3));
}

TEST(PlatformFormat, keepsTextsOfAnyLength)
{
    for (const std::size_t length : {1ul, 15ul, 16ul, 255ul, 256ul, 4096ul, 1'000'000ul})
    {
        const std::string text(length, 'x');
        EXPECT_TRUE(format("<%s>", text.c_str()) == "<" + text + ">") << length;
    }
}

TEST(PlatformFormat, isEmptyWhenTheFormatCannotBeUsed)
{
    // The C locale has no bytes for this character.
    EXPECT_EQ(format("text %ls", L"\x20ac"), "");
}
