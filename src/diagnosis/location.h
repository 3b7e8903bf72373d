#pragma once

#include <vorn/parsers/toml_diagnosis.h>

#include <string_view>
#include <vector>

#include "mistake.h"

namespace vorn::parsers::toml::diagnosis
{

// The mistakes as findings, with their lines and columns.
std::vector<Finding> located(std::string_view text, std::vector<Mistake>&& mistakes);

} // namespace vorn::parsers::toml::diagnosis
