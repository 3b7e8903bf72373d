// The way of a text through the library, for programs of this project that have its objects.
#pragma once

#include <vorn/parsers/toml.h>

#include <string_view>

#include "pipeline/refusal.h"

namespace vorn::parsers::toml
{

// The same as the public function, for a text that ends with a NUL as that of a string does;
// also says why a rejected document was not read to its end.
bool visitTomlTree(std::string_view text, ITomlTreeVisitor& visitor, Refusal& refusal);

} // namespace vorn::parsers::toml
