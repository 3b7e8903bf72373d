// Reads a valid document without the recognisers.
#pragma once

#include <vorn/parsers/toml.h>

#include <string_view>

namespace vorn::parsers::toml
{

enum class DirectReading
{
    accepted,    // the document is valid, and the visitor has received all of its calls
    refused,     // no calls: it is invalid, or has something that the scanner leaves to the lexer
    outOfMemory, // no calls
};

// The text ends with a NUL, as that of a string does.
DirectReading readDirectly(std::string_view text, ITomlTreeVisitor& visitor);

} // namespace vorn::parsers::toml
