// Any bytes as a document to diagnose: there is an error where the library rejects it and
// nowhere else, and every finding holds what the public header says.
#include "finding.h"

#include "support/reading.h"

#include <vorn/parsers/toml_diagnosis.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <tuple>
#include <vector>

namespace toml = vorn::parsers::toml;

namespace
{

std::vector<toml::Finding> diagnosed(const std::string& document, bool strict,
                                     std::size_t maxFindings)
{
    toml::DiagnosisOptions options;
    options.strict = strict;
    options.maxFindings = maxFindings;
    return toml::diagnose(document, options);
}

bool hasError(const std::vector<toml::Finding>& findings)
{
    return std::any_of(findings.begin(), findings.end(),
                       [](const toml::Finding& one)
                       { return one.severity == toml::Severity::error; });
}

template <typename Place>
bool isWithin(const Place& place, const std::string& document)
{
    return place.begin <= place.end && place.end <= document.size() && place.line >= 1 &&
           place.column >= 1 &&
           std::tie(place.line, place.column) <= std::tie(place.endLine, place.endColumn);
}

void expectSound(const std::vector<toml::Finding>& findings, const std::string& document)
{
    std::size_t before = 0;
    for (const toml::Finding& finding : findings)
    {
        fuzz::expect(isWithin(finding, document), "a finding is in the document", document);
        fuzz::expect(before <= finding.begin, "findings are in order", document);
        fuzz::expect(!finding.code.empty() && !finding.message.empty(), "a finding has words",
                     document);
        before = finding.begin;
        for (const toml::RelatedPlace& place : finding.related)
        {
            fuzz::expect(isWithin(place, document), "a place is in the document", document);
        }
        const std::string excerpt = toml::excerpt(document, finding);
        fuzz::expect(std::none_of(excerpt.begin(), excerpt.end(),
                                  [](char c) { return (c >= 0 && c < ' ' && c != '\n'); }),
                     "an excerpt can be printed", document);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string document(reinterpret_cast<const char*>(data), size);
    const bool accepted = test::read(document).accepted;
    const std::vector<toml::Finding> all = diagnosed(document, false, 0);
    fuzz::expect(hasError(all) == !accepted, "there is an error where it is rejected", document);
    expectSound(all, document);
    const std::vector<toml::Finding> few = diagnosed(document, false, 2);
    fuzz::expect(few.size() == std::min<std::size_t>(all.size(), 2), "there are two", document);
    fuzz::expect(hasError(few) == hasError(all), "errors come first", document);
    const std::vector<toml::Finding> strict = diagnosed(document, true, 0);
    fuzz::expect(accepted || hasError(strict), "strict is not more lenient", document);
    expectSound(strict, document);
    return 0;
}
