#include "driver_log.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace test
{
namespace
{

struct Format
{
    std::string text;
    std::string function;
};

const std::vector<Format>& formats()
{
    static const std::vector<Format> table = {
        {"Failed to create toml string stream", "visitTomlTree"},
        {"Failed to create toml lexer", "visitTomlTree"},
        {"Failed to create toml token stream", "visitTomlTree"},
        {"Failed to create toml parser", "visitTomlTree"},
        {"Failed to create toml node stream", "visitTomlTree"},
        {"Failed to create toml tree", "visitTomlTree"},
        {"Failed to visit toml tree", "visitTomlTree"},
        {"Failed: input TOML has %d syntax errors", "visitTomlTree"},
        {"Failed: input TOML is nested too deeply (%u levels)", "visitTomlTree"},
        {"Failed: input TOML is too large to diagnose (%zu bytes)", "visitTomlTree"},
        {"No such file: %s", "visitTomlTree"},
        {"Failed to open file; %s", "visitTomlTree"},
        {"Invalid TOML: lexer failure at: %s", "operator()"},
        {"Invalid TOML: parser failure at: %s", "operator()"},
        {"Invalid TOML: tree parser failure", "operator()"},
    };
    return table;
}

// Tells whether `message` can come from `format`: whether its fixed parts enclose it.
bool matches(const std::string& format, const std::string& message)
{
    const std::size_t argument = format.find('%');
    if (argument == std::string::npos)
    {
        return message == format;
    }
    const std::string head = format.substr(0, argument);
    const std::string tail = format.substr(format.find_first_of("dsu", argument) + 1);
    return message.size() >= head.size() + tail.size() &&
           message.compare(0, head.size(), head) == 0 &&
           message.compare(message.size() - tail.size(), tail.size(), tail) == 0;
}

void expectDriverLine(const LogLine& line)
{
    SCOPED_TRACE(line.message);
    const auto format =
        std::find_if(formats().begin(), formats().end(),
                     [&line](const Format& one) { return matches(one.text, line.message); });
    ASSERT_NE(format, formats().end()) << "this is no message of the driver";
    EXPECT_EQ(line.module, "vorn_parsers");
    EXPECT_EQ(line.sourceFile, "src/toml.cpp");
    EXPECT_EQ(line.function, format->function);
    EXPECT_GT(line.line, 0);
    EXPECT_EQ(line.level, 3);
    EXPECT_EQ(line.first, 0);
    EXPECT_EQ(line.second, 0);
    EXPECT_EQ(line.format, format->text);
}

} // namespace

std::string lexerFailure(const std::string& matched)
{
    return "Invalid TOML: lexer failure at: " + matched;
}

std::string parserFailure(const std::string& tokens)
{
    return "Invalid TOML: parser failure at: " + tokens;
}

std::string treeFailure()
{
    return "Invalid TOML: tree parser failure";
}

std::string walkFailure()
{
    return "Failed to visit toml tree";
}

std::string syntaxErrors(int count)
{
    return "Failed: input TOML has " + std::to_string(count) + " syntax errors";
}

std::string tooDeep(unsigned levels)
{
    return "Failed: input TOML is nested too deeply (" + std::to_string(levels) + " levels)";
}

std::string tooLarge(std::size_t bytes)
{
    return "Failed: input TOML is too large to diagnose (" + std::to_string(bytes) + " bytes)";
}

void expectDriverLog(const std::vector<LogLine>& lines, const Messages& messages)
{
    Messages logged;
    for (const LogLine& line : lines)
    {
        logged.push_back(line.message);
        expectDriverLine(line);
    }
    EXPECT_EQ(logged, messages);
}

} // namespace test
