// What the diagnosis says of a document, as far as it matters to a configuration.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <vorn/parsers/toml_config.h>
#include <vorn/parsers/toml_diagnosis.h>

namespace vorn::parsers::toml::config
{

// What TOML 1.0 forbids in a document that the library accepts.  It is looked for when it is first
// asked for, which takes some five times as long as reading the document.
class StrictFindings
{
public:
    explicit StrictFindings(const std::string& document) : document_(document) {}

    // Keys and tables that are defined twice.
    const std::vector<Finding>& definedTwice() { return found().definedTwice; }
    // Whether there is too much to look for more.
    bool areCut() { return found().areCut; }
    // What is told of a scalar or a key that has no value, like the 30th of February; null if
    // that is nothing.
    const Finding* noValueIn(std::size_t begin, std::size_t end);

private:
    struct Found
    {
        bool isDone = false;
        bool areCut = false;
        std::vector<Finding> definedTwice;
        std::vector<Finding> noValues;
    };

    const Found& found();

    const std::string& document_;
    Found found_;
};

// A finding as a problem; of what is defined twice, the hint has the first place.
Problem problemOf(const Finding& finding);

} // namespace vorn::parsers::toml::config
