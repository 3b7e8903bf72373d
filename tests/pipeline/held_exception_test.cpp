#include <gtest/gtest.h>

#include "pipeline/held_exception.h"

#include <stdexcept>
#include <string>

using vorn::parsers::toml::HeldException;

TEST(HeldException, isNothingWhereNothingIsThrown)
{
    HeldException held;
    int calls = 0;
    held.guard([&calls] { ++calls; });
    held.guard([&calls] { ++calls; });
    EXPECT_EQ(calls, 2);
    EXPECT_NO_THROW(held.pass());
}

TEST(HeldException, passesTheFirstOne)
{
    HeldException held;
    held.guard([] { throw std::runtime_error("first"); });
    bool called = false;
    held.guard(
        [&called]
        {
            called = true;
            throw std::runtime_error("second");
        });
    EXPECT_FALSE(called);
    try
    {
        held.pass();
        FAIL() << "nothing was thrown";
    }
    catch (const std::runtime_error& error)
    {
        EXPECT_EQ(error.what(), std::string("first"));
    }
}
