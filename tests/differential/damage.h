#pragma once

#include "random.h"

#include <string>

namespace test
{

// Cuts, doubles, replaces or inserts something somewhere in a document.
void damage(std::string& document, Random& random);

} // namespace test
