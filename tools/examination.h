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

// Whether the library accepts a document, and what there is to say about it.
struct Examination
{
    Status status = accepted;
    std::vector<Finding> findings;
};

// Asks the library, which calls the visitor and is not heard otherwise, and diagnoses the
// document.
Examination examine(const std::string& text, vorn::parsers::toml::ITomlTreeVisitor& visitor);

} // namespace tool
