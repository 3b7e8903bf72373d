#pragma once

#include <vorn/parsers/toml.h>

#include <string>

#include "status.h"

namespace tool
{

// Reads the document in a file, or in standard input for "-".  If there is nothing to
// read the reason is printed on standard error.
Status visitInput(const std::string& name, vorn::parsers::toml::ITomlTreeVisitor& visitor);

} // namespace tool
