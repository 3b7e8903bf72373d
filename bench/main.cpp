// Compares readers: how many bytes of each document they read in a second.
//
// vorn-bench [--readers=NAME,...] [options of Google Benchmark]
// vorn-bench [--readers=NAME,...] --count
//
// A parser of JSON reads the document's twin; its rate counts the bytes of the document.  With
// --count each reads once what has 100 KB, for a program that counts instructions.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <stdexcept>

#include "counted_reading.h"
#include "hardware_counters.h"
#include "sources.h"

namespace
{

using bench::Reader;
using bench::Source;

// Whatever is compared must have read the document; that is checked before it is measured.
void makeSureOfAcceptance(const Source& source, const Reader& reader)
{
    try
    {
        reader.prepare(source.inputOf(reader))();
    }
    catch (const std::exception& error)
    {
        throw std::runtime_error(source.document.name + ": rejected by " + reader.name + ": " +
                                 error.what());
    }
}

// Without counters of the processor, just the time.
void run(benchmark::State& state, const bench::Reading& reading, std::size_t bytes)
{
    bench::HardwareCounters counters;
    if (counters.areThere())
    {
        counters.start();
    }
    for ([[maybe_unused]] auto iteration : state)
    {
        reading();
    }
    if (counters.areThere())
    {
        const bench::Counts counts = counters.stop();
        const double read = static_cast<double>(state.iterations()) * static_cast<double>(bytes);
        state.counters["cycles_per_byte"] = static_cast<double>(counts.cycles) / read;
        state.counters["instructions_per_byte"] = static_cast<double>(counts.instructions) / read;
    }
}

void measure(benchmark::State& state, const Source& source, const Reader& reader)
{
    const std::string& input = source.inputOf(reader);
    const std::size_t bytes = source.document.text.size();
    run(state, reader.prepare(input), bytes);
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes));
    state.counters["input_bytes"] = static_cast<double>(input.size());
}

void compare(const std::vector<Reader>& readers)
{
    const std::vector<Source> sources = bench::sourcesFor(readers);
    for (const Source& source : sources)
    {
        for (const Reader& reader : readers)
        {
            makeSureOfAcceptance(source, reader);
            benchmark::RegisterBenchmark((source.document.name + '/' + reader.name).c_str(),
                                         [&](benchmark::State& state)
                                         { measure(state, source, reader); });
        }
    }
    benchmark::RunSpecifiedBenchmarks();
}

// Prints what this program is made of, and then what is read, in the order in which it is.
void count(const std::vector<Reader>& readers)
{
    constexpr std::size_t countedSize = 100'000;
    std::printf("%s; simdjson for %s\n", VORN_COMPILER, bench::simdjsonImplementation().c_str());
    for (const Source& source : bench::sourcesFor(readers, countedSize))
    {
        for (const Reader& reader : readers)
        {
            const bench::Reading reading = reader.prepare(source.inputOf(reader));
            // The first takes memory that later ones have.  What is counted from its end to that of
            // the second is the second.
            bench::countedReading(reading);
            bench::countedReading(reading);
            std::printf("%s/%s %zu\n", source.document.name.c_str(), reader.name.c_str(),
                        source.document.text.size());
        }
    }
}

// Takes the first argument away if it starts like this; the rest of it, or none.
const char* taken(int& count, char** arguments, const char* start)
{
    const std::size_t length = std::strlen(start);
    if (count < 2 || std::strncmp(arguments[1], start, length) != 0)
    {
        return nullptr;
    }
    const char* const rest = arguments[1] + length;
    std::copy(arguments + 2, arguments + count, arguments + 1);
    arguments[--count] = nullptr;
    return rest;
}

int runAsTold(int argc, char** argv)
{
    const char* const names = taken(argc, argv, "--readers=");
    const std::vector<Reader> readers =
        names != nullptr ? bench::readersNamed(names) : bench::readers();
    if (taken(argc, argv, "--count") != nullptr)
    {
        count(readers);
        return EXIT_SUCCESS;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
    {
        return EXIT_FAILURE;
    }
    benchmark::AddCustomContext("compiler", VORN_COMPILER);
    benchmark::AddCustomContext("simdjson", bench::simdjsonImplementation());
    compare(readers);
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    try
    {
        return runAsTold(argc, argv);
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "vorn-bench: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
