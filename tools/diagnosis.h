// What is wrong with a document, in words for whoever fixes it.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "finding.h"
#include "recognition.h"

namespace tool
{

struct Diagnosis
{
    Refusal refusal = Refusal::none; // then there are no findings
    std::size_t errors = 0;          // their number
    std::vector<Finding> findings;   // the first errors, and warnings, in document order
};

// Errors after these are only counted.
constexpr std::size_t maxErrors = 20;

// Runs the recognisers over a document.  Errors that follow from a reported one are left out.
// There is an error if, and only if, the document is rejected.
Diagnosis diagnose(const std::string& text);

// The warnings for an accepted document.
std::vector<Finding> warningsFor(const std::string& text);

} // namespace tool
