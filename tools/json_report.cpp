#include "json_report.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <iterator>

namespace tool
{
namespace
{

using Json = nlohmann::ordered_json;

const char* statusName(Status status)
{
    return status == accepted ? "accepted" : status == rejected ? "rejected" : "unreadable";
}

Json json(const Finding& finding)
{
    Json json = {{"severity", finding.severity == Severity::error ? "error" : "warning"},
                 {"line", finding.line},
                 {"column", finding.column},
                 {"endLine", finding.endLine},
                 {"endColumn", finding.endColumn},
                 {"code", finding.code},
                 {"message", finding.message}};
    if (!finding.hint.empty())
    {
        json["hint"] = finding.hint;
    }
    return json;
}

} // namespace

Json jsonReport(const std::string& name, const Examination& examination)
{
    Json findings = Json::array();
    std::transform(examination.findings.begin(), examination.findings.end(),
                   std::back_inserter(findings), json);
    const auto errors =
        std::count_if(examination.findings.begin(), examination.findings.end(),
                      [](const Finding& one) { return one.severity == Severity::error; });
    return {{"file", name},
            {"status", statusName(examination.status)},
            {"errors", errors},
            {"findings", std::move(findings)}};
}

} // namespace tool
