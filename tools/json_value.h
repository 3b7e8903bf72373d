// JSON for numbers as documents write them.  What JSON does not have becomes a string.
#pragma once

#include <string>

#include "scalar_value.h"

namespace tool
{

// Any integer of 64 bits.  Throws BadValue for a larger one.
std::string jsonOfInteger(std::string text);

// Infinities and not-a-numbers become "inf", "-inf" and "nan".
std::string jsonOfFloat(const std::string& text);

} // namespace tool
