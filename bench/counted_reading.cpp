#include "counted_reading.h"

namespace bench
{

// In a file of its own no compiler inlines it.
void countedReading(const Reading& reading)
{
    reading();
}

} // namespace bench
