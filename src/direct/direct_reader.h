// Reads a document that is right in full, without the recognisers.
#pragma once

#include <vorn/parsers/toml.h>

#include <string>

namespace vorn::parsers::toml
{

enum class DirectReading
{
    accepted,    // the document is right in full, and the visitor has received all of its calls
    refused,     // it is not, or holds something that the scanner leaves to the lexer: no calls
    outOfMemory, // no calls
};

DirectReading readDirectly(const std::string& text, ITomlTreeVisitor& visitor);

} // namespace vorn::parsers::toml
