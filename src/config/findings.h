// What the diagnosis says of a document, as far as it matters to a configuration.
#pragma once

#include <string>
#include <vector>

#include <vorn/parsers/toml_config.h>
#include <vorn/parsers/toml_diagnosis.h>

namespace vorn::parsers::toml::config
{

struct Findings
{
    bool isAccepted = true; // by visitTomlTree()
    // Mistakes of the document, and what TOML 1.0 does not let be defined twice.
    std::vector<Finding> problems;
    // Scalars and keys that have no value, like the 30th of February, in the order of the places.
    // They matter if somebody wants the value.
    std::vector<Finding> noValues;
};

Findings findingsOf(const std::string& document);

// A finding as a problem; of what is defined twice, the hint has the first place.
Problem problemOf(const Finding& finding);

} // namespace vorn::parsers::toml::config
