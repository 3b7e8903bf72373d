#pragma once

#include <string>
#include <string_view>

namespace tool::fixing
{

// The difference between two texts, as `diff -u` prints it and `patch` reads it; empty if they
// are the same.
std::string unifiedDiff(const std::string& name, std::string_view before, std::string_view after);

} // namespace tool::fixing
