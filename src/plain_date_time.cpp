#include "plain_date_time.h"

#include <langinfo.h>

#include <clocale>
#include <cstddef>
#include <cstring>

#include "scan/date_time_scanner.h"

namespace vorn::parsers::toml
{
namespace
{

// Whether the ranges of the patterns, such as [A-IK-Z], have the characters that stand between
// their ends in ASCII: in the order of another locale they may have others.  The rest of the
// locale is of no concern: in all of them, digits and letters of ASCII are what they are.  The
// C library's own names say so of the thread's locale, if it has one, or of the process's.
bool areRangesOfAscii() noexcept
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): as safe as all that asks for a locale.
    return std::strcmp(nl_langinfo(_NL_LOCALE_NAME(LC_COLLATE)), "C") == 0;
}

// Whether a text is a date-time that a pattern matches: after a lower-case 't' none does.
bool isDateTime(std::string_view text) noexcept
{
    const char* const end = text.data() + text.size();
    if (!beginsWithDate(text.data(), end))
    {
        return false;
    }
    const Token token = scanDate(text.data(), end);
    const bool hasTime =
        token.type == TokenType::localDateTime || token.type == TokenType::offsetDateTime;
    return hasTime && token.end == end && text[10] != 't';
}

constexpr int twoDigits(const char* at) noexcept
{
    return (at[0] - '0') * 10 + (at[1] - '0');
}

} // namespace

bool readPlainDateTime(std::string_view text, std::tm& time) noexcept
{
    if (!isDateTime(text) || !areRangesOfAscii())
    {
        return false;
    }
    const char* const at = text.data(); // 0000-00-00T00:00:00
    const int month = twoDigits(at + 5);
    const int day = twoDigits(at + 8);
    const int hour = twoDigits(at + 11);
    const int minute = twoDigits(at + 14);
    const int second = twoDigits(at + 17);
    // What strptime() makes of others is its own affair.
    if (month < 1 || month > 12 || day < 1 || day > 31 || hour > 23 || minute > 59 || second > 61)
    {
        return false;
    }
    time.tm_year = twoDigits(at) * 100 + twoDigits(at + 2) - 1900;
    time.tm_mon = month - 1;
    time.tm_mday = day;
    time.tm_hour = hour;
    time.tm_min = minute;
    time.tm_sec = second;
    // After a fraction no letter is looked for.
    const bool hasLetter = text.size() > 19 && text[19] == 'Z';
    time.tm_isdst = hasLetter ? -1 : 0;
    return true;
}

} // namespace vorn::parsers::toml
