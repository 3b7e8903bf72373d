// The way of a text through the library, for programs of this project that have its objects.
#pragma once

#include <vorn/parsers/toml.h>

#include <string>

#include "pipeline/refusal.h"

namespace vorn::parsers::toml
{

// The same as the public function; also says why a rejected document was not read to its end.
bool visitTomlTree(const std::string& text, ITomlTreeVisitor& visitor, Refusal& refusal);

} // namespace vorn::parsers::toml
