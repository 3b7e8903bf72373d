// Texts for the conversions by chance: as documents have them, near the limits of their types and
// forms, and damaged.
#pragma once

#include <string>

#include "differential/random.h"

namespace test
{

std::string booleanText(Random& random);
std::string integerText(Random& random);
std::string floatText(Random& random);
std::string dateTimeText(Random& random);

} // namespace test
