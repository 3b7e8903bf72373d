// A view of parseDateTime() from inside.  The program that links this wraps the calls of
// the C library that it makes (--wrap of the linker), and has its own vorn::utils::format.
#pragma once

#include <string>
#include <vector>

#include "support/log_recorder.h"

namespace test
{

// The calls in their order, with their arguments:
//   "regcomp 9 <pattern>", "regexec 0 0 <text>", "regfree", "format <template>",
//   "strptime <text> | <format>", "mktime <tm_isdst>", "log <message>"
using Calls = std::vector<std::string>;

// What a regcomp that fails leaves behind.
enum class Leaving
{
    nothing,
    thePattern,
};

// Watches the calls that are made while it lives; one at a time.
class DateTimeSpy
{
public:
    DateTimeSpy();
    DateTimeSpy(const DateTimeSpy&) = delete;
    DateTimeSpy& operator=(const DateTimeSpy&) = delete;
    ~DateTimeSpy();

    // Adds what has been logged since the last call, then the call.
    void record(const std::string& call);
    // The calls so far, with all that has been logged.
    Calls calls();
    std::vector<LogLine> logLines() const { return log_.lines(); }

    // The patterns that fail to compile, and how.
    std::vector<std::string> failing;
    Leaving leaving = Leaving::nothing;
    // vorn::utils::format throws std::bad_alloc.
    bool formatThrows = false;
    // mktime answers with -1.
    bool mktimeFails = false;

    // The compiled expression that is in use.
    const void* regex = nullptr;

private:
    void recordLog();

    LogRecorder log_;
    std::size_t recordedLines_ = 0;
    Calls calls_;
};

} // namespace test
