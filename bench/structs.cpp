// Compares ways of reading services into structs: how long each takes, and how often it asks for
// memory.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <vector>

#include "services.h"
#include "struct_readers.h"
#include "tests/support/allocation_counter.h"

namespace
{

struct Sample
{
    const char* name; // the size, about
    std::size_t count;
    std::string text;
};

std::vector<Sample> samples()
{
    std::vector<Sample> all = {
        {"10KB", 53, {}}, {"100KB", 534, {}}, {"200KB", 1068, {}}, {"1MB", 5340, {}}};
    for (Sample& sample : all)
    {
        sample.text = bench::servicesDocument(sample.count);
    }
    return all;
}

// Whatever is compared must have read all values; that is checked before it is measured.
bool isRead(const Sample& sample, const bench::StructReader& reader)
{
    std::string mistake = "some values differ";
    try
    {
        const bench::Services read = reader.read(sample.text);
        if (!reader.fills || read.services == bench::servicesByHand(sample.count).services)
        {
            return true;
        }
    }
    catch (const std::exception& error)
    {
        mistake = error.what();
    }
    std::fprintf(stderr, "%s, %s: %s\n", sample.name, reader.name.c_str(), mistake.c_str());
    return false;
}

template <typename Call>
double allocationsOf(const Call& call)
{
    const test::AllocationCounter counter;
    call();
    return static_cast<double>(counter.allocations());
}

void measure(benchmark::State& state, const Sample& sample, const bench::StructReader& reader)
{
    for ([[maybe_unused]] auto iteration : state)
    {
        benchmark::DoNotOptimize(reader.read(sample.text));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * sample.text.size()));
    state.counters["bytes"] = static_cast<double>(sample.text.size());
    state.counters["services"] = static_cast<double>(sample.count);
    state.counters["allocations"] = allocationsOf([&] { reader.read(sample.text); });
    state.counters["allocations_by_hand"] =
        allocationsOf([&] { bench::servicesByHand(sample.count); });
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
    {
        return EXIT_FAILURE;
    }
    benchmark::AddCustomContext("compiler", VORN_COMPILER);

    const std::vector<Sample> all = samples();
    const std::vector<bench::StructReader> readers = bench::structReaders();
    for (const Sample& sample : all)
    {
        for (const bench::StructReader& reader : readers)
        {
            if (!isRead(sample, reader))
            {
                return EXIT_FAILURE;
            }
            benchmark::RegisterBenchmark((std::string(sample.name) + '/' + reader.name).c_str(),
                                         [&](benchmark::State& state)
                                         { measure(state, sample, reader); })
                ->Unit(benchmark::kMicrosecond);
        }
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
