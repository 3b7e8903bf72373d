// Any bytes as the text of a scalar: the conversions throw only what they say, answer the
// same every time, and hold what the public header says of all texts.
#include "finding.h"

#include "support/log_recorder.h"

#include <vorn/parsers/toml.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>

using namespace vorn::parsers::toml;

namespace
{

void convertStrings(const std::string& text)
{
    const std::string unquoted = unquote(text);
    fuzz::expect(unquoted == unquote(text), "unquote() is constant", text);
    fuzz::expect(unquoted == text || unquoted.size() + 2 == text.size() || text.size() == 1,
                 "unquote() takes two quotes or nothing", text);
    const std::string content = processMultilineString(text);
    fuzz::expect(content == processMultilineString(text), "processMultilineString() is constant",
                 text);
    fuzz::expect(content.size() <= text.size(), "processMultilineString() only takes away", text);
    const std::string literal = processMultilineLiteralString(text);
    fuzz::expect(literal == processMultilineLiteralString(text),
                 "processMultilineLiteralString() is constant", text);
    fuzz::expect(literal.size() <= text.size() && text.find(literal) != std::string::npos,
                 "processMultilineLiteralString() answers a part", text);
}

void convertWith(const std::string& delimiter, const std::string& text)
{
    const std::string unquoted = unquote(text, delimiter);
    fuzz::expect(unquoted == unquote(text, delimiter), "unquote() of both is constant", text);
    fuzz::expect(text.find(unquoted) != std::string::npos, "unquote() answers a part", text);
    const std::string enquoted = enquote(text, delimiter);
    fuzz::expect(enquoted == delimiter + text + delimiter, "enquote() adds delimiters", text);
    fuzz::expect(unquote(enquoted, delimiter) == text, "unquote() reverts enquote()", text);
}

void convertDelimited(const std::string& text)
{
    for (const char* const delimiter : {"", "'", "\"", "'''", "\"\"\""})
    {
        convertWith(delimiter, text);
    }
    convertWith(text.substr(0, 1), text);
    convertWith(text.substr(0, text.size() / 2), text);
    convertWith(text, text);
}

// An integer or, where there is none, what is thrown.
std::string integer(const std::string& text)
{
    try
    {
        return std::to_string(parseInteger(text));
    }
    catch (const std::invalid_argument& error)
    {
        fuzz::expect(error.what() == std::string("bitset::_M_copy_from_ptr"),
                     "parseInteger() throws invalid_argument with its message", text);
        return error.what();
    }
    catch (const std::overflow_error& error)
    {
        fuzz::expect(error.what() == std::string("_Base_bitset::_M_do_to_ulong"),
                     "parseInteger() throws overflow_error with its message", text);
        return error.what();
    }
}

bool isBinary(std::string text)
{
    for (std::size_t at = 0; (at = text.find('_', at)) != std::string::npos;)
    {
        text.erase(at, 1);
    }
    return text.compare(0, 2, "0b") == 0;
}

void convertNumbers(const std::string& text)
{
    fuzz::expect(parseBoolean(text) == parseBoolean(text), "parseBoolean() is constant", text);
    const std::string value = integer(text);
    fuzz::expect(value == integer(text), "parseInteger() is constant", text);
    const bool thrown = value.find("bitset") != std::string::npos;
    fuzz::expect(!thrown || isBinary(text), "parseInteger() throws for binary texts only", text);
    const double number = parseFloat(text);
    const double again = parseFloat(text);
    fuzz::expect(std::memcmp(&number, &again, sizeof(number)) == 0, "parseFloat() is constant",
                 text);
    fuzz::expect(std::isfinite(number), "parseFloat() is finite", text);
}

void convertDateTime(const std::string& text)
{
    const test::LogRecorder log;
    const timeval time = parseDateTime(text);
    const std::vector<std::string> messages = log.messages();
    const timeval again = parseDateTime(text);
    fuzz::expect(time.tv_sec == again.tv_sec && time.tv_usec == 0 && again.tv_usec == 0,
                 "parseDateTime() is constant, without microseconds", text);
    const bool refused = !messages.empty();
    fuzz::expect(log.messages().size() == 2 * messages.size() && messages.size() <= 1,
                 "parseDateTime() logs a line or none", text);
    fuzz::expect(!refused || (time.tv_sec == 0 && messages[0] == "Failed to parse date-time: " +
                                                                     std::string(text.c_str())),
                 "parseDateTime() answers zero and logs the text", text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    convertStrings(text);
    convertDelimited(text);
    convertNumbers(text);
    convertDateTime(text);
    return 0;
}
