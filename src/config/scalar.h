// A scalar of a document, and what to call it.
#pragma once

#include <cstddef>
#include <string_view>

namespace vorn::parsers::toml::config
{

enum class ScalarKind
{
    string,
    integer,
    floating,
    boolean,
    dateTime,
    date,
    time,
};

struct Scalar
{
    ScalarKind kind;
    std::string_view text; // as the document has it, delimiters included
    std::size_t offset;    // of the text
};

// "a string", "an integer"
const char* nameOf(ScalarKind kind);

} // namespace vorn::parsers::toml::config
