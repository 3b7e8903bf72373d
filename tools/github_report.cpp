#include "github_report.h"

#include <string_view>

#include "file_address.h"
#include "shown_text.h"

namespace tool
{
namespace
{

// With %25 and the like for some characters, as GitHub wants it.  What could command a terminal
// is escaped besides, as everywhere.
std::string without(std::string_view characters, const std::string& text)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string escaped;
    for (const char c : text)
    {
        if (characters.find(c) == std::string_view::npos)
        {
            escaped += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        escaped += {'%', digits[byte / 16], digits[byte % 16]};
    }
    return printable(escaped);
}

std::string property(const std::string& text)
{
    return without("%\r\n:,", text);
}

std::string message(const std::string& text)
{
    return "::" + without("%\r\n", text) + '\n';
}

std::string command(const std::string& file, const Finding& finding)
{
    const char* const level = finding.severity == Severity::error ? "::error" : "::warning";
    const std::string hint = finding.hint.empty() ? "" : '\n' + finding.hint;
    return level + (" file=" + property(file)) + ",line=" + std::to_string(finding.line) +
           ",endLine=" + std::to_string(finding.endLine) +
           ",col=" + std::to_string(finding.column) +
           ",endColumn=" + std::to_string(finding.endColumn) + ",title=" + property(finding.code) +
           message(finding.message + hint);
}

} // namespace

FileReport GithubReport::of(const CheckedFile& file) const
{
    FileReport report;
    const std::string path = plainPath(file.name);
    for (const Finding& finding : file.examination.findings)
    {
        report.output += command(path, finding);
    }
    if (!file.problem.empty())
    {
        report.output += "::error file=" + property(path) + message(file.problem);
    }
    if (!file.examination.more.empty())
    {
        report.output += "::notice file=" + property(path) + message(file.examination.more);
    }
    return report;
}

} // namespace tool
