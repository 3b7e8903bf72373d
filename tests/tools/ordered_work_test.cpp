// OrderedWork: reports in order, few that wait, failures.
#include "ordered_work.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace
{

std::vector<std::string> outputsOf(tool::OrderedWork work, unsigned threads)
{
    std::vector<std::string> outputs;
    work.wait = [](std::size_t) {};
    work.take = [&](const tool::FileReport& report) { outputs.push_back(report.output); };
    tool::workInOrder(work, threads);
    return outputs;
}

TEST(OrderedWork, ComesInOrder)
{
    constexpr std::size_t files = 500;
    std::vector<std::string> expected;
    for (std::size_t i = 0; i < files; ++i)
    {
        expected.push_back(std::to_string(i));
    }
    const auto make = [](std::size_t file)
    {
        // Every tenth takes long.
        std::this_thread::sleep_for(std::chrono::microseconds(file % 10 == 0 ? 300 : 0));
        tool::FileReport report;
        report.output = std::to_string(file);
        return report;
    };
    for (const unsigned threads : {1U, 2U, 7U})
    {
        EXPECT_EQ(outputsOf({files, make, {}, {}}, threads), expected) << threads;
    }
    EXPECT_EQ(outputsOf({0, make, {}, {}}, 3), std::vector<std::string>());
}

TEST(OrderedWork, LetsFewReportsWait)
{
    constexpr unsigned threads = 3;
    std::atomic<std::size_t> made = 0;
    std::size_t taken = 0;
    std::size_t most = 0;
    tool::OrderedWork work;
    work.files = 1000;
    work.make = [&](std::size_t)
    {
        ++made;
        return tool::FileReport();
    };
    work.wait = [](std::size_t) {};
    work.take = [&](const tool::FileReport&)
    {
        std::this_thread::sleep_for(std::chrono::microseconds(200));
        most = std::max<std::size_t>(most, made - taken);
        ++taken;
    };
    tool::workInOrder(work, threads);
    EXPECT_EQ(taken, 1000U);
    EXPECT_GT(most, 1U);
    EXPECT_LE(most, 64U * threads + 1);
}

TEST(OrderedWork, EndsWithAFailureAtItsTurn)
{
    for (const unsigned threads : {1U, 4U})
    {
        std::size_t taken = 0;
        tool::OrderedWork work;
        work.files = 100;
        work.make = [](std::size_t file)
        {
            if (file == 40)
            {
                throw std::runtime_error("forty");
            }
            return tool::FileReport();
        };
        work.wait = [](std::size_t) {};
        work.take = [&](const tool::FileReport&) { ++taken; };
        EXPECT_THROW(tool::workInOrder(work, threads), std::runtime_error);
        EXPECT_EQ(taken, 40U);
    }
}

} // namespace
