#pragma once

#include <string>

namespace test
{

// The content of a file that the antlr3 tool made in the build tree.
std::string generatedFile(const std::string& name);

} // namespace test
