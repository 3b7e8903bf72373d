#include "examination.h"

#include <new>

#include "log.h"
#include "reading.h"
#include "silent_error_stream.h"

namespace tool
{
namespace
{

struct Verdict
{
    bool isAccepted;
    Refusal refusal;
};

Verdict ask(const std::string& text, vorn::parsers::toml::ITomlTreeVisitor& visitor)
{
    const HeldLog log;
    const SilentErrorStream silent;
    vorn::parsers::toml::Refusal refusal;
    const bool isAccepted = vorn::parsers::toml::visitTomlTree(text, visitor, refusal);
    return {isAccepted, refusal.reason};
}

Diagnosis diagnosisOf(const std::string& text, Refusal refusal)
{
    Diagnosis diagnosis;
    diagnosis.refusal = refusal;
    if (refusal != Refusal::none)
    {
        return diagnosis;
    }
    try
    {
        diagnosis = diagnose(text);
    }
    catch (const std::bad_alloc&)
    {
        diagnosis.refusal = Refusal::tooLarge;
    }
    if (diagnosis.refusal == Refusal::none && diagnosis.errors == 0)
    {
        // Not known to happen; but what is rejected is never passed over.
        diagnosis.errors = 1;
        diagnosis.findings.push_back(
            {Severity::error, 0, 0, "the document is rejected for an unknown reason", ""});
    }
    return diagnosis;
}

} // namespace

Examination examine(const std::string& text, vorn::parsers::toml::ITomlTreeVisitor& visitor)
{
    Examination examination;
    const Verdict verdict = ask(text, visitor);
    if (verdict.isAccepted)
    {
        examination.diagnosis.findings = warningsFor(text);
        return examination;
    }
    examination.status = rejected;
    examination.diagnosis = diagnosisOf(text, verdict.refusal);
    return examination;
}

} // namespace tool
