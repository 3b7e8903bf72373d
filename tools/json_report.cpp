#include "json_report.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace tool
{
namespace
{

template <typename Place>
Json placeOf(const Place& place)
{
    return {{"line", place.line},
            {"column", place.column},
            {"endLine", place.endLine},
            {"endColumn", place.endColumn}};
}

Json json(const vorn::parsers::toml::RelatedPlace& place)
{
    Json json = placeOf(place);
    json["message"] = place.message;
    return json;
}

Json json(const Finding& finding)
{
    Json json = {{"severity", finding.severity == Severity::error ? "error" : "warning"}};
    json.update(placeOf(finding));
    json["code"] = finding.code;
    json["message"] = finding.message;
    if (!finding.hint.empty())
    {
        json["hint"] = finding.hint;
    }
    for (const vorn::parsers::toml::RelatedPlace& place : finding.related)
    {
        json["related"].push_back(tool::json(place));
    }
    return json;
}

} // namespace

FileReport JsonReport::of(const CheckedFile& file) const
{
    const std::vector<Finding>& all = file.examination.findings;
    Json findings = Json::array();
    std::transform(all.begin(), all.end(), std::back_inserter(findings),
                   [](const Finding& one) { return json(one); });
    Json object = {{"file", file.name},
                   {"status", statusName(file.examination.status)},
                   {"errors", std::count_if(all.begin(), all.end(),
                                            [](const Finding& one)
                                            { return one.severity == Severity::error; })},
                   {"findings", std::move(findings)}};
    if (!file.examination.more.empty())
    {
        object["more"] = true;
    }
    FileReport report;
    report.output = indented(object, 2);
    return report;
}

void JsonReport::print(const FileReport& file)
{
    std::fputs(file.error.c_str(), stderr);
    files_.print(file.output);
}

void JsonReport::end()
{
    files_.end();
    std::fputc('\n', stdout);
}

} // namespace tool
