#pragma once

#include <vorn/parsers/toml.h>

#include <optional>
#include <string>

#include "progress.h"
#include "status.h"

namespace tool
{

// The whole content of a file, or of standard input for "-".  If there is nothing to read the
// reason is printed on standard error.
std::optional<std::string> readInput(const std::string& name, Progress& progress);

// Reads the document there.
Status visitInput(const std::string& name, Progress& progress,
                  vorn::parsers::toml::ITomlTreeVisitor& visitor);

} // namespace tool
