// Reads a document the plain way: with the recognisers that the antlr3 tool makes from the
// grammars, the runtime's own texts, and nothing else.  The library must show the same.
#pragma once

#include <vorn/parsers/toml.h>

#include <string>

namespace reference
{

bool visitTomlTree(const std::string& text, vorn::parsers::toml::ITomlTreeVisitor& visitor);

} // namespace reference
