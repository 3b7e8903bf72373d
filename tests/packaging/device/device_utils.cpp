// A device's utility library, with no more than what the library imports.
#include <cstdarg>
#include <cstdio>
#include <string>
#include <unistd.h>

bool fileExists(const char* path, bool, int)
{
    return access(path, F_OK) == 0;
}

namespace vorn::utils
{

std::string format(const char* format, ...)
{
    char text[256] = "";
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof(text), format, arguments);
    va_end(arguments);
    return text;
}

} // namespace vorn::utils

void logInternal(const char* module, const char*, const char*, int, int level, int, int,
                 const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    std::fprintf(stderr, "the device's log: %s %d ", module, level);
    std::vfprintf(stderr, format, arguments);
    std::fputc('\n', stderr);
    va_end(arguments);
}
