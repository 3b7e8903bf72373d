#include "quiet_log.h"

#include <vorn/utils/log.h>

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstdio>
#include <mutex>

namespace
{

std::mutex mutex;
std::size_t lines = 0;
std::array<const char*, 100> formats = {};
std::array<char, 300> message = {};

} // namespace

void logInternal(const char*, const char*, const char*, int, int, int, int, const char* format, ...)
{
    const std::lock_guard<std::mutex> lock(mutex);
    if (lines < formats.size())
    {
        formats[lines] = format;
    }
    ++lines;
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(message.data(), message.size(), format, arguments);
    va_end(arguments);
}

namespace test
{

void clearLog()
{
    const std::lock_guard<std::mutex> lock(mutex);
    lines = 0;
    message = {};
}

std::size_t loggedLines()
{
    const std::lock_guard<std::mutex> lock(mutex);
    return lines;
}

std::vector<std::string> loggedFormats()
{
    const std::lock_guard<std::mutex> lock(mutex);
    const auto end = formats.begin() + static_cast<std::ptrdiff_t>(std::min(lines, formats.size()));
    return {formats.begin(), end};
}

const char* lastMessage()
{
    return message.data();
}

} // namespace test
