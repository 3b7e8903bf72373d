#include <regex.h>
#include <sys/time.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <ctime>
#include <ios>
#include <memory>
#include <new>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>

#include <vorn/parsers/toml.h>
#include <vorn/utils/format.h>

#include "log.h"
#include "plain_date_time.h"
#include "plain_number.h"
#include "stated_conversions.h"

namespace vorn::parsers::toml
{
namespace
{

void dropUnderscores(std::string& text)
{
    text.erase(std::remove(text.begin(), text.end(), '_'), text.end());
}

// The value that a stream extracts from the start of a text: zero where there is none,
// the nearest value of the type where the text's is out of range.  Streams keep quiet about
// memory that is missing unless they are told.
template <typename Value>
Value extract(const std::string& text, std::ios_base::fmtflags flags, std::ios_base::fmtflags mask)
{
    std::istringstream stream(text);
    stream.setf(flags, mask);
    stream.exceptions(std::ios_base::badbit);
    Value value{};
    stream >> value;
    return value;
}

long long extractInteger(const std::string& text, std::ios_base::fmtflags base)
{
    return extract<long long>(text, base, std::ios_base::basefield);
}

// Binary digits after a prefix, the most significant first.  At most 64 are read, and the value
// must fit 32 bits, which is what the device's word holds; the same on every host.
long long binaryInteger(const std::string& text)
{
    const std::size_t end = std::min(text.size(), std::size_t{2} + 64);
    std::uint64_t value = 0;
    for (std::size_t at = 2; at < end; ++at)
    {
        const char digit = text[at];
        if (digit != '0' && digit != '1')
        {
            throw std::invalid_argument("bitset::_M_copy_from_ptr");
        }
        value = value << 1 | static_cast<std::uint64_t>(digit - '0');
    }
    if (value > UINT32_MAX)
    {
        throw std::overflow_error("_Base_bitset::_M_do_to_ulong");
    }
    return static_cast<long long>(value);
}

// A line feed right after the opening delimiter is not part of a string's value.
void dropFirstLineFeed(std::string& text)
{
    if (!text.empty() && text.front() == '\n')
    {
        text.erase(0, 1);
    }
}

struct RegexFree
{
    void operator()(regex_t* regex) const noexcept { regfree(regex); }
};

struct DateTimeForm
{
    const char* pattern;
    const char* fields; // a format of strptime(), made with the separator
    bool guessesDaylightSaving;
};

// The forms of a date-time, in the order in which they are tried: with a zone letter,
// with an offset, with neither.  The patterns match anywhere in a text.
constexpr std::array<DateTimeForm, 3> dateTimeForms = {{
    {"[0-9]{4}-[0-9]{2}-[0-9]{2}[ T][0-9]{2}:[0-9]{2}:[0-9]{2}[A-IK-Z]", "%%F%c%%TZ", true},
    {"[0-9]{4}-[0-9]{2}-[0-9]{2}[ T][0-9]{2}:[0-9]{2}:[0-9]{2}(.[0-9]{1,6})?"
     "[+-][0-9]{2}:[0-9]{2}",
     "%%F%c%%T%%z", false},
    {"[0-9]{4}-[0-9]{2}-[0-9]{2}[ T][0-9]{2}:[0-9]{2}:[0-9]{2}(.[0-9]{1,6})?", "%%F%c%%T", false},
}};

bool matches(const regex_t& regex, const std::string& text)
{
    errno = 0;
    const bool matched = regexec(&regex, text.c_str(), 0, nullptr, 0) == 0;
    // glibc returns the same where nothing matches and where memory is gone; the form that is
    // tried next might read the text as another time.
    if (!matched && errno == ENOMEM)
    {
        throw std::bad_alloc();
    }
    return matched;
}

// Reads what the form covers, up to the first mismatch, as local time.
bool convert(const std::string& text, const DateTimeForm& form, timeval& result)
{
    // The character between date and time, whichever it is.
    const std::string format = utils::format(form.fields, text[10]);
    std::tm time = {};
    strptime(text.c_str(), format.c_str(), &time);
    if (form.guessesDaylightSaving)
    {
        time.tm_isdst = -1;
    }
    result.tv_sec = std::mktime(&time);
    result.tv_usec = 0;
    return true;
}

// glibc's regcomp() frees pointers that it has never set where memory ends within it.  So
// what it takes for a form, at most some 24 KB, is made sure of first.
void reserveFormMemory()
{
    constexpr std::size_t enough = std::size_t{64} * 1024;
    std::string().reserve(enough);
}

} // namespace

namespace stated
{

bool parseBoolean(const std::string& text)
{
    return extract<bool>(text, std::ios_base::boolalpha, std::ios_base::boolalpha);
}

long long parseInteger(std::string&& text)
{
    dropUnderscores(text);
    switch (text.size() > 1 && text[0] == '0' ? text[1] : '\0')
    {
    case 'o':
        text.erase(0, 2);
        return extractInteger(text, std::ios_base::oct);
    case 'x':
        return extractInteger(text, std::ios_base::hex);
    case 'b':
        return binaryInteger(text);
    default:
        return extractInteger(text, std::ios_base::dec);
    }
}

double parseFloat(std::string&& text)
{
    dropUnderscores(text);
    return extract<double>(text, {}, {});
}

timeval parseDateTime(const std::string& text)
{
    timeval result = {};
    for (const DateTimeForm& form : dateTimeForms)
    {
        reserveFormMemory();
        regex_t regex = {};
        const std::unique_ptr<regex_t, RegexFree> guard(&regex);
        if (regcomp(&regex, form.pattern, REG_EXTENDED | REG_NOSUB) != 0)
        {
            VORN_LOG_ERROR("Failed to compile regex: '%s'", form.pattern);
        }
        // A pattern that failed to compile has left nothing to match with, which the C
        // library does not test.
        const bool usable = regex.buffer != nullptr;
        if (usable && matches(regex, text))
        {
            if (!convert(text, form, result))
            {
                // No conversion says that it has failed.  GCOVR_EXCL_START
                VORN_LOG_ERROR("Failed to process date-time: '%s'", text.c_str());
                // GCOVR_EXCL_STOP
            }
            return result;
        }
    }
    VORN_LOG_ERROR("Failed to parse date-time: %s", text.c_str());
    return result;
}

} // namespace stated

std::string unquote(std::string text, const std::string& delimiter)
{
    const std::size_t first = text.find(delimiter);
    const std::size_t last = text.rfind(delimiter);
    if (first == 0 && last + delimiter.size() == text.size())
    {
        // The end goes first; what is left may be shorter than a delimiter.
        text.erase(last);
        text.erase(0, delimiter.size());
    }
    return text;
}

std::string unquote(std::string text)
{
    if (text.empty() || (text.front() != '\'' && text.front() != '"'))
    {
        return text;
    }
    const std::string delimiter(1, text.front());
    return unquote(std::move(text), delimiter);
}

std::string enquote(const std::string& text, const std::string& delimiter)
{
    return delimiter + text + delimiter;
}

std::string processMultilineLiteralString(std::string text)
{
    std::string content = unquote(std::move(text), "'''");
    dropFirstLineFeed(content);
    return content;
}

std::string processMultilineString(std::string text)
{
    std::string content = unquote(std::move(text), "\"\"\"");
    dropFirstLineFeed(content);

    std::string value;
    std::size_t rest = 0; // what has not been copied yet starts here
    std::size_t from = 0; // where the next search starts
    for (;;)
    {
        const std::size_t backslash = content.find("\\\n", from);
        value.append(content, rest, backslash - rest);
        if (backslash == std::string::npos)
        {
            return value;
        }
        rest = content.find_first_not_of(" \t\r\n", backslash + 2);
        if (rest == std::string::npos)
        {
            return value;
        }
        // The character after the blanks is content, even where it is a backslash.
        from = rest + 1;
    }
}

bool parseBoolean(const std::string& text)
{
    bool value = false;
    return readPlainBoolean(text, value) ? value : stated::parseBoolean(text);
}

long long parseInteger(std::string text)
{
    long long value = 0;
    return readPlainInteger(text, value) ? value : stated::parseInteger(std::move(text));
}

double parseFloat(std::string text)
{
    double value = 0.0;
    return readPlainFloat(text, value) ? value : stated::parseFloat(std::move(text));
}

timeval parseDateTime(const std::string& text)
{
    std::tm time = {};
    if (!readPlainDateTime(text, time))
    {
        return stated::parseDateTime(text);
    }
    return {std::mktime(&time), 0};
}

} // namespace vorn::parsers::toml
