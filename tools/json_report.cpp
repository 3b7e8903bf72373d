#include "json_report.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <iterator>

#include "source_lines.h"
#include "text_report.h"

namespace tool
{
namespace
{

using Json = nlohmann::ordered_json;

const char* statusName(Status status)
{
    return status == accepted ? "accepted" : status == rejected ? "rejected" : "unreadable";
}

Json finding(const Finding& finding, const SourceLines& lines)
{
    const SourcePlace begin = lines.placeOf(finding.begin);
    const SourcePlace end = lines.placeOf(finding.end);
    Json json = {{"severity", finding.severity == Severity::error ? "error" : "warning"},
                 {"line", begin.line},
                 {"column", begin.column},
                 {"endLine", end.line},
                 {"endColumn", end.column},
                 {"message", finding.message}};
    if (!finding.hint.empty())
    {
        json["hint"] = finding.hint;
    }
    return json;
}

} // namespace

Json jsonReport(const std::string& name, Status status, std::string_view text,
                const Diagnosis& diagnosis)
{
    const SourceLines lines(diagnosis.findings.empty() ? std::string_view() : text);
    Json findings = Json::array();
    std::transform(diagnosis.findings.begin(), diagnosis.findings.end(),
                   std::back_inserter(findings),
                   [&lines](const Finding& one) { return finding(one, lines); });
    Json json = {{"file", name},
                 {"status", statusName(status)},
                 {"errors", diagnosis.errors},
                 {"findings", std::move(findings)}};
    if (diagnosis.refusal != Refusal::none)
    {
        json["refusal"] = refusalMessage(diagnosis.refusal);
    }
    return json;
}

} // namespace tool
