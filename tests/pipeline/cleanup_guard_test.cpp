// The guard that calls its callable when it leaves its scope.
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <type_traits>
#include <vector>

#include "pipeline/cleanup_guard.h"

using vorn::parsers::toml::CleanupGuard;

TEST(CleanupGuard, callsOnceWhenItsScopeEnds)
{
    int calls = 0;
    {
        const CleanupGuard guard([&calls] { ++calls; });
        EXPECT_EQ(calls, 0);
    }
    EXPECT_EQ(calls, 1);
}

TEST(CleanupGuard, callsWhenAnExceptionPasses)
{
    int calls = 0;
    EXPECT_THROW(
        {
            const CleanupGuard guard([&calls] { ++calls; });
            throw std::runtime_error("passing");
        },
        std::runtime_error);
    EXPECT_EQ(calls, 1);
}

TEST(CleanupGuard, callsOnAnEarlyReturn)
{
    int calls = 0;
    const auto leave = [&calls](bool early)
    {
        const CleanupGuard guard([&calls] { ++calls; });
        if (early)
        {
            return calls;
        }
        return -1;
    };
    EXPECT_EQ(leave(true), 0);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(leave(false), -1);
    EXPECT_EQ(calls, 2);
}

TEST(CleanupGuard, guardsCallInReverseOrder)
{
    std::vector<int> order;
    {
        const CleanupGuard first([&order] { order.push_back(1); });
        const CleanupGuard second([&order] { order.push_back(2); });
        const CleanupGuard third([&order] { order.push_back(3); });
    }
    EXPECT_EQ(order, std::vector<int>({3, 2, 1}));
}

TEST(CleanupGuard, ofAnEmptyCallableCallsNothing)
{
    EXPECT_NO_THROW({ const CleanupGuard guard{std::function<void()>()}; });
}

TEST(CleanupGuard, destroysItsCallableAfterTheCall)
{
    const auto held = std::make_shared<int>(0);
    long holdersInCall = 0;
    {
        const CleanupGuard guard([held, &holdersInCall] { holdersInCall = held.use_count(); });
        EXPECT_EQ(held.use_count(), 2);
    }
    EXPECT_EQ(holdersInCall, 2);
    EXPECT_EQ(held.use_count(), 1);
}

TEST(CleanupGuard, cannotBeCopied)
{
    static_assert(!std::is_copy_constructible_v<CleanupGuard>);
    static_assert(!std::is_copy_assignable_v<CleanupGuard>);
    static_assert(!std::is_move_constructible_v<CleanupGuard>);
}
