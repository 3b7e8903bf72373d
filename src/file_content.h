#pragma once

#include <optional>
#include <string>

namespace vorn::parsers::toml
{

// The whole content of a file, or nothing if it cannot be opened or read to its end.
std::optional<std::string> fileContent(const char* path);

} // namespace vorn::parsers::toml
