// Compares readers of TOML: how many bytes of each document they read in a second.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <exception>

#include "documents.h"
#include "readers.h"

namespace
{

// Whatever is compared must have read the document; that is checked before it is measured.
bool isAccepted(const bench::Document& document, const bench::Reader& reader)
{
    try
    {
        reader.prepare(document.text)();
        return true;
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "%s: refused by %s: %s\n", document.name.c_str(), reader.name.c_str(),
                     error.what());
        return false;
    }
}

void measure(benchmark::State& state, const bench::Document& document, const bench::Reader& reader)
{
    const bench::Reading reading = reader.prepare(document.text);
    for ([[maybe_unused]] auto iteration : state)
    {
        reading();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * document.text.size()));
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

    const std::vector<bench::Document> documents = bench::documents();
    const std::vector<bench::Reader> readers = bench::readers();
    for (const bench::Document& document : documents)
    {
        for (const bench::Reader& reader : readers)
        {
            if (!isAccepted(document, reader))
            {
                return EXIT_FAILURE;
            }
            benchmark::RegisterBenchmark((document.name + '/' + reader.name).c_str(),
                                         [&](benchmark::State& state)
                                         { measure(state, document, reader); });
        }
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
