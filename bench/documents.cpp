#include "documents.h"

#include <cstdint>
#include <utility>

#include "service_text.h"

namespace bench
{
namespace
{

// Makes part `number` of a document.  Parts follow each other in any number.
using Part = std::string (*)(unsigned number);

std::string numbered(const char* text, unsigned number)
{
    return text + std::to_string(number);
}

// A string of about 1 KB.
std::string longString(unsigned number)
{
    std::string text = numbered("text-", number) + " = \"";
    for (unsigned count = 0; count < 22; ++count)
    {
        text += "the quick brown fox jumps over the lazy dog ";
    }
    return text + "\"\n";
}

std::string numberArray(unsigned number)
{
    std::string text = numbered("samples-", number) + " = [";
    for (unsigned index = 0; index < 70; ++index)
    {
        text += (index > 0 ? ", " : "") + std::to_string((number * 7919 + index * 104729) % 100000);
    }
    return text + "]\n";
}

std::string smallTable(unsigned number)
{
    return "# The sensor in slot " + std::to_string(number) +
           ", calibrated at the factory.\n"
           "[sensor." +
           numbered("slot-", number) +
           "]\n"
           "unit = \"celsius\"  # shown beside the value\n"
           "offset = -0.25\n"
           "active = true\n"
           "\n";
}

// Dates, in inline tables too.
std::string datedEntry(unsigned number)
{
    return "[[entry]]\n"
           "created = 1979-05-27T07:32:00Z\n"
           "changed = 1979-05-27T00:32:00.999999-07:00\n"
           "day = 1979-05-27\n"
           "window = { from = 07:32:00, until = 09:15:00, zone = { id = " +
           std::to_string(number) + ", local = 1979-05-27T07:32:00 } }\n";
}

// Numbers without a pattern, the same on every machine.
class Numbers
{
public:
    explicit Numbers(unsigned seed) : state_(seed * 2654435761U + 1) {}

    // From 0 to below `end`.
    unsigned below(unsigned end)
    {
        state_ = state_ * 1664525U + 1013904223U;
        return (state_ >> 8U) % end;
    }

private:
    std::uint32_t state_;
};

std::string word(Numbers& numbers)
{
    std::string letters;
    for (unsigned left = 2 + numbers.below(10); left > 0; --left)
    {
        letters += static_cast<char>('a' + numbers.below(26));
    }
    return letters;
}

std::string words(Numbers& numbers, unsigned count)
{
    return count <= 1 ? word(numbers) : word(numbers) + ' ' + words(numbers, count - 1);
}

std::string randomNumber(Numbers& numbers)
{
    constexpr unsigned ends[] = {10, 100, 1'000, 10'000, 100'000, 1'000'000};
    return std::to_string(numbers.below(ends[numbers.below(6)]));
}

std::string randomValue(Numbers& numbers)
{
    switch (numbers.below(10))
    {
    case 0:
    case 1:
    case 2:
    case 3:
        return '"' + words(numbers, 1 + numbers.below(4)) + '"';
    case 4:
    case 5:
        return randomNumber(numbers);
    case 6:
        return (numbers.below(2) == 0 ? "-" : "") + randomNumber(numbers) + '.' +
               randomNumber(numbers);
    case 7:
        return "[" + randomNumber(numbers) + ", " + randomNumber(numbers) + ", " +
               randomNumber(numbers) + "]";
    default:
        return numbers.below(2) == 0 ? "true" : "false";
    }
}

// A table of words and values whose lengths and order no processor can foresee.
std::string randomTable(unsigned number)
{
    Numbers numbers(number);
    std::string text = "[" + word(numbers) + numbered(".t", number) + "]\n";
    for (unsigned index = 0, count = 2 + numbers.below(8); index < count; ++index)
    {
        text += word(numbers) + numbered("_", index) + " = " + randomValue(numbers) +
                (numbers.below(8) == 0 ? "  # " + words(numbers, 4) : "") + '\n';
    }
    return text + '\n';
}

// One part of each kind.  Where keys stand in no table of their own they get one.
std::string mixed(unsigned number)
{
    return serviceText(number) + smallTable(number) + datedEntry(number) +
           numbered("\n[part-", number) + "]\n" + numberArray(number) + longString(number);
}

// As many parts as bring the text closest to the size.
std::string repeat(Part part, std::size_t size)
{
    std::string text;
    for (unsigned number = 0;; ++number)
    {
        const std::string next = part(number);
        if (text.size() + next.size() / 2 >= size)
        {
            return text;
        }
        text += next;
    }
}

} // namespace

std::vector<Document> documents()
{
    const std::pair<const char*, Part> kinds[] = {
        {"services", serviceText},    {"long-strings", longString}, {"number-arrays", numberArray},
        {"small-tables", smallTable}, {"dates", datedEntry},        {"random-tables", randomTable}};
    const std::pair<const char*, std::size_t> sizes[] = {
        {"1KB", 1'000}, {"100KB", 100'000}, {"1MB", 1'000'000}};
    std::vector<Document> all;
    for (const auto& [kind, part] : kinds)
    {
        for (const auto& [name, size] : sizes)
        {
            all.push_back({std::string(kind) + '/' + name, size, repeat(part, size)});
        }
    }
    all.push_back({"mixed/10MB", 10'000'000, repeat(mixed, 10'000'000)});
    return all;
}

} // namespace bench
