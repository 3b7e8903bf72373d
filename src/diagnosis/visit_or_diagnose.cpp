#include <vorn/parsers/toml.h>
#include <vorn/parsers/toml_diagnosis.h>

#include <algorithm>

#include "direct/direct_reader.h"
#include "pipeline/input_stream.h"

namespace vorn::parsers::toml
{

std::vector<Finding> visitOrDiagnose(const std::string& document, ITomlTreeVisitor& visitor,
                                     const DiagnosisOptions& options)
{
    // Nearly all documents are valid: only the others are read twice.
    if (!options.strict && isStreamable(document) &&
        readDirectly(document, visitor) == DirectReading::accepted)
    {
        return {};
    }
    std::vector<Finding> findings = diagnose(document, options);
    const bool isAccepted =
        std::none_of(findings.begin(), findings.end(),
                     [](const Finding& finding) { return finding.severity == Severity::error; });
    if (isAccepted)
    {
        visitTomlTree(document, visitor);
    }
    return findings;
}

} // namespace vorn::parsers::toml
