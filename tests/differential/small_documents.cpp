// Compares what the library and the reference pipeline show for all documents of some bytes:
// small_documents BYTES [FIRST LAST], the latter two the first byte's least and greatest
// value, in decimal digits.  Ends with 1 at the first difference.
#include "comparison.h"
#include "crash_report.h"
#include "escaped.h"
#include "kept_memory.h"

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace
{

constexpr unsigned long mostBytes = 4;

struct Figures
{
    std::uint64_t documents = 0;
    std::uint64_t accepted = 0;
    std::uint64_t direct = 0;
    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

void print(const Figures& figures)
{
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - figures.start;
    std::printf("%llu documents: %llu accepted, %llu of them directly; %.0f s\n",
                static_cast<unsigned long long>(figures.documents),
                static_cast<unsigned long long>(figures.accepted),
                static_cast<unsigned long long>(figures.direct), elapsed.count());
    std::fflush(stdout);
}

// The next document of the same length in the order of the bytes after the first; false
// where there is none, and all of them are zero again.
bool advance(std::string& document)
{
    for (std::size_t place = document.size(); place-- > 1;)
    {
        document[place] = static_cast<char>(static_cast<unsigned char>(document[place]) + 1);
        if (document[place] != '\0')
        {
            return true;
        }
    }
    return false;
}

// Whether all documents with this first byte are the same.
bool compareAll(std::string& document, Figures& figures)
{
    do
    {
        const test::Comparison comparison = test::compare(document);
        if (!comparison.isWell())
        {
            std::printf("A document differs: %s\n%s", test::escaped(document).c_str(),
                        test::describe(comparison).c_str());
            return false;
        }
        ++figures.documents;
        figures.accepted += comparison.reference.accepted ? 1 : 0;
        figures.direct += comparison.direct ? 1 : 0;
    } while (advance(document));
    return true;
}

bool compareAll(unsigned long bytes, unsigned long first, unsigned long last)
{
    std::string document(bytes, '\0');
    test::reportCrashesOn(document);
    Figures figures;
    for (unsigned long byte = first; byte <= last; ++byte)
    {
        document.front() = static_cast<char>(byte);
        if (!compareAll(document, figures))
        {
            return false;
        }
        // The shorter ones take no time worth a line.
        if (bytes > 2 || byte == last)
        {
            std::printf("first byte %02lX: ", byte);
            print(figures);
        }
    }
    return true;
}

// A number of decimal digits up to `most`; `number` stays if it is something else.
bool parse(const char* word, unsigned long most, unsigned long& number)
{
    char* end = nullptr;
    const unsigned long parsed = std::strtoul(word, &end, 10);
    const bool isNumber = *word >= '0' && *word <= '9' && *end == '\0' && parsed <= most;
    number = isNumber ? parsed : number;
    return isNumber;
}

} // namespace

int main(int words, char** word)
{
    unsigned long bytes = 0;
    unsigned long first = 0;
    unsigned long last = 255;
    const bool isRange =
        words == 4 && parse(word[2], 255, first) && parse(word[3], 255, last) && first <= last;
    if ((words != 2 && !isRange) || !parse(word[1], mostBytes, bytes) || bytes == 0)
    {
        std::fputs("Usage: small_documents BYTES [FIRST LAST]\n", stderr);
        return 2;
    }
    test::keepMemory();
    return compareAll(bytes, first, last) ? 0 : 1;
}
