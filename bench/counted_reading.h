// A reading whose instructions are counted.
#pragma once

#include "readers.h"

namespace bench
{

// callgrind is told its name, and writes down what it has counted whenever it returns.
void countedReading(const Reading& reading);

} // namespace bench
