#include "repeated_times.h"

#include <vorn/parsers/toml.h>

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>

#include "processor_time.h"
#include "tests/support/child_result.h"

namespace bench
{
namespace
{

double timeOfReading(const std::string& text, bool accepted)
{
    vorn::parsers::toml::TomlTreeVisitor visitor;
    const double start = processorMilliseconds();
    const bool wasAccepted = vorn::parsers::toml::visitTomlTree(text, visitor);
    const double end = processorMilliseconds();
    if (wasAccepted != accepted)
    {
        throw std::runtime_error("not read as expected");
    }
    return end - start;
}

Times timesOfProcess(const Document& document)
{
    constexpr int minRepetitions = 3;
    constexpr double enough = 100; // milliseconds
    timeOfReading(document.make(kilobyte), document.accepted);
    const std::string text = document.make(document.size);
    const double first = timeOfReading(text, document.accepted);
    Times times = {first, first};
    double sum = 0;
    for (int count = 0; count < minRepetitions || sum < enough; ++count)
    {
        const double time = timeOfReading(text, document.accepted);
        times.later = count == 0 ? time : std::min(times.later, time);
        sum += time;
    }
    return times;
}

} // namespace

Times timesOf(const Document& document)
{
    constexpr int processes = 3;
    std::optional<Times> least;
    for (int count = 0; count < processes; ++count)
    {
        const auto times = test::resultOfChild([&] { return timesOfProcess(document); });
        if (!times)
        {
            throw std::runtime_error(document.name + ": not read as expected");
        }
        least = least ? Times{std::min(least->first, times->first),
                              std::min(least->later, times->later)}
                      : *times;
    }
    return *least;
}

} // namespace bench
