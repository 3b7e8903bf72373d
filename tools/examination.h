#pragma once

#include <vorn/parsers/toml.h>

#include <string>

#include "diagnosis.h"
#include "status.h"

namespace tool
{

// Whether the library accepts a document, and what is wrong with it.
struct Examination
{
    Status status = accepted;
    Diagnosis diagnosis;
};

// Asks the library, which calls the visitor and is not heard otherwise, and diagnoses what
// it rejects.
Examination examine(const std::string& text, vorn::parsers::toml::ITomlTreeVisitor& visitor);

} // namespace tool
