#include "log.h"

#include <vorn/utils/log.h>

#include <array>
#include <cstdarg>
#include <cstdio>
#include <string>

#include "printed.h"

namespace tool
{
namespace
{

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): loggers have no context.
bool isHeld = false;

std::string formatted(const char* format, va_list arguments)
{
    va_list measured;
    va_copy(measured, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, measured);
    va_end(measured);
    std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, arguments);
    return text;
}

} // namespace

HeldLog::HeldLog()
{
    isHeld = true;
}

HeldLog::~HeldLog()
{
    isHeld = false;
}

} // namespace tool

// Takes the place of the utility library's logger, in this program: lines are printed as the
// host's stand-in prints them, with all that could command a terminal escaped, or held.  While
// they are held no message is made: those of a document with many errors hold it many times.
void logInternal(const char* module, const char* sourceFile, const char* function, int line,
                 int level, int, int, const char* format, ...)
{
    if (tool::isHeld)
    {
        return;
    }
    va_list arguments;
    va_start(arguments, format);
    const std::string message = tool::formatted(format, arguments);
    va_end(arguments);
    std::fprintf(stderr, "%s %s %s:%d %s: ", level == 3 ? "error" : "notice", module, sourceFile,
                 line, function);
    tool::printEscaped(stderr, message);
    std::fputc('\n', stderr);
}
