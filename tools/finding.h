#pragma once

#include <cstddef>
#include <string>

namespace tool
{

enum class Severity
{
    error,
    warning,
};

// What there is to say about a place in a document.
struct Finding
{
    Severity severity = Severity::error;
    std::size_t begin = 0; // offsets
    std::size_t end = 0;
    std::string message;
    std::string hint; // may be empty
};

} // namespace tool
