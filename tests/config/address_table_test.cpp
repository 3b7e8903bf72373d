#include "config/address_table.h"

#include "support/text_generator.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <vector>

namespace
{

using vorn::parsers::toml::config::AddressTable;

constexpr std::uint32_t none = 0xffffffff;

} // namespace

TEST(AddressTable, isEmptyAtFirst)
{
    AddressTable table;
    const int here = 0;
    EXPECT_EQ(table.find(&here, none), none);
    table.erase(&here);
    EXPECT_EQ(table.find(&here, 5), 5U);
}

TEST(AddressTable, keepsTheLastNumberOfAnAddress)
{
    AddressTable table;
    const int here = 0;
    table.insert(&here, 1);
    table.insert(&here, 2);
    EXPECT_EQ(table.find(&here, none), 2U);
    table.erase(&here);
    EXPECT_EQ(table.find(&here, none), none);
}

// Places of erased addresses do not hide those after them.
TEST(AddressTable, isLikeAMap)
{
    AddressTable table;
    std::map<const void*, std::uint32_t> map;
    test::TextGenerator random;
    const std::vector<char> bytes(3000);
    for (std::uint32_t number = 0; number < 20000; ++number)
    {
        const void* const address = &bytes[random.below(bytes.size())];
        if (random.below(3) != 0)
        {
            table.insert(address, number);
            map[address] = number;
        }
        else
        {
            table.erase(address);
            map.erase(address);
        }
        const void* const other = &bytes[random.below(bytes.size())];
        const auto found = map.find(other);
        ASSERT_EQ(table.find(other, none), found == map.end() ? none : found->second);
    }
}
