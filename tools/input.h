#pragma once

#include <optional>
#include <string>

namespace tool
{

// The whole content of a file, or of standard input for "-".  If it cannot be read
// the reason is printed on standard error.
std::optional<std::string> readInput(const std::string& name);

} // namespace tool
