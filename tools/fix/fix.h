// Rewrites documents of TOML 1.0 into what the library accepts, with the same meaning.
#pragma once

#include <vorn/parsers/toml_diagnosis.h>

#include <string>
#include <vector>

namespace tool::fixing
{

using vorn::parsers::toml::Finding;

struct FixOptions
{
    bool dropsComments = false; // those that cannot be expressed
};

enum class FixOutcome
{
    unchanged,     // the library accepts the document
    fixed,         // it accepts the result, which means the same
    inexpressible, // the findings say what the library has no form for
    notToml,       // it is not TOML 1.0, and the library does not accept it; the finding says why
    failed,        // the result is not as it should be: a mistake of this program
};

struct FixResult
{
    FixOutcome outcome;
    std::string text;              // what is to be written, if it is fixed
    std::vector<Finding> findings; // without lines and columns
};

// All that the library accepts stays, byte for byte.
FixResult fix(const std::string& text, const FixOptions& options);

} // namespace tool::fixing
