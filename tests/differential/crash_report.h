#pragma once

#include <string>

namespace test
{

// From now on a crash of the program prints `document`, which must outlive it, as it is at
// that moment.
void reportCrashesOn(const std::string& document);

} // namespace test
