#include "sarif_report.h"

#include <vorn/parsers/toml.h>

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "file_address.h"

namespace tool
{
namespace
{

constexpr int resultIndentation = 8;

// A column that is given twice is an empty region: there something is missing.
template <typename Place>
Json locationOf(const std::string& uri, const Place& place)
{
    return {{"physicalLocation",
             {{"artifactLocation", {{"uri", uri}}},
              {"region",
               {{"startLine", place.line},
                {"startColumn", place.column},
                {"endLine", place.endLine},
                {"endColumn", place.endColumn},
                {"byteOffset", place.begin},
                {"byteLength", place.end - place.begin}}}}}};
}

Json resultOf(const std::string& uri, const Finding& finding)
{
    const std::string hint = finding.hint.empty() ? "" : '\n' + finding.hint;
    Json result = {{"ruleId", finding.code},
                   {"level", finding.severity == Severity::error ? "error" : "warning"},
                   {"message", {{"text", finding.message + hint}}},
                   {"locations", Json::array({locationOf(uri, finding)})}};
    for (const vorn::parsers::toml::RelatedPlace& place : finding.related)
    {
        Json location = locationOf(uri, place);
        location["message"]["text"] = place.message;
        result["relatedLocations"].push_back(std::move(location));
    }
    return result;
}

// What a file's report says besides its results.
Json noteOf(const CheckedFile& file)
{
    const bool isRead = file.problem.empty();
    return {{"level", isRead ? "note" : "error"},
            {"message", {{"text", isRead ? file.examination.more : file.problem}}},
            {"locations", Json::array({{{"physicalLocation",
                                         {{"artifactLocation", {{"uri", uriOf(file.name)}}}}}}})}};
}

} // namespace

SarifReport::SarifReport()
{
    std::fputs("{\n"
               "  \"$schema\": \"https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/"
               "schemas/sarif-schema-2.1.0.json\",\n"
               "  \"version\": \"2.1.0\",\n"
               "  \"runs\": [\n"
               "    {\n"
               "      \"results\": ",
               stdout);
}

FileReport SarifReport::of(const CheckedFile& file) const
{
    FileReport report;
    const std::string uri = uriOf(file.name);
    for (const Finding& finding : file.examination.findings)
    {
        report.codes.push_back(finding.code);
        report.output += report.output.empty() ? "" : JsonList::separator();
        report.output += indented(resultOf(uri, finding), resultIndentation);
    }
    if (!file.problem.empty() || !file.examination.more.empty())
    {
        report.note = indented(noteOf(file), 0);
    }
    return report;
}

void SarifReport::print(const FileReport& file)
{
    std::fputs(file.error.c_str(), stderr);
    results_.print(file.output);
    codes_.insert(file.codes.begin(), file.codes.end());
    isComplete_ = isComplete_ && file.status != unreadable;
    if (!file.note.empty())
    {
        notes_.push_back(Json::parse(file.note));
    }
}

void SarifReport::end()
{
    results_.end();
    Json rules = Json::array();
    std::transform(codes_.begin(), codes_.end(), std::back_inserter(rules),
                   [](const std::string& code) {
                       return Json{{"id", code}};
                   });
    const Json tool = {{"driver",
                        {{"name", "vorn-toml"},
                         {"version", vorn::parsers::toml::version()},
                         {"rules", std::move(rules)}}}};
    Json invocation = {{"executionSuccessful", isComplete_}};
    if (!notes_.empty())
    {
        invocation["toolExecutionNotifications"] = std::move(notes_);
    }
    const std::string invocations = indented(Json::array({std::move(invocation)}), 6);
    std::printf(",\n      \"tool\": %s,\n", indented(tool, 6).c_str() + 6);
    std::printf("      \"invocations\": %s,\n", invocations.c_str() + 6);
    std::fputs("      \"columnKind\": \"unicodeCodePoints\"\n    }\n  ]\n}\n", stdout);
}

} // namespace tool
