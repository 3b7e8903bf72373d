#include <cstdio>

#include <nlohmann/json.hpp>

#include <vorn/parsers/toml.h>

#include "commands.h"
#include "each_file.h"
#include "json_report.h"
#include "shown_text.h"

namespace tool
{
namespace
{

Status checkFile(const std::string& name, Progress& progress, const Options& options,
                 nlohmann::ordered_json& reports)
{
    const std::optional<std::string> text = readInput(name, progress);
    Examination examination;
    examination.status = unreadable;
    if (text)
    {
        progress.work(text->size());
        vorn::parsers::toml::TomlTreeVisitor visitor;
        examination = examine(*text, visitor);
        progress.clear();
    }
    if (options.json)
    {
        reports.push_back(jsonReport(name, examination));
    }
    else if (text)
    {
        explain(name, *text, examination, options);
        std::printf("%s: %s\n", printable(name).c_str(),
                    examination.status == accepted ? "accepted" : "rejected");
    }
    return examination.status;
}

} // namespace

Status check(const Options& options)
{
    nlohmann::ordered_json reports = nlohmann::ordered_json::array();
    const Status status = eachFile(options, true,
                                   [&](const std::string& name, Progress& progress)
                                   { return checkFile(name, progress, options, reports); });
    if (options.json)
    {
        const auto replace = nlohmann::ordered_json::error_handler_t::replace;
        std::printf("%s\n", reports.dump(2, ' ', true, replace).c_str());
    }
    return status;
}

} // namespace tool
