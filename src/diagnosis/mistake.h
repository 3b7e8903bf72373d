#pragma once

#include <vorn/parsers/toml_diagnosis.h>

#include <cstddef>
#include <string>
#include <vector>

namespace vorn::parsers::toml::diagnosis
{

// Another place that a mistake is about; offsets.
struct Origin
{
    std::size_t begin;
    std::size_t end;
    std::string message;
};

// A finding before its lines and columns are counted.
struct Mistake
{
    Severity severity;
    std::size_t begin; // offsets
    std::size_t end;
    const char* code;
    std::string message;
    std::string hint; // may be empty
    std::vector<Origin> origins = {};
    // Where it is not empty, the message goes on with the line of the first origin, then with this:
    // lines are counted once, for all places.
    std::string afterLine = {};
};

} // namespace vorn::parsers::toml::diagnosis
