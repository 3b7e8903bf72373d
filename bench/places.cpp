// Measures what it costs to know the place of each text, per text: a visitor whose operations do
// nothing, the same that is placed but does not ask, and one that asks in each operation that gets
// a text.
#include <benchmark/benchmark.h>

#include <vorn/parsers/toml_places.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "services.h"

namespace
{

using namespace vorn::parsers::toml;

struct Document
{
    std::string name;
    std::string text;
};

// Does the same for each text.
template <typename Base>
class TextVisitor : public Base
{
public:
    virtual void text() = 0;

    void visitBareKey(const char*) override { text(); }
    void visitQuotedKey(const char*) override { text(); }
    void visitBasicString(const char*) override { text(); }
    void visitMultilineBasicString(const char*) override { text(); }
    void visitLiteralString(const char*) override { text(); }
    void visitMultilineLiteralString(const char*) override { text(); }
    void visitInteger(const char*) override { text(); }
    void visitFloat(const char*) override { text(); }
    void visitBoolean(const char*) override { text(); }
    void visitOffsetDateTime(const char*) override { text(); }
    void visitLocalDateTime(const char*) override { text(); }
    void visitLocalDate(const char*) override { text(); }
    void visitLocalTime(const char*) override { text(); }
};

class Counting final : public TextVisitor<TomlTreeVisitor>
{
public:
    std::size_t count = 0;

    void text() override { ++count; }
};

class Asking final : public TextVisitor<PlacedVisitor>
{
public:
    std::size_t sum = 0;

    void text() override
    {
        const Place here = place();
        sum += here.line + here.column;
    }
};

class Empty final : public TomlTreeVisitor
{
};

class Following final : public PlacedVisitor
{
};

// The same numbers in each run, of different lengths: otherwise a processor learns them by heart.
class Numbers
{
public:
    std::uint32_t below(std::uint32_t limit)
    {
        state_ = state_ * 1664525U + 1013904223U;
        return static_cast<std::uint32_t>((std::uint64_t{state_} * limit) >> 32U);
    }

    // Up to as many digits.
    std::string digits(std::uint32_t max)
    {
        std::string text(1, static_cast<char>('1' + below(9)));
        for (std::uint32_t more = below(max); more > 0; --more)
        {
            text += static_cast<char>('0' + below(10));
        }
        return text;
    }

    std::string word(std::size_t length)
    {
        std::string text;
        while (text.size() < length)
        {
            text += static_cast<char>('a' + below(26));
        }
        return text;
    }

private:
    std::uint32_t state_ = 1;
};

constexpr std::size_t size = 100'000; // of each document, about

template <typename Entry>
std::string repeated(const Entry& entry)
{
    Numbers numbers;
    std::string text;
    for (std::size_t index = 0; text.size() < size; ++index)
    {
        text += entry(numbers, index);
    }
    return text;
}

std::string numberArrays()
{
    return repeated(
        [](Numbers& numbers, std::size_t index)
        {
            std::string text = "row" + std::to_string(index) + " = [";
            for (int count = 0; count < 10; ++count)
            {
                text += (count > 0 ? ", " : "") + numbers.digits(7) +
                        (numbers.below(2) > 0 ? '.' + numbers.digits(3) : "");
            }
            return text + "]\n";
        });
}

std::string smallTables()
{
    return repeated(
        [](Numbers& numbers, std::size_t index)
        {
            return "[" + numbers.word(3 + numbers.below(8)) + '-' + std::to_string(index) +
                   ".limits]\n" + numbers.word(1 + numbers.below(10)) +
                   "-a = " + numbers.digits(5) + "\n" + numbers.word(1 + numbers.below(10)) +
                   "-b = " + (numbers.below(2) > 0 ? "true" : "false") + "\n\n";
        });
}

std::string strings()
{
    return repeated(
        [](Numbers& numbers, std::size_t index)
        {
            return numbers.word(3 + numbers.below(8)) + std::to_string(index) + " = \"" +
                   numbers.word(28) + "\"\n";
        });
}

std::string dates()
{
    return repeated(
        [](Numbers& numbers, std::size_t index)
        {
            static const std::array<const char*, 4> forms = {
                "2026-11-22T07:32:00Z", "2026-11-22 07:32:00.125", "2026-11-22", "07:32:00"};
            return "date" + std::to_string(index) + " = " + forms.at(numbers.below(4)) + '\n';
        });
}

std::string otherCharacters()
{
    return repeated(
        [](Numbers& numbers, std::size_t index)
        {
            return "# Stra\xC3\x9F"
                   "e und H\xC3\xB6he\nname" +
                   std::to_string(index) + " = \"" + numbers.word(1 + numbers.below(12)) +
                   "\xC3\xA4 \xE2\x82\xAC\" # \xC3\xBC\n";
        });
}

std::vector<Document> documents()
{
    constexpr std::size_t services = 534;
    return {{"services", bench::servicesDocument(services)},
            {"number arrays", numberArrays()},
            {"small tables", smallTables()},
            {"strings of 30 bytes", strings()},
            {"dates", dates()},
            {"not ASCII alone", otherCharacters()}};
}

template <typename Visitor>
void measure(benchmark::State& state, const std::string& document, std::size_t texts)
{
    Visitor visitor;
    for ([[maybe_unused]] auto iteration : state)
    {
        visitTomlTree(document, visitor);
    }
    benchmark::DoNotOptimize(visitor);
    state.counters["texts"] = static_cast<double>(texts);
}

template <typename Visitor>
void add(const Document& document, std::size_t texts, const char* visitor)
{
    benchmark::RegisterBenchmark((document.name + '/' + visitor).c_str(),
                                 [&document, texts](benchmark::State& state)
                                 { measure<Visitor>(state, document.text, texts); });
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

    const std::vector<Document> all = documents();
    for (const Document& document : all)
    {
        Counting counting;
        if (!visitTomlTree(document.text, counting))
        {
            std::fprintf(stderr, "%s: rejected\n", document.name.c_str());
            return EXIT_FAILURE;
        }
        add<Empty>(document, counting.count, "empty");
        add<Following>(document, counting.count, "following");
        add<Asking>(document, counting.count, "asking");
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
