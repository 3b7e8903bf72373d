// Compares what the library and the reference pipeline show for all sequences of some tokens:
// token_sequences TOKENS [FIRST LAST], the latter two the places of the first token among those
// below.  A valid line is one of these, so that mistakes come before valid lines, after and
// between them.  Ends with 1 at the first difference.
#include "comparison.h"
#include "crash_report.h"
#include "escaped.h"
#include "kept_memory.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>
#include <vector>

namespace
{

constexpr const char* tokens[] = {"a", "=", "1", "\n",      "[", "]",
                                  "{", "}", ",", "\nb=2\n", ".", "@"};
constexpr std::size_t kinds = std::size(tokens);
constexpr std::size_t maxTokens = 8;

struct Figures
{
    unsigned long documents = 0;
    unsigned long accepted = 0;
    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

void print(const Figures& figures)
{
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - figures.start;
    std::printf("%lu documents: %lu accepted; %.0f s\n", figures.documents, figures.accepted,
                elapsed.count());
    std::fflush(stdout);
}

// With blanks between them, which keep tokens from becoming one.
std::string documentOf(const std::vector<std::size_t>& sequence)
{
    std::string document;
    for (const std::size_t kind : sequence)
    {
        document += (document.empty() ? "" : " ") + std::string(tokens[kind]);
    }
    return document;
}

// The next sequence of the same length, with the same first token; false where there is none, and
// it is the first one again.
bool advance(std::vector<std::size_t>& sequence)
{
    for (std::size_t place = sequence.size(); place-- > 1;)
    {
        sequence[place] = (sequence[place] + 1) % kinds;
        if (sequence[place] != 0)
        {
            return true;
        }
    }
    return false;
}

// Whether all documents that start with this token are the same.
bool compareAll(std::vector<std::size_t>& sequence, std::string& document, Figures& figures)
{
    do
    {
        document = documentOf(sequence);
        const test::Comparison comparison = test::compare(document);
        if (!comparison.isWell())
        {
            std::printf("A document differs: %s\n%s", test::escaped(document).c_str(),
                        test::describe(comparison).c_str());
            return false;
        }
        ++figures.documents;
        figures.accepted += comparison.reference.accepted ? 1 : 0;
    } while (advance(sequence));
    return true;
}

// A number of decimal digits up to `max`; `max` + 1 for anything else.
std::size_t number(const char* word, std::size_t max)
{
    char* end = nullptr;
    const unsigned long parsed = std::strtoul(word, &end, 10);
    return *word >= '0' && *word <= '9' && *end == '\0' && parsed <= max ? parsed : max + 1;
}

} // namespace

int main(int words, char** word)
{
    const std::size_t count = words > 1 ? number(word[1], maxTokens) : 0;
    const std::size_t first = words > 3 ? number(word[2], kinds - 1) : 0;
    const std::size_t last = words > 3 ? number(word[3], kinds - 1) : kinds - 1;
    if ((words != 2 && words != 4) || count == 0 || count > maxTokens || last >= kinds ||
        first > last)
    {
        std::fputs("Usage: token_sequences TOKENS [FIRST LAST]\n", stderr);
        return 2;
    }
    test::keepMemory();
    std::string document;
    test::reportCrashesOn(document);
    Figures figures;
    std::vector<std::size_t> sequence(count);
    for (std::size_t kind = first; kind <= last; ++kind)
    {
        sequence.front() = kind;
        if (!compareAll(sequence, document, figures))
        {
            return 1;
        }
    }
    print(figures);
    return 0;
}
