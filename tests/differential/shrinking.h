#pragma once

#include <functional>
#include <string>

namespace test
{

// The smallest document found, by leaving out bytes, for which the predicate holds, as it
// does for the one given.
std::string shrunk(std::string document, const std::function<bool(const std::string&)>& holds);

} // namespace test
