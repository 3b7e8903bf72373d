#include "shrinking.h"

namespace test
{
namespace
{

using Predicate = std::function<bool(const std::string&)>;

// Documents up to this size can be tried without each part of theirs.
constexpr std::size_t small = 300;

// How many runs of a document are tried at the most.
constexpr std::size_t mostRuns = 2000;

// Takes over a document if the predicate holds for it.
bool takeIf(const Predicate& holds, std::string& document, std::string&& shorter)
{
    const bool taken = holds(shorter);
    if (taken)
    {
        document = std::move(shorter);
    }
    return taken;
}

// Leaves out runs of `length` bytes; tells whether any could go.
bool leaveOutRuns(std::string& document, std::size_t length, std::size_t step,
                  const Predicate& holds)
{
    bool any = false;
    for (std::size_t at = 0; at + length <= document.size();)
    {
        std::string shorter = document;
        shorter.erase(at, length);
        const bool taken = takeIf(holds, document, std::move(shorter));
        at += taken ? 0 : step;
        any = any || taken;
    }
    return any;
}

// Leaves out two bytes at once, such as brackets.
bool leaveOutPairs(std::string& document, const Predicate& holds)
{
    bool any = false;
    for (std::size_t first = 0; first < document.size(); ++first)
    {
        for (std::size_t second = first + 1; second < document.size();)
        {
            std::string shorter = document;
            shorter.erase(second, 1).erase(first, 1);
            const bool taken = takeIf(holds, document, std::move(shorter));
            second = taken ? first + 1 : second + 1;
            any = any || taken;
        }
    }
    return any;
}

bool leaveOutAny(std::string& document, const Predicate& holds)
{
    bool any = false;
    for (std::size_t length = document.size(); length > 0; --length)
    {
        any = leaveOutRuns(document, length, 1, holds) || any;
    }
    return leaveOutPairs(document, holds) || any;
}

} // namespace

std::string shrunk(std::string document, const Predicate& holds)
{
    for (std::size_t length = document.size(); length > 0 && document.size() / length <= mostRuns;
         length /= 2)
    {
        leaveOutRuns(document, length, length, holds);
    }
    while (document.size() <= small && leaveOutAny(document, holds))
    {
    }
    return document;
}

} // namespace test
