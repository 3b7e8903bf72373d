// Formatting of the device's utility library.
#pragma once

#include <string>

namespace vorn::utils
{

// printf into a string.
__attribute__((visibility("default"), format(printf, 1, 2))) std::string format(const char* format,
                                                                                ...);

} // namespace vorn::utils
