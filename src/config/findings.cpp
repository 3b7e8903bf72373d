#include "findings.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include "problems.h"

namespace vorn::parsers::toml::config
{
namespace
{

// Of what only TOML 1.0 forbids.
constexpr std::array<std::string_view, 9> twiceCodes{"duplicate-key",
                                                     "duplicate-table",
                                                     "table-over-value",
                                                     "value-over-table",
                                                     "table-over-array-of-tables",
                                                     "array-of-tables-over-table",
                                                     "inline-table-extended",
                                                     "array-extended",
                                                     "dotted-key-over-table"};
constexpr std::array<std::string_view, 4> noValueCodes{
    "date-does-not-exist", "time-does-not-exist", "offset-out-of-range", "escape-of-no-character"};

// "it is defined at 3:5 first": a problem has no second place.
std::string placed(const RelatedPlace& related)
{
    constexpr std::string_view here = "here";
    const std::string place =
        "at " + std::to_string(related.line) + ':' + std::to_string(related.column);
    std::string text = related.message;
    const std::size_t at = text.find(here);
    return at == std::string::npos ? text + ' ' + place : text.replace(at, here.size(), place);
}

template <typename Codes>
bool isOneOf(const Codes& codes, const Finding& finding)
{
    return std::find(codes.begin(), codes.end(), finding.code) != codes.end();
}

} // namespace

const StrictFindings::Found& StrictFindings::found()
{
    if (!found_.isDone)
    {
        DiagnosisOptions options;
        options.strict = true;
        options.maxFindings = Problems::max;
        std::vector<Finding> findings = diagnose(document_, options);
        found_.areCut = findings.size() == options.maxFindings;
        for (Finding& finding : findings)
        {
            if (isOneOf(twiceCodes, finding))
            {
                found_.definedTwice.push_back(std::move(finding));
            }
            else if (isOneOf(noValueCodes, finding))
            {
                found_.noValues.push_back(std::move(finding));
            }
        }
        found_.isDone = true;
    }
    return found_;
}

const Finding* StrictFindings::noValueIn(std::size_t begin, std::size_t end)
{
    const std::vector<Finding>& findings = found().noValues;
    const auto first =
        std::lower_bound(findings.begin(), findings.end(), begin,
                         [](const Finding& one, std::size_t offset) { return one.begin < offset; });
    return first != findings.end() && first->begin < end ? &*first : nullptr;
}

Problem problemOf(const Finding& finding)
{
    Problem problem;
    problem.message = finding.message;
    const bool isTwice = isOneOf(twiceCodes, finding) && !finding.related.empty();
    problem.hint = isTwice ? placed(finding.related.front()) : finding.hint;
    problem.severity = finding.severity;
    return problem;
}

} // namespace vorn::parsers::toml::config
