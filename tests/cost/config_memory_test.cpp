// The memory that readConfig() takes beside the text and the values.
#include <gtest/gtest.h>

#include <vorn/parsers/toml_config.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstddef>
#include <string>

#include "bench/services.h"

namespace
{

constexpr std::size_t count = 53'400; // services, in 10 MB
constexpr long megabyte = 1024;       // in kilobytes

enum class Filling
{
    none,
    byHand,
    byReading,
};

bool isFilled(const std::string& text, Filling filling)
{
    bench::Services services;
    switch (filling)
    {
    case Filling::none:
        return true;
    case Filling::byHand:
        services = bench::servicesByHand(count);
        break;
    case Filling::byReading:
        readConfig(text, bench::servicesSchema(), services);
        break;
    }
    return services.services.size() == count;
}

// The most memory, in kilobytes, that a process of its own has with the text and the values.
long peakOf(Filling filling)
{
    const pid_t child = fork();
    if (child == 0)
    {
        // The first use of the library brings in the pages of its code.
        bench::Services few;
        readConfig(bench::servicesDocument(10), bench::servicesSchema(), few);
        _exit(isFilled(bench::servicesDocument(count), filling) ? 0 : 1);
    }
    int status = -1;
    rusage usage = {};
    EXPECT_EQ(wait4(child, &status, 0, &usage), child);
    EXPECT_EQ(status, 0);
    return usage.ru_maxrss;
}

} // namespace

TEST(ConfigMemory, isAtMostAMegabyteAboveTheTextAndTheValues)
{
    const long text = peakOf(Filling::none);
    const long filled = peakOf(Filling::byHand);
    EXPECT_GT(filled, text + 10 * megabyte);
    EXPECT_LE(peakOf(Filling::byReading), filled + megabyte);
}
