// The tool's subcommands.
#pragma once

#include <string>

#include "status.h"

namespace tool
{

// Prints the visitor calls of a document as they come.
Status printEvents(const std::string& name);

// The same with the value behind each text that converts to one.
Status printValues(const std::string& name);

// Prints one line that says whether a document is accepted.
Status check(const std::string& name);

} // namespace tool
