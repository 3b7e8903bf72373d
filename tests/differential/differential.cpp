// Compares what the library and the reference pipeline show for documents made at random:
// differential COUNT SEED.  Ends with 1 at the first difference.
#include "comparison.h"
#include "crash_report.h"
#include "document_generator.h"
#include "escaped.h"
#include "shrinking.h"

#include <chrono>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace
{

constexpr std::uint64_t progress = 100000;

struct Figures
{
    std::uint64_t documents = 0;
    std::uint64_t accepted = 0;
    std::uint64_t direct = 0;
    std::uint64_t bytes = 0;
    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

void print(const Figures& figures)
{
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - figures.start;
    std::printf("%" PRIu64 " documents of %.1f MB: %" PRIu64 " accepted, %" PRIu64
                " of them directly; %.0f s\n",
                figures.documents, static_cast<double>(figures.bytes) / 1e6, figures.accepted,
                figures.direct, elapsed.count());
    std::fflush(stdout);
}

void printDifference(const std::string& document)
{
    std::printf("A document differs: %s\n", test::escaped(document).c_str());
    std::fflush(stdout);
    const auto differs = [](const std::string& text) { return !test::compare(text).isWell(); };
    const std::string smallest = test::shrunk(document, differs);
    std::printf("The smallest found: %s\n%s", test::escaped(smallest).c_str(),
                test::describe(test::compare(smallest)).c_str());
}

bool compareDocuments(std::uint64_t count, std::uint64_t seed)
{
    test::DocumentGenerator generator(seed);
    std::string document;
    test::reportCrashesOn(document);
    Figures figures;
    while (figures.documents < count)
    {
        document = generator.next();
        const test::Comparison comparison = test::compare(document);
        if (!comparison.isWell())
        {
            print(figures);
            printDifference(document);
            return false;
        }
        ++figures.documents;
        figures.bytes += document.size();
        figures.accepted += comparison.reference.accepted ? 1 : 0;
        figures.direct += comparison.direct ? 1 : 0;
        if (figures.documents % progress == 0 || figures.documents == count)
        {
            print(figures);
        }
    }
    return true;
}

// A number of decimal digits; `number` stays if it is something else.
bool parse(const char* word, std::uint64_t& number)
{
    char* end = nullptr;
    const std::uint64_t parsed = std::strtoull(word, &end, 10);
    const bool isNumber = *word >= '0' && *word <= '9' && *end == '\0';
    number = isNumber ? parsed : number;
    return isNumber;
}

} // namespace

int main(int words, char** word)
{
    std::uint64_t count = 0;
    std::uint64_t seed = 0;
    if (words != 3 || !parse(word[1], count) || !parse(word[2], seed) || count == 0)
    {
        std::fputs("Usage: differential COUNT SEED\n", stderr);
        return 2;
    }
    return compareDocuments(count, seed) ? 0 : 1;
}
