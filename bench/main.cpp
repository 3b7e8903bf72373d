// Compares readers: how many bytes of each document they read in a second.
//
// vorn-bench [--readers=NAME,...] [options of Google Benchmark]
// A parser of JSON reads the document's twin; its rate counts the bytes of the document.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <stdexcept>

#include "documents.h"
#include "json_twin.h"
#include "readers.h"
#include "tests/support/direct_reading.h"

namespace
{

using bench::Document;
using bench::Reader;

struct Source
{
    Document document;
    std::string json;
};

const std::string& inputOf(const Source& source, const Reader& reader)
{
    return reader.input == bench::Input::json ? source.json : source.document.text;
}

std::vector<Source> sources(bool withJson)
{
    const test::DirectReadingOn on;
    std::vector<Source> all;
    for (Document& document : bench::documents())
    {
        std::string json = withJson ? bench::jsonTwin(document.text) : "";
        all.push_back({std::move(document), std::move(json)});
    }
    return all;
}

// Those that the first argument names, if it does; it is taken away then.
std::vector<Reader> readersToCompare(int& count, char** arguments)
{
    constexpr char option[] = "--readers=";
    std::vector<Reader> all = bench::readers();
    if (count < 2 || std::strncmp(arguments[1], option, std::strlen(option)) != 0)
    {
        return all;
    }
    std::string names = std::string(arguments[1] + std::strlen(option)) + ',';
    std::copy(arguments + 2, arguments + count, arguments + 1);
    arguments[--count] = nullptr;
    std::vector<Reader> named;
    for (; !names.empty(); names.erase(0, names.find(',') + 1))
    {
        const std::string name = names.substr(0, names.find(','));
        const auto found = std::find_if(
            all.begin(), all.end(), [&name](const Reader& reader) { return reader.name == name; });
        if (found == all.end())
        {
            throw std::runtime_error("there is no reader '" + name + "'");
        }
        named.push_back(*found);
    }
    return named;
}

// Whatever is compared must have read the document; that is checked before it is measured.
void makeSureOfAcceptance(const Source& source, const Reader& reader)
{
    try
    {
        reader.prepare(inputOf(source, reader))();
    }
    catch (const std::exception& error)
    {
        throw std::runtime_error(source.document.name + ": rejected by " + reader.name + ": " +
                                 error.what());
    }
}

void measure(benchmark::State& state, const Source& source, const Reader& reader)
{
    const std::string& input = inputOf(source, reader);
    const bench::Reading reading = reader.prepare(input);
    for ([[maybe_unused]] auto iteration : state)
    {
        reading();
    }
    state.SetBytesProcessed(
        static_cast<std::int64_t>(state.iterations() * source.document.text.size()));
    state.counters["input_bytes"] = static_cast<double>(input.size());
}

void compare(const std::vector<Reader>& readers)
{
    const bool withJson =
        std::any_of(readers.begin(), readers.end(),
                    [](const Reader& reader) { return reader.input == bench::Input::json; });
    const std::vector<Source> all = sources(withJson);
    for (const Source& source : all)
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

} // namespace

int main(int argc, char** argv)
{
    try
    {
        const std::vector<Reader> readers = readersToCompare(argc, argv);
        benchmark::Initialize(&argc, argv);
        if (benchmark::ReportUnrecognizedArguments(argc, argv))
        {
            return EXIT_FAILURE;
        }
        benchmark::AddCustomContext("compiler", VORN_COMPILER);
        benchmark::AddCustomContext("simdjson", bench::simdjsonImplementation());
        compare(readers);
        benchmark::Shutdown();
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "vorn-bench: %s\n", error.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
