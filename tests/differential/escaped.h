#pragma once

#include <string>

namespace test
{

// Any bytes as printable text.
std::string escaped(const std::string& text);

} // namespace test
