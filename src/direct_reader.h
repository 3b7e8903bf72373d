// Reads a document that is right in full, without the recognisers.
#pragma once

#include <vorn/parsers/toml.h>

#include <string>

namespace vorn::parsers::toml
{

// Whether the document is right in full.  If so, the visitor has received all of its
// calls; if not, none.  A document that is right may be refused where it holds
// something that the scanner leaves to the lexer.
bool readDirectly(const std::string& text, ITomlTreeVisitor& visitor);

} // namespace vorn::parsers::toml
