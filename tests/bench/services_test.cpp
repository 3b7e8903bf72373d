// The services that are read into structs.
#include <gtest/gtest.h>

#include "bench/services.h"

#include <vorn/parsers/toml_config.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "support/log_recorder.h"

namespace
{

using vorn::parsers::toml::Problem;

} // namespace

TEST(BenchServices, areReadIntoTheStructsThatAreFilledByHand)
{
    for (const std::size_t count : {0u, 1u, 534u})
    {
        const test::LogRecorder log;
        bench::Services read;
        const std::vector<Problem> problems =
            readConfig(bench::servicesDocument(count), bench::servicesSchema(), read);
        EXPECT_EQ(problems.size(), 0U) << problems.front();
        EXPECT_EQ(read.services.size(), count);
        EXPECT_TRUE(read.services == bench::servicesByHand(count).services) << count;
        EXPECT_TRUE(log.lines().empty());
    }
}

TEST(BenchServices, differFromEachOther)
{
    const std::vector<bench::Service> services = bench::servicesByHand(2).services;
    EXPECT_FALSE(services.front() == services.back());
}

TEST(BenchServices, areSoManyInTheSizesThatAreMeasured)
{
    const std::vector<std::pair<std::size_t, std::size_t>> sizes = {
        {53, 10'000}, {534, 100'000}, {1068, 200'000}, {5340, 1'000'000}};
    for (const auto& [count, size] : sizes)
    {
        const std::size_t bytes = bench::servicesDocument(count).size();
        EXPECT_GT(bytes, size - size / 50);
        EXPECT_LT(bytes, size + size / 50);
    }
}
