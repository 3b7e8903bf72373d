#include "log.h"

#include <vorn/utils/log.h>

#include <array>
#include <cstdarg>
#include <cstdio>
#include <string>
#include <string_view>

#include "printed.h"

namespace tool
{
namespace
{

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): loggers have no context.
HeldLog* holder = nullptr;

bool beginsWith(std::string_view text, std::string_view begin)
{
    return text.substr(0, begin.size()) == begin;
}

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
    holder = this;
}

HeldLog::~HeldLog()
{
    holder = nullptr;
}

void HeldLog::take(const char* format)
{
    if (beginsWith(format, "Failed: input TOML is nested too deeply"))
    {
        refusal_ = Refusal::tooDeep;
    }
    else if (beginsWith(format, "Failed: input TOML is too large"))
    {
        refusal_ = Refusal::tooLarge;
    }
}

} // namespace tool

// Takes the place of the utility library's logger, in this program: lines are printed as the
// host's stand-in prints them, with all that could command a terminal escaped, or held.  While
// they are held no message is made: those of a document with many errors hold it many times.
void logInternal(const char* module, const char* sourceFile, const char* function, int line,
                 int level, int, int, const char* format, ...)
{
    if (tool::holder != nullptr)
    {
        tool::holder->take(format);
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
