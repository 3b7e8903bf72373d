// What is wrong with a document, in words for whoever mends it.
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
    std::size_t errors = 0;          // how many there are
    std::vector<Finding> findings;   // the first errors, and warnings, in the order of the places
};

// So many errors are told in words.
constexpr std::size_t mostErrors = 20;

// Runs the recognisers over a document.  What follows from an error that is reported is left
// out; there is an error if, and only if, the document is rejected.
Diagnosis diagnose(const std::string& text);

// The warnings of a document that is accepted.
std::vector<Finding> warningsFor(const std::string& text);

} // namespace tool
