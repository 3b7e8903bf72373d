#pragma once

#include <vorn/parsers/toml.h>

#include <optional>
#include <string>

#include "progress.h"
#include "status.h"

namespace tool
{

// The whole content of a file, or of standard input for "-".  If it cannot be read, prints the
// reason on standard error and returns nothing.
std::optional<std::string> readInput(const std::string& name, Progress& progress);

// Reads the document in a file, and calls the visitor.
Status visitInput(const std::string& name, Progress& progress,
                  vorn::parsers::toml::ITomlTreeVisitor& visitor);

} // namespace tool
