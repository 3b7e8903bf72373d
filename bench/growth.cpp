// Measures how time and memory grow with a document, and prints the tables of
// docs/growth.md: vorn-growth [--mistakes] [PROCESSOR]
//
// With --mistakes it prints only that of documents with one mistake, and the like.
// The logger is left out; what the runtime writes to standard error is thrown away.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <vorn/parsers/toml.h>

#include "child_cost.h"
#include "repeated_times.h"
#include "tests/support/large_documents.h"
#include "tests/support/memory_peak.h"

namespace
{

using bench::Cost;
using bench::costOf;
using bench::Document;
using bench::kilobyte;
using bench::megabyte;
using bench::Use;

// With the digits that matter.
std::string rounded(double value)
{
    char text[32];
    std::snprintf(text, sizeof(text), "%.*f", value < 1 ? 3 : value < 10 ? 1 : 0, value);
    return text;
}

std::string sizeText(std::size_t bytes)
{
    if (bytes < kilobyte)
    {
        return std::to_string(bytes) + " bytes";
    }
    return bytes >= megabyte ? rounded(static_cast<double>(bytes) / megabyte) + " MB"
                             : std::to_string(bytes / kilobyte) + " KB";
}

std::string megabytes(const Cost& cost)
{
    return rounded(static_cast<double>(cost.kilobytes) * 1024 / megabyte);
}

void printCaption(const char* processor)
{
    const std::time_t now = std::time(nullptr);
    char date[16];
    std::strftime(date, sizeof(date), "%F", std::gmtime(&now));
    std::printf("\n%s, %u CPUs; %s; %s.\n", processor, std::thread::hardware_concurrency(),
                VORN_COMPILER, date);
}

void printGrowth()
{
    constexpr std::size_t factors[] = {1, 2, 4, 8};
    std::printf("\n| document | size at 1 | ms at 1 | at 2 | at 4 | at 8 | MB at 1 | at 2 | at 4 | "
                "at 8 |\n|---|---:|---:|---:|---:|---:|---:|---:|---:|---:|\n");
    for (const Document& document : bench::growingDocuments())
    {
        std::string times;
        std::string memory;
        for (const std::size_t factor : factors)
        {
            const Cost cost = costOf(document, factor * document.size, Use::visit);
            times += " | " + rounded(cost.milliseconds);
            memory += " | " + megabytes(cost);
        }
        std::printf("| %s, %s | %s%s%s |\n", document.accepted ? "accepted" : "rejected",
                    document.name.c_str(), sizeText(document.size).c_str(), times.c_str(),
                    memory.c_str());
    }
}

void printCosts(const std::vector<Document>& documents)
{
    const Document right = {"valid lines", true, 0, test::mixedDocument};
    std::printf("\n| document | bytes | log lines | ms | MB | ms of valid lines |\n"
                "|---|---:|---:|---:|---:|---:|\n");
    for (const Document& document : documents)
    {
        const Cost cost = costOf(document, document.size, Use::visit);
        std::printf("| %s, %s | %zu | %zu | %s | %s | %s |\n",
                    document.accepted ? "accepted" : "rejected", document.name.c_str(),
                    document.size, cost.lines, rounded(cost.milliseconds).c_str(),
                    megabytes(cost).c_str(),
                    rounded(costOf(right, document.size, Use::visit).milliseconds).c_str());
    }
}

// In bytes.
double peakOf(const Document& document, test::Heap heap)
{
    const auto make = [&] { return document.make(document.size); };
    const auto use = [&](const std::string& text)
    {
        vorn::parsers::toml::TomlTreeVisitor visitor;
        return visitTomlTree(text, visitor) == document.accepted;
    };
    return static_cast<double>(test::peakBesideText(make, use, heap)) * 1024;
}

void printMistakes()
{
    std::printf("\n| rejected | size | first ms | ms | times accepted | KB | bytes per byte | "
                "KB of a used heap |\n|---|---:|---:|---:|---:|---:|---:|---:|\n");
    for (const Document& document : bench::documentsWithMistakes())
    {
        const bench::Times times = bench::timesOf(document);
        const double accepted = bench::timesOf(bench::validDocument(document.size)).later;
        const double bytes = peakOf(document, test::Heap::fresh);
        std::printf("| %s | %s | %s | %s | %s | %s | %s | %s |\n", document.name.c_str(),
                    sizeText(document.size).c_str(), rounded(times.first).c_str(),
                    rounded(times.later).c_str(), rounded(times.later / accepted).c_str(),
                    rounded(bytes / kilobyte).c_str(),
                    rounded(bytes / static_cast<double>(document.size)).c_str(),
                    rounded(peakOf(document, test::Heap::used) / kilobyte).c_str());
    }
}

void printDiagnoses()
{
    std::printf("\n| diagnosed | size | findings | ms | MB | all findings | ms | MB |\n"
                "|---|---:|---:|---:|---:|---:|---:|---:|\n");
    for (const Document& document : bench::mistakenDocuments())
    {
        const Cost first = costOf(document, document.size, Use::diagnose);
        const Cost all = costOf(document, document.size, Use::diagnoseAll);
        std::printf("| %s | %s | %zu | %s | %s | %zu | %s | %s |\n", document.name.c_str(),
                    sizeText(document.size).c_str(), first.lines,
                    rounded(first.milliseconds).c_str(), megabytes(first).c_str(), all.lines,
                    rounded(all.milliseconds).c_str(), megabytes(all).c_str());
    }
}

} // namespace

int main(int argc, char** argv)
{
    try
    {
        // Children must not print what is not printed yet.
        std::setvbuf(stdout, nullptr, _IONBF, 0);
        const bool onlyMistakes = argc > 1 && std::strcmp(argv[1], "--mistakes") == 0;
        const int processor = onlyMistakes ? 2 : 1;
        printCaption(argc > processor ? argv[processor] : "unknown processor");
        if (onlyMistakes)
        {
            printMistakes();
            return EXIT_SUCCESS;
        }
        printGrowth();
        printCosts(bench::hostileDocuments());
        printCosts(bench::largestDocuments());
        printMistakes();
        printDiagnoses();
        std::printf("\n");
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "vorn-growth: %s\n", error.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
