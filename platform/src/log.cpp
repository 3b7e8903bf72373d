#include "vorn/utils/log.h"

#include <array>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <string>

#include "format_list.h"

namespace
{

const char* levelName(int level)
{
    constexpr std::array names = {"emergency", "alert",  "critical", "error",
                                  "warning",   "notice", "info",     "debug"};
    const auto index = static_cast<std::size_t>(level);
    return index < names.size() ? names[index] : "unknown";
}

// A message can hold a whole document.  Escaped line breaks keep it on one line.
std::string onOneLine(const std::string& message)
{
    std::string line;
    line.reserve(message.size());
    for (const char c : message)
    {
        switch (c)
        {
        case '\n':
            line += "\\n";
            break;
        case '\r':
            line += "\\r";
            break;
        default:
            line += c;
        }
    }
    return line;
}

} // namespace

void logInternal(const char* module, const char* sourceFile, const char* function, int line,
                 int level, int, int, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const std::string message = vorn::utils::formatList(format, arguments);
    va_end(arguments);
    // One call, so that lines of different threads do not mix.
    std::fprintf(stderr, "%s %s %s:%d %s: %s\n", levelName(level), module, sourceFile, line,
                 function, onOneLine(message).c_str());
}
