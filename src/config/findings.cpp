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
constexpr std::array<std::string_view, 9> definedTwice{"duplicate-key",
                                                       "duplicate-table",
                                                       "table-over-value",
                                                       "value-over-table",
                                                       "table-over-array-of-tables",
                                                       "array-of-tables-over-table",
                                                       "inline-table-extended",
                                                       "array-extended",
                                                       "dotted-key-over-table"};
constexpr std::array<std::string_view, 4> noValue{"date-does-not-exist", "time-does-not-exist",
                                                  "offset-out-of-range", "escape-of-no-character"};

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

std::vector<Finding> diagnosed(const std::string& document, bool isStrict)
{
    DiagnosisOptions options;
    options.strict = isStrict;
    options.maxFindings = Problems::max;
    return diagnose(document, options);
}

} // namespace

Findings findingsOf(const std::string& document)
{
    Findings findings;
    std::vector<Finding> strict = diagnosed(document, true);
    if (strict.empty())
    {
        return findings;
    }
    findings.problems = diagnosed(document, false);
    findings.isAccepted =
        std::none_of(findings.problems.begin(), findings.problems.end(),
                     [](const Finding& finding) { return finding.severity == Severity::error; });
    for (Finding& finding : strict)
    {
        if (isOneOf(definedTwice, finding))
        {
            findings.problems.push_back(std::move(finding));
        }
        else if (isOneOf(noValue, finding))
        {
            findings.noValues.push_back(std::move(finding));
        }
    }
    return findings;
}

Problem problemOf(const Finding& finding)
{
    Problem problem;
    problem.message = finding.message;
    const bool isTwice = isOneOf(definedTwice, finding) && !finding.related.empty();
    problem.hint = isTwice ? placed(finding.related.front()) : finding.hint;
    problem.severity = finding.severity;
    return problem;
}

} // namespace vorn::parsers::toml::config
