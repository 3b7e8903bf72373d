#include "problems.h"

#include <algorithm>
#include <iterator>
#include <ostream>
#include <tuple>
#include <utility>

#include "line_counter.h"

namespace vorn::parsers::toml
{
namespace config
{

void Problems::add(Spot spot, Problem&& problem, Order order)
{
    if (!takes(problem))
    {
        return;
    }
    hasErrors_ = hasErrors_ || problem.severity == Severity::error;
    if (found_.size() == max)
    {
        // Warnings do not keep the only error from being told.
        found_.pop_back();
    }
    found_.push_back({order, spot, std::move(problem)});
}

std::vector<Problem> Problems::take(const std::vector<Source>& sources)
{
    const auto key = [](const Found& found)
    { return std::make_tuple(found.order, found.spot.source, found.spot.offset); };
    std::stable_sort(found_.begin(), found_.end(),
                     [&key](const Found& one, const Found& other)
                     { return key(one) < key(other); });
    std::vector<LineCounter> counters;
    std::transform(sources.begin(), sources.end(), std::back_inserter(counters),
                   [](const Source& source) { return LineCounter(*source.text); });
    std::vector<Problem> problems;
    for (Found& found : found_)
    {
        found.problem.place = counters[found.spot.source].at(found.spot.offset);
        found.problem.file = sources[found.spot.source].file;
        problems.push_back(std::move(found.problem));
    }
    return problems;
}

bool haveErrors(const std::vector<Problem>& problems) noexcept
{
    return std::any_of(problems.begin(), problems.end(),
                       [](const Problem& problem) { return problem.severity == Severity::error; });
}

} // namespace config

std::ostream& operator<<(std::ostream& stream, const Problem& problem)
{
    std::string line;
    if (!problem.file.empty())
    {
        line += problem.file + ':';
    }
    if (problem.place.line > 0)
    {
        line +=
            std::to_string(problem.place.line) + ':' + std::to_string(problem.place.column) + ':';
    }
    line += line.empty() ? "" : " ";
    line += problem.severity == Severity::warning ? "warning: " : "";
    line += problem.path.empty() ? "" : problem.path + ": ";
    line += problem.message;
    line += problem.hint.empty() ? "" : " (" + problem.hint + ')';
    return stream << line;
}

} // namespace vorn::parsers::toml
