#include "value_printer.h"

#include <array>
#include <charconv>
#include <ctime>
#include <exception>
#include <map>
#include <string_view>

namespace tool
{
namespace
{

namespace toml = vorn::parsers::toml;

std::string shownBoolean(const char* text)
{
    return toml::parseBoolean(text) ? "true" : "false";
}

std::string shownInteger(const char* text)
{
    return std::to_string(toml::parseInteger(text));
}

// The shortest form that reads as the same value.
std::string shownFloat(const char* text)
{
    std::array<char, 32> digits = {};
    char* const end = digits.data() + digits.size();
    return {digits.data(), std::to_chars(digits.data(), end, toml::parseFloat(text)).ptr};
}

// ISO 8601 with the offset of the local zone.
std::string localTime(std::time_t seconds)
{
    std::tm fields = {};
    localtime_r(&seconds, &fields);
    std::array<char, 64> form = {};
    std::string shown(form.data(), std::strftime(form.data(), form.size(), "%FT%T%z", &fields));
    return shown.insert(shown.size() - 2, ":");
}

std::string shownDateTime(const char* text)
{
    const std::time_t seconds = toml::parseDateTime(text).tv_sec;
    return localTime(seconds) + " (" + std::to_string(seconds) + ')';
}

std::string shownString(const char* text)
{
    return toml::unquote(text);
}

std::string shownMultilineString(const char* text)
{
    return toml::processMultilineString(text);
}

std::string shownMultilineLiteralString(const char* text)
{
    return toml::processMultilineLiteralString(text);
}

using Conversion = std::string (*)(const char* text);

const std::map<std::string_view, Conversion>& conversions()
{
    static const std::map<std::string_view, Conversion> byOperation = {
        {"visitQuotedKey", shownString},
        {"visitBasicString", shownString},
        {"visitMultilineBasicString", shownMultilineString},
        {"visitLiteralString", shownString},
        {"visitMultilineLiteralString", shownMultilineLiteralString},
        {"visitInteger", shownInteger},
        {"visitFloat", shownFloat},
        {"visitBoolean", shownBoolean},
        {"visitOffsetDateTime", shownDateTime},
        {"visitLocalDateTime", shownDateTime},
    };
    return byOperation;
}

} // namespace

std::optional<std::string> ValuePrinter::value(const char* operation, const char* text)
{
    const auto conversion = conversions().find(operation);
    if (conversion == conversions().end())
    {
        return std::nullopt;
    }
    try
    {
        return conversion->second(text);
    }
    catch (const std::exception& error)
    {
        return std::string("error: ") + error.what();
    }
}

} // namespace tool
