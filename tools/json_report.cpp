#include "json_report.h"

#include <nlohmann/json.hpp>

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
    for (const Finding& one : diagnosis.findings)
    {
        findings.push_back(finding(one, lines));
    }
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
