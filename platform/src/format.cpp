#include "vorn/utils/format.h"

#include <cstdio>

#include "format_list.h"

namespace vorn::utils
{

std::string formatList(const char* format, va_list arguments)
{
    va_list measured;
    va_copy(measured, arguments);
    // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): va_copy() has initialised it.
    const int length = std::vsnprintf(nullptr, 0, format, measured);
    va_end(measured);
    if (length < 0)
    {
        return {};
    }
    std::string text(static_cast<std::size_t>(length), '\0');
    // The terminator goes where the string keeps its own.
    std::vsnprintf(text.data(), text.size() + 1, format, arguments);
    return text;
}

std::string format(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    std::string text = formatList(format, arguments);
    va_end(arguments);
    return text;
}

} // namespace vorn::utils
