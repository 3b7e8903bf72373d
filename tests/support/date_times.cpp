#include "date_times.h"

#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>

#include <ctime>

using vorn::parsers::toml::parseDateTime;

namespace test
{
namespace
{

// What mktime() returns.
std::time_t asTime(long long seconds)
{
    const auto time = static_cast<std::time_t>(seconds);
    return time == seconds ? time : std::time_t{-1};
}

} // namespace

std::string DateTimeMessage::text() const
{
    const std::size_t at = format.find("%s");
    return format.substr(0, at) + argument + format.substr(at + 2);
}

DateTimeMessage failedToCompile(const std::string& pattern)
{
    return {"Failed to compile regex: '%s'", pattern};
}

DateTimeMessage failedToParse(const std::string& text)
{
    return {"Failed to parse date-time: %s", text};
}

void expectDateTimeLog(const std::vector<LogLine>& lines,
                       const std::vector<DateTimeMessage>& messages)
{
    ASSERT_EQ(lines.size(), messages.size());
    for (std::size_t index = 0; index < lines.size(); ++index)
    {
        const LogLine& line = lines[index];
        const DateTimeMessage& message = messages[index];
        SCOPED_TRACE(message.text());
        EXPECT_EQ(line.module, "vorn_parsers");
        EXPECT_EQ(line.sourceFile, "src/toml_utils.cpp");
        EXPECT_EQ(line.function, "parseDateTime");
        EXPECT_GT(line.line, 0);
        EXPECT_EQ(line.level, 3);
        EXPECT_EQ(line.first, 0);
        EXPECT_EQ(line.second, 0);
        EXPECT_EQ(line.format, message.format);
        EXPECT_EQ(line.message, message.text());
    }
}

void expectSeconds(const std::string& text, long long seconds)
{
    SCOPED_TRACE(testing::PrintToString(text));
    const LogRecorder log;
    const timeval result = parseDateTime(text);
    EXPECT_EQ(result.tv_sec, asTime(seconds));
    EXPECT_EQ(result.tv_usec, 0);
    expectDateTimeLog(log.lines(), {});
}

void expectNoDateTime(const std::string& text, const std::string& logged)
{
    SCOPED_TRACE(testing::PrintToString(text));
    const LogRecorder log;
    const timeval result = parseDateTime(text);
    EXPECT_EQ(result.tv_sec, 0);
    EXPECT_EQ(result.tv_usec, 0);
    expectDateTimeLog(log.lines(), {failedToParse(logged)});
}

void expectNoDateTime(const std::string& text)
{
    expectNoDateTime(text, text);
}

} // namespace test
