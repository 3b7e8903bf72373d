// Integers beyond 64 bits.
#include <gtest/gtest.h>

#include <string>

#include "strict_mistakes_of.h"

using namespace test;

namespace
{

bool isOutOfRange(const std::string& integer)
{
    const std::string text = "a = [1, " + integer + "]\n";
    EXPECT_TRUE(isRead(text)) << integer;
    const std::string found = shown(text, strictMistakes(text));
    EXPECT_TRUE(found.empty() || found == "integer-out-of-range at 8 " + integer + '\n') << found;
    return !found.empty();
}

} // namespace

TEST(StrictNumbers, integersOf64Bits)
{
    for (const std::string integer :
         {"0", "+0", "-0", "9223372036854775807", "+9223372036854775807", "-9223372036854775808",
          "9_223_372_036_854_775_807", "0x7fffFFFFffffFFFF", "0x0_0000_7fff_ffff_ffff_ffff",
          "0o777777777777777777777", "0o0000000000777777777777777777777", "0b0", "0x0"})
    {
        EXPECT_FALSE(isOutOfRange(integer)) << integer;
    }
    EXPECT_FALSE(isOutOfRange("0b" + std::string(1000, '0') + std::string(63, '1')));
}

TEST(StrictNumbers, integersOfMore)
{
    for (const std::string integer :
         {"9223372036854775808", "+9223372036854775808", "-9223372036854775809",
          "9_223_372_036_854_775_808", "18446744073709551615", "18446744073709551616",
          "-18446744073709551616", "36893488147419103232", "100000000000000000000",
          "0x8000000000000000", "0xFFFFFFFFFFFFFFFF", "0x10000000000000000", "0x1_0000000000000000",
          "0o1000000000000000000000", "0o2000000000000000000000"})
    {
        EXPECT_TRUE(isOutOfRange(integer)) << integer;
    }
    EXPECT_TRUE(isOutOfRange("0b1" + std::string(63, '0')));
    EXPECT_TRUE(isOutOfRange(std::string(100000, '9')));
}

TEST(StrictNumbers, otherNumbersMayBeOfAnySize)
{
    expectStrict({{"a = [1e999, -9223372036854775809.0, inf, nan]\n", ""},
                  {"a = '9223372036854775808'\n", ""},
                  {"99999999999999999999a = 1\n", ""}});
}
