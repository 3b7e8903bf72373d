#pragma once

#include <vorn/parsers/toml.h>
#include <vorn/parsers/toml_diagnosis.h>

#include <string>
#include <vector>

#include "status.h"

namespace tool
{

using vorn::parsers::toml::Finding;
using vorn::parsers::toml::Severity;

// Whether a document is accepted, and what there is to say about it.
struct Examination
{
    Status status = accepted;
    std::vector<Finding> findings;
    std::string more; // says that there are more findings than these; empty if there are none
};

struct DiagnosisRange
{
    bool strict = false;      // what TOML 1.0 forbids is an error, too
    bool isUnlimited = false; // not only the first findings
};

// Diagnoses a document; it is accepted if there is no error.
Examination diagnosed(const std::string& text, const DiagnosisRange& range);

// Asks the library, which calls the visitor and is not heard otherwise, and diagnoses the
// document.
Examination examine(const std::string& text, vorn::parsers::toml::ITomlTreeVisitor& visitor);

} // namespace tool
