// What parseDateTime() makes of a text.
#pragma once

#include <string>
#include <vector>

#include "support/log_recorder.h"

namespace test
{

// A message of parseDateTime(): the format's one argument is a string.
struct DateTimeMessage
{
    std::string format;
    std::string argument;

    std::string text() const;
};

// The messages of a pattern that failed to compile, and of a text that no pattern matches.
DateTimeMessage failedToCompile(const std::string& pattern);
DateTimeMessage failedToParse(const std::string& text);

// Checks that `lines` are the lines that are logged for `messages`: module, level, format
// and all; of the source line only that there is one.
void expectDateTimeLog(const std::vector<LogLine>& lines,
                       const std::vector<DateTimeMessage>& messages);

// Expects the seconds, or -1 where time_t is too small for them, no microseconds and no log line.
void expectSeconds(const std::string& text, long long seconds);

// Expects zero and one log line, in which the text is `logged`.
void expectNoDateTime(const std::string& text, const std::string& logged);
void expectNoDateTime(const std::string& text);

} // namespace test
