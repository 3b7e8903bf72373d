#pragma once

#include <functional>
#include <string>
#include <vector>

namespace test
{

// One call of logInternal.
struct LogLine
{
    std::string module;
    std::string sourceFile;
    std::string function;
    int line = 0;
    int level = 0;
    int first = -1; // the two integers that are always 0
    int second = -1;
    std::string format;
    std::string message;
};

// Linking the recorder replaces the logger of the utility library.  It keeps the lines
// that are logged while it lives, on any thread; without one, lines are dropped.
class LogRecorder
{
public:
    LogRecorder();
    LogRecorder(const LogRecorder&) = delete;
    LogRecorder& operator=(const LogRecorder&) = delete;
    ~LogRecorder();

    std::vector<LogLine> lines() const;
    std::vector<std::string> messages() const;

    // Called after each line has been recorded, while this lives; it must not log.
    void onLine(std::function<void()> observer);
};

} // namespace test
