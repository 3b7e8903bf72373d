// Compares what the library and the reference pipeline show for documents made at random:
// differential [--long | --recovery] COUNT SEED.  Ends with 1 at the first difference.
#include "comparison.h"
#include "crash_report.h"
#include "document_generator.h"
#include "escaped.h"
#include "figures.h"
#include "kept_memory.h"
#include "long_documents.h"
#include "recovery_documents.h"
#include "shrinking.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace
{

using Compare = test::Comparison (*)(const std::string&);

// Longer ones are not printed as a whole before a smaller one has been found.
constexpr std::size_t printable = 10'000;

// When progress is printed.
struct Progress
{
    std::uint64_t documents;
    double seconds;
    double last = 0;

    bool isDue(const test::Figures& figures)
    {
        const bool due = figures.documents() % documents == 0 || figures.seconds() > last + seconds;
        last = due ? figures.seconds() : last;
        return due;
    }
};

constexpr Progress usualProgress = {100'000, 1e9};
constexpr Progress slowProgress = {100'000, 20};

void printDifference(const std::string& document, Compare compare)
{
    std::printf("A document of %zu bytes differs: %s%s\n", document.size(),
                test::escaped(document.substr(0, printable)).c_str(),
                document.size() > printable ? "..." : "");
    std::fflush(stdout);
    const auto differs = [compare](const std::string& text) { return !compare(text).isWell(); };
    const std::string smallest = test::shrunk(document, differs);
    std::printf("The smallest found: %s\n%s", test::escaped(smallest).c_str(),
                test::describe(compare(smallest)).c_str());
}

template <typename Generator>
bool compareDocuments(std::uint64_t count, std::uint64_t seed, Compare compare, Progress progress,
                      test::Figures& figures)
{
    Generator generator(seed);
    std::string document;
    test::reportCrashesOn(document);
    while (figures.documents() < count)
    {
        document = generator.next();
        const test::Comparison comparison = compare(document);
        if (!comparison.isWell())
        {
            figures.print();
            printDifference(document, compare);
            return false;
        }
        figures.add(document, comparison);
        if (progress.isDue(figures) || figures.documents() == count)
        {
            figures.print();
        }
    }
    return true;
}

bool compareMixture(const char* mixture, std::uint64_t count, std::uint64_t seed)
{
    test::Figures figures;
    if (mixture == nullptr)
    {
        return compareDocuments<test::DocumentGenerator>(count, seed, test::compare, usualProgress,
                                                         figures);
    }
    test::keepMemory();
    const bool isLong = std::strcmp(mixture, "--long") == 0;
    const bool same = isLong ? compareDocuments<test::LongDocumentGenerator>(
                                   count, seed, test::compareQuickly, slowProgress, figures)
                             : compareDocuments<test::RecoveryDocumentGenerator>(
                                   count, seed, test::compare, slowProgress, figures);
    figures.printMistakes();
    return same;
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

bool isMixture(const char* word)
{
    return std::strcmp(word, "--long") == 0 || std::strcmp(word, "--recovery") == 0;
}

} // namespace

int main(int words, char** word)
{
    std::uint64_t count = 0;
    std::uint64_t seed = 0;
    const char* const mixture = words == 4 && isMixture(word[1]) ? word[1] : nullptr;
    const int first = mixture == nullptr ? 1 : 2;
    if (words != first + 2 || !parse(word[first], count) || !parse(word[first + 1], seed) ||
        count == 0)
    {
        std::fputs("Usage: differential [--long | --recovery] COUNT SEED\n", stderr);
        return 2;
    }
    return compareMixture(mixture, count, seed) ? 0 : 1;
}
