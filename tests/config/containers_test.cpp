#include "config/containers.h"

#include "every_member.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace
{

using namespace vorn::parsers::toml::config;

// A configuration of which containers are opened.
class ContainersTest : public testing::Test
{
protected:
    ContainersTest() : root(open(rootSlot(), &table)) {}

    // The slot of a key of the root.
    Slot slotOf(const std::string& path)
    {
        Slot slot;
        slot.parent = root;
        slot.node = table.find(path);
        slot.entry = table.entryOf(slot.node);
        slot.type = slot.entry->type;
        slot.object = reinterpret_cast<char*>(&config) + slot.entry->offset;
        return slot;
    }
    // The slot of a table of that name.
    Slot slotIn(std::uint32_t map, const std::string& name)
    {
        const MapSlot found =
            containers[map].type->insert(containers[map].object, std::string(name));
        Slot slot;
        slot.parent = map;
        slot.key = found.key;
        slot.object = found.value;
        slot.type = containers[map].type->element;
        slot.entry = containers[map].slot.entry;
        return slot;
    }
    // The slot of an element of a list.
    Slot slotAt(std::uint32_t list, std::uint32_t index)
    {
        Slot slot;
        slot.parent = list;
        slot.index = index;
        slot.object = containers[list].type->append(containers[list].object, index);
        slot.type = containers[list].type->element;
        slot.entry = containers[list].slot.entry;
        return slot;
    }
    std::uint32_t open(const Slot& slot, const Table* opened = nullptr)
    {
        return containers.open(slot, *slot.type, slot.object, opened);
    }

    const Table& table = *test::everySchema().internals();
    const Table& window = *test::windowSchema().internals();
    test::EveryMember config;
    Containers containers;
    std::uint32_t root;

private:
    Slot rootSlot()
    {
        Slot slot;
        slot.type = &typeOf<test::EveryMember>;
        slot.object = &config;
        return slot;
    }
};

} // namespace

TEST_F(ContainersTest, areFoundAsLongAsTheyAreOpen)
{
    const Slot features = slotOf("features");
    EXPECT_EQ(containers.find(features), none);
    const std::uint32_t map = open(features);
    EXPECT_EQ(containers.find(features), map);
    EXPECT_EQ(containers.find(slotOf("palette")), none);
    EXPECT_TRUE(containers.isOpen(map));
    containers.close(map);
    EXPECT_EQ(containers.find(features), none);
    // That of the whole configuration has no parent to find it by.
    EXPECT_EQ(containers.find(containers[root].slot), none);
}

TEST_F(ContainersTest, areFoundInMapsByTheirNames)
{
    const std::uint32_t named = open(slotOf("named"));
    const std::uint32_t a = open(slotIn(named, "a"), &window);
    const std::uint32_t b = open(slotIn(named, "b"), &window);
    EXPECT_EQ(containers.find(slotIn(named, "a")), a);
    EXPECT_EQ(containers.find(slotIn(named, "b")), b);
    EXPECT_EQ(containers.find(slotIn(named, "c")), none);
    containers.close(a);
    EXPECT_EQ(containers.find(slotIn(named, "a")), none);
    EXPECT_EQ(containers.find(slotIn(named, "b")), b);
}

TEST_F(ContainersTest, areNotFoundInLists)
{
    const std::uint32_t list = open(slotOf("window"));
    const Slot element = slotAt(list, 0);
    open(element, &window);
    EXPECT_EQ(containers.find(element), none);
}

TEST_F(ContainersTest, areChainedWithTheLastOneFirst)
{
    const std::uint32_t first = open(slotOf("features"));
    const std::uint32_t second = open(slotOf("palette"));
    const std::uint32_t third = open(slotOf("named"));
    const auto chain = [this]
    {
        std::string numbers;
        for (std::uint32_t child = containers[root].firstChild; child != none;
             child = containers[child].next)
        {
            const std::uint32_t next = containers[child].next;
            EXPECT_TRUE(next == none || containers[next].previous == child);
            numbers += std::to_string(child) + ' ';
        }
        return numbers;
    };
    const auto numbers = [](std::uint32_t one, std::uint32_t other)
    { return std::to_string(one) + ' ' + std::to_string(other) + ' '; };
    EXPECT_EQ(chain(), std::to_string(third) + ' ' + numbers(second, first));
    containers.close(second);
    EXPECT_EQ(chain(), numbers(third, first));
    containers.close(third);
    EXPECT_EQ(chain(), std::to_string(first) + ' ');
    containers.close(first);
    EXPECT_EQ(chain(), "");
}

TEST_F(ContainersTest, areNumberedAgainAfterTheLastOneIsClosed)
{
    const std::uint32_t first = open(slotOf("features"));
    const std::uint32_t second = open(slotOf("palette"));
    containers.close(first);
    EXPECT_EQ(containers.size(), 3U);
    EXPECT_FALSE(containers.isOpen(first));
    containers.close(second);
    EXPECT_EQ(containers.size(), 1U);
    EXPECT_EQ(open(slotOf("named")), first);
    containers.close(first);
    containers.close(root);
    EXPECT_EQ(containers.size(), 0U);
}

TEST_F(ContainersTest, areDamagedWithAllThatTheyAreIn)
{
    const std::uint32_t named = open(slotOf("named"));
    const std::uint32_t a = open(slotIn(named, "a"), &window);
    const std::uint32_t b = open(slotIn(named, "b"), &window);
    containers.damage(a);
    EXPECT_TRUE(containers[a].isDamaged);
    EXPECT_FALSE(containers[b].isDamaged);
    EXPECT_TRUE(containers[named].isDamaged);
    EXPECT_TRUE(containers[root].isDamaged);
}

TEST_F(ContainersTest, forgetDefinitionsForAnotherDocument)
{
    const std::uint32_t named = open(slotOf("named"));
    const std::uint32_t a = open(slotIn(named, "a"), &window);
    Member& member = containers.member(root, slotOf("named").node);
    // As an element of a map it is defined by being opened.
    EXPECT_TRUE(containers[a].definition.add(How::value));
    EXPECT_FALSE(member.definition.add(How::value));
    EXPECT_TRUE(member.definition.add(How::value));
    containers.clearDefinitions();
    EXPECT_FALSE(containers[a].definition.add(How::value));
    EXPECT_FALSE(member.definition.add(How::value));
}

TEST_F(ContainersTest, havePaths)
{
    EXPECT_EQ(containers.pathOf(root), "");
    EXPECT_EQ(containers.pathOf(slotOf("exact-pause")), "exact-pause");
    const std::uint32_t list = open(slotOf("window"));
    const std::uint32_t element = open(slotAt(list, 1), &window);
    EXPECT_EQ(containers.pathOf(element), "window[1]");
    Slot within;
    within.parent = element;
    within.node = window.find("\"5 GHz\".end");
    EXPECT_EQ(containers.pathOf(within), "window[1].\"5 GHz\".end");
    const std::uint32_t palette = open(slotOf("palette"));
    const std::uint32_t dark = open(slotIn(palette, "dark one"));
    EXPECT_EQ(containers.pathOf(slotIn(dark, "sky")), "palette.\"dark one\".sky");
}
