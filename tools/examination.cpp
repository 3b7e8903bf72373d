#include "examination.h"

#include <algorithm>

#include "log.h"
#include "silent_error_stream.h"

namespace tool
{
namespace
{

constexpr std::size_t maxShown = 20;

bool isError(const Finding& finding)
{
    return finding.severity == Severity::error;
}

// Takes away the finding that only tells that there are more: a warning, if there is one.
void shorten(Examination& examination)
{
    std::vector<Finding>& findings = examination.findings;
    const auto warning = std::find_if_not(findings.rbegin(), findings.rend(), isError);
    const bool isWarning = warning != findings.rend();
    findings.erase(isWarning ? std::prev(warning.base()) : std::prev(findings.end()));
    examination.more = isWarning ? "there are more findings; check --all shows them"
                                 : "there are more errors; check --all shows them";
}

} // namespace

Examination diagnosed(const std::string& text, const DiagnosisRange& range)
{
    vorn::parsers::toml::DiagnosisOptions options;
    options.strict = range.strict;
    options.maxFindings = range.isUnlimited ? 0 : maxShown + 1;
    Examination examination;
    examination.findings = vorn::parsers::toml::diagnose(text, options);
    const bool hasError =
        std::any_of(examination.findings.begin(), examination.findings.end(), isError);
    examination.status = hasError ? rejected : accepted;
    if (!range.isUnlimited && examination.findings.size() > maxShown)
    {
        shorten(examination);
    }
    return examination;
}

Examination examine(const std::string& text, vorn::parsers::toml::ITomlTreeVisitor& visitor)
{
    Status status = accepted;
    {
        const HeldLog log;
        const SilentErrorStream silent;
        status = vorn::parsers::toml::visitTomlTree(text, visitor) ? accepted : rejected;
    }
    Examination examination = diagnosed(text, {});
    examination.status = status;
    return examination;
}

} // namespace tool
