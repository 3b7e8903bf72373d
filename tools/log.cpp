#include "log.h"

#include <vorn/utils/log.h>

#include <array>
#include <cstdarg>
#include <cstdio>
#include <string>

#include "printed.h"
#include "shown_text.h"

namespace tool
{
namespace
{

// The lines of a document come on the thread that reads it.
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): loggers have no context.
thread_local bool isHeld = false;

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

std::string shortened(std::string_view text)
{
    constexpr std::size_t maxShown = 200;
    if (text.size() <= maxShown)
    {
        return escaped(text);
    }
    return escaped(text.substr(0, characterBegin(text, maxShown))) + "... (" +
           std::to_string(text.size()) + " bytes in all)";
}

// The message on one line.  A text in it is shortened: it can be the whole document, and is so
// for each of its errors.
std::string messageOf(const char* format, va_list arguments)
{
    const std::string_view parts(format);
    const std::size_t text = parts.find('%');
    const bool isOnlyText = text != std::string_view::npos && parts.substr(text, 2) == "%s" &&
                            parts.find('%', text + 1) == std::string_view::npos;
    return isOnlyText ? escaped(parts.substr(0, text)) + shortened(va_arg(arguments, const char*)) +
                            escaped(parts.substr(text + 2))
                      : escaped(formatted(format, arguments));
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

// Takes the place of the utility library's logger in this program.  Lines are printed as the
// host's stand-in prints them, but with everything escaped that could command a terminal, and
// with long texts shortened.  While a HeldLog lives, no message is made: those of a document
// with many errors hold it many times.
void logInternal(const char* module, const char* sourceFile, const char* function, int line,
                 int level, int, int, const char* format, ...)
{
    if (tool::isHeld)
    {
        return;
    }
    va_list arguments;
    va_start(arguments, format);
    const std::string message = tool::messageOf(format, arguments);
    va_end(arguments);
    std::fprintf(stderr, "%s %s %s:%d %s: %s\n", level == 3 ? "error" : "notice", module,
                 sourceFile, line, function, message.c_str());
}
