// What encloses a position.
#include <gtest/gtest.h>

#include "direct/nesting_stack.h"

#include <cstddef>
#include <random>
#include <utility>
#include <vector>

using vorn::parsers::toml::Inside;
using vorn::parsers::toml::NestingStack;

namespace
{

const Inside kinds[] = {Inside::pair, Inside::inlineTable, Inside::firstElement,
                        Inside::laterElement};

// A stack with room for the levels of a document of some size.
class Stack : std::vector<NestingStack::Word>, public NestingStack
{
public:
    explicit Stack(std::size_t size)
        : vector(NestingStack::wordsFor(size)), NestingStack(vector::data(), size)
    {
    }
};

} // namespace

TEST(NestingStack, beginsInAPair)
{
    const Stack stack(0);
    EXPECT_EQ(stack.inside(), Inside::pair);
}

TEST(NestingStack, remembersEveryLevel)
{
    constexpr std::size_t depth = 5000;
    Stack stack(2 * depth);
    for (std::size_t level = 0; level < depth; ++level)
    {
        ASSERT_TRUE(stack.enter(kinds[level * level % 4])) << level;
        ASSERT_EQ(stack.inside(), kinds[level * level % 4]) << level;
    }
    for (std::size_t level = depth; level > 0; --level)
    {
        ASSERT_EQ(stack.inside(), kinds[(level - 1) * (level - 1) % 4]) << level;
        stack.leave();
    }
    EXPECT_EQ(stack.inside(), Inside::pair);
}

TEST(NestingStack, isRightAfterAnyChanges)
{
    constexpr std::size_t room = 200;
    Stack stack(2 * room);
    std::vector<Inside> expected = {Inside::pair};
    std::mt19937 random(1);
    std::size_t deepest = 0;
    for (int step = 0; step < 200000; ++step)
    {
        const Inside kind = kinds[random() % 4];
        // Deep and flat by turns.
        const bool deeper = random() % 100 < (step / 1000 % 2 == 0 ? 60u : 40u);
        if (random() % 4 == 0)
        {
            stack.setInside(kind);
            expected.back() = kind;
        }
        else if (deeper && expected.size() <= room)
        {
            ASSERT_TRUE(stack.enter(kind)) << step;
            expected.push_back(kind);
        }
        else if (!deeper && expected.size() > 1)
        {
            stack.leave();
            expected.pop_back();
        }
        ASSERT_EQ(stack.inside(), expected.back()) << "step " << step;
        deepest = std::max(deepest, expected.size());
    }
    EXPECT_EQ(deepest, room + 1);
}

TEST(NestingStack, hasRoomForALevelInEveryTwoBytes)
{
    for (std::size_t size = 0; size < 100; ++size)
    {
        SCOPED_TRACE(size);
        Stack stack(size);
        for (std::size_t level = 0; level < size / 2; ++level)
        {
            ASSERT_TRUE(stack.enter(Inside::inlineTable)) << level;
        }
        EXPECT_FALSE(stack.enter(Inside::firstElement));
        if (size >= 2)
        {
            // Nothing has changed, and there is room again.
            EXPECT_EQ(stack.inside(), Inside::inlineTable);
            stack.leave();
            EXPECT_TRUE(stack.enter(Inside::firstElement));
            EXPECT_EQ(stack.inside(), Inside::firstElement);
        }
    }
}

TEST(NestingStack, countsTheLevelsThatWereEnteredAtOnceAtMost)
{
    std::size_t max = 0;
    std::vector<NestingStack::Word> words(NestingStack::wordsFor(100));
    NestingStack stack(words.data(), 100, &max);
    EXPECT_EQ(max, 0u);
    for (const auto& [entered, expected] : std::vector<std::pair<std::size_t, std::size_t>>{
             {1, 1}, {3, 3}, {2, 3}, {17, 17}, {4, 17}})
    {
        for (std::size_t level = 0; level < entered; ++level)
        {
            ASSERT_TRUE(stack.enter(Inside::firstElement));
        }
        EXPECT_EQ(max, expected);
        for (std::size_t level = 0; level < entered; ++level)
        {
            stack.leave();
        }
        EXPECT_EQ(max, expected);
    }
    // Another one goes on with it.
    NestingStack next(words.data(), 100, &max);
    ASSERT_TRUE(next.enter(Inside::pair));
    EXPECT_EQ(max, 17u);
}

TEST(NestingStack, countsNoLevelThatItHasNoRoomFor)
{
    std::size_t max = 0;
    std::vector<NestingStack::Word> words(NestingStack::wordsFor(6));
    NestingStack stack(words.data(), 6, &max);
    while (stack.enter(Inside::inlineTable))
    {
    }
    EXPECT_FALSE(stack.enter(Inside::inlineTable));
    EXPECT_EQ(max, 3u);
}
