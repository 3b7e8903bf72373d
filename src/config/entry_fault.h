// What the author of a schema got wrong in an entry.
#pragma once

#include <string>

#include <vorn/parsers/toml_schema.h>

namespace vorn::parsers::toml::config
{

// Limits are not beyond what the member holds.
void narrowRange(Entry& entry);

// What is wrong; empty if nothing is.
std::string faultOf(const Entry& entry);

} // namespace vorn::parsers::toml::config
