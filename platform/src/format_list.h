#pragma once

#include <cstdarg>
#include <string>

namespace vorn::utils
{

// vprintf into a string.  An unusable format yields an empty one.
std::string formatList(const char* format, va_list arguments);

} // namespace vorn::utils
