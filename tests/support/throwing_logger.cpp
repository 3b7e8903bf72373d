#include "throwing_logger.h"

#include <vorn/utils/log.h>

#include <cstdarg>
#include <cstdio>
#include <utility>

namespace
{

int lines = 0;
int throwingLine = 0;
std::function<void(const std::string&)> observer;

std::string formatted(const char* format, va_list arguments)
{
    va_list measured;
    va_copy(measured, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, measured);
    va_end(measured);
    std::string text(static_cast<std::size_t>(length), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, arguments);
    return text;
}

} // namespace

void logInternal(const char*, const char*, const char*, int, int, int, int, const char* format, ...)
{
    ++lines;
    if (observer)
    {
        va_list arguments;
        va_start(arguments, format);
        observer(formatted(format, arguments));
        va_end(arguments);
    }
    if (lines == throwingLine)
    {
        throw test::LogFailure{lines};
    }
}

namespace test
{

void throwAtLine(int line)
{
    lines = 0;
    throwingLine = line;
}

int loggedLines()
{
    return lines;
}

void onLine(std::function<void(const std::string&)> called)
{
    observer = std::move(called);
}

} // namespace test
