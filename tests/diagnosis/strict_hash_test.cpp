// The numbers of names.
#include "diagnosis/strict_hash.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using vorn::parsers::toml::diagnosis::StrictHash;

TEST(StrictHash, isTheSameForTheSame)
{
    EXPECT_EQ(StrictHash()(7, "name"), StrictHash()(7, std::string("name")));
}

TEST(StrictHash, tellsTablesNamesAndLengthsApart)
{
    const StrictHash hash;
    std::set<std::uint32_t> seen;
    std::size_t count = 0;
    for (std::uint32_t table = 0; table < 20; ++table)
    {
        std::string name;
        for (std::size_t length = 0; length < 50; ++length)
        {
            // Of one byte each, zeros at the end among them.
            for (const char last : {'\0', 'a', '\x80', '\xFF'})
            {
                seen.insert(hash(table, name + last));
                ++count;
            }
            name += '\0';
        }
    }
    // Of so few numbers hardly two are the same by chance.
    EXPECT_GT(seen.size() + 3, count);
}

TEST(StrictHash, usesAllBits)
{
    const StrictHash hash;
    std::uint32_t set = 0;
    std::uint32_t unset = 0;
    std::set<std::uint32_t> low;
    for (int number = 0; number < 1000; ++number)
    {
        const std::uint32_t value = hash(1, "key" + std::to_string(number));
        set |= value;
        unset |= ~value;
        low.insert(value & 0xFF);
    }
    EXPECT_EQ(set, 0xFFFFFFFFU);
    EXPECT_EQ(unset, 0xFFFFFFFFU);
    EXPECT_GT(low.size(), 200U);
}
