#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tool
{

// The name that a mistyped word was probably meant to be; empty if none is near.
std::string suggestionFor(std::string_view word, const std::vector<std::string>& names);

} // namespace tool
