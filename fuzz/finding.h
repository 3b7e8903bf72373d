#pragma once

#include <string>

namespace fuzz
{

// Says what has been found, and ends the program as a crash does: the fuzzer keeps the input.
[[noreturn]] void report(const std::string& finding);

// Reports `what` with the input, if it does not hold.
void expect(bool holds, const char* what, const std::string& input);

} // namespace fuzz
