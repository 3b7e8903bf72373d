// Documents that are nested too deeply for the stack of the thread that reads them.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>

#include <pthread.h>

#include <stdexcept>
#include <string>

#include "support/driver_log.h"
#include "support/reading.h"

namespace
{

struct Task
{
    std::string text;
    test::Reading reading;
};

test::Reading readOnThread(const std::string& text, std::size_t stackSize)
{
    Task task = {text, {}};
    pthread_attr_t attributes;
    pthread_t thread = {};
    pthread_attr_init(&attributes);
    const auto run = [](void* data) -> void*
    {
        auto& given = *static_cast<Task*>(data);
        given.reading = test::read(given.text);
        return nullptr;
    };
    if (pthread_attr_setstacksize(&attributes, stackSize) != 0 ||
        pthread_create(&thread, &attributes, run, &task) != 0 || pthread_join(thread, nullptr) != 0)
    {
        throw std::runtime_error("no thread with such a stack");
    }
    pthread_attr_destroy(&attributes);
    return task.reading;
}

std::string nestedTooDeeply(unsigned levels)
{
    return "Failed: input TOML is nested too deeply (" + std::to_string(levels) + " levels)";
}

} // namespace

TEST(TomlSmallStack, readsSomeLevelsAndRefusesMore)
{
    constexpr std::size_t stackSize = std::size_t{160} * 1024;
    constexpr unsigned step = 10;
    constexpr unsigned most = 800;
    unsigned diagnosed = 0; // the most levels of a document whose error was found
    for (unsigned levels = step; levels <= most; levels += step)
    {
        SCOPED_TRACE(levels);
        const std::string text =
            "a = " + std::string(levels, '[') + '1' + std::string(levels, ']') + " b\n";
        const test::Reading reading = readOnThread(text, stackSize);
        EXPECT_FALSE(reading.accepted);
        ASSERT_FALSE(reading.lines.empty());
        if (reading.lines.back().message == nestedTooDeeply(levels))
        {
            EXPECT_EQ(reading.lines.size(), 1u);
            EXPECT_EQ(reading.events, test::Events());
            continue;
        }
        EXPECT_EQ(diagnosed + step, levels);
        EXPECT_EQ(reading.lines.back().message, "Failed: input TOML has 2 syntax errors");
        diagnosed = levels;
    }
    EXPECT_GE(diagnosed, step);
    EXPECT_LT(diagnosed, most);
}
