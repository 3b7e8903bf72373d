#include "log_recorder.h"

#include <vorn/utils/log.h>

#include <cstdarg>
#include <cstdio>
#include <mutex>
#include <utility>

namespace
{

std::mutex mutex;
int recorders = 0;
std::vector<test::LogLine> recorded;
std::function<void()> observer;

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

void logInternal(const char* module, const char* sourceFile, const char* function, int line,
                 int level, int first, int second, const char* format, ...)
{
    const std::lock_guard<std::mutex> lock(mutex);
    if (recorders == 0)
    {
        return;
    }
    va_list arguments;
    va_start(arguments, format);
    recorded.push_back({module, sourceFile, function, line, level, first, second, format,
                        formatted(format, arguments)});
    va_end(arguments);
    if (observer)
    {
        observer();
    }
}

namespace test
{

LogRecorder::LogRecorder()
{
    const std::lock_guard<std::mutex> lock(mutex);
    ++recorders;
    recorded.clear();
}

LogRecorder::~LogRecorder()
{
    const std::lock_guard<std::mutex> lock(mutex);
    --recorders;
    observer = nullptr;
}

std::vector<LogLine> LogRecorder::lines() const
{
    const std::lock_guard<std::mutex> lock(mutex);
    return recorded;
}

std::vector<std::string> LogRecorder::messages() const
{
    std::vector<std::string> messages;
    for (const LogLine& line : lines())
    {
        messages.push_back(line.message);
    }
    return messages;
}

void LogRecorder::onLine(std::function<void()> called)
{
    const std::lock_guard<std::mutex> lock(mutex);
    observer = std::move(called);
}

} // namespace test
