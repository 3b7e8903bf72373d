// The tool's subcommands.
#pragma once

#include <string>

#include "status.h"

namespace tool
{

// Prints the visitor calls of a document as they come.
Status printEvents(const std::string& name);

// Prints one line that says whether a document is accepted.
Status check(const std::string& name);

} // namespace tool
