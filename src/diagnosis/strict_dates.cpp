#include "strict_dates.h"

#include <cstddef>
#include <numeric>

#include "strict_mistakes.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

constexpr std::size_t dateLength = 10;  // 0000-00-00
constexpr std::size_t timeLength = 8;   // 00:00:00
constexpr std::size_t offsetLength = 6; // +00:00

unsigned numberOf(std::string_view digits)
{
    return std::accumulate(digits.begin(), digits.end(), 0U,
                           [](unsigned number, char c)
                           { return number * 10 + static_cast<unsigned>(c - '0'); });
}

std::string_view daysOf(unsigned month, unsigned year)
{
    const bool isLeapYear = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    switch (month)
    {
    case 2:
        return isLeapYear ? "29" : "28";
    case 4:
    case 6:
    case 9:
    case 11:
        return "30";
    default:
        return "31";
    }
}

// Returns whether the date exists.
bool checkDate(std::string_view text, StrictMistakes& mistakes)
{
    const std::string_view month = text.substr(5, 2);
    if (month < "01" || month > "12")
    {
        mistakes.add(noSuchMonth, month, month);
        return false;
    }
    const std::string_view day = text.substr(8, 2);
    const std::string_view lastDay = daysOf(numberOf(month), numberOf(text.substr(0, 4)));
    if (day < "01" || day > lastDay)
    {
        mistakes.add(noSuchDay, day, day, lastDay);
        return false;
    }
    return true;
}

// One of the two-digit numbers of a time.
struct Unit
{
    std::size_t at;
    std::string_view last;
    const StrictRule& rule;
};

// Returns whether the time exists.  The offset after it, if there is one, is not looked at.
bool timeExists(std::string_view text, StrictMistakes& mistakes)
{
    // Leap seconds are added before midnight of UTC, which is any minute of some local time.
    const Unit units[] = {{0, "23", noSuchHour}, {3, "59", noSuchMinute}, {6, "60", noSuchSecond}};
    for (const Unit& unit : units)
    {
        const std::string_view digits = text.substr(unit.at, 2);
        if (digits > unit.last)
        {
            mistakes.add(unit.rule, digits, digits);
            return false;
        }
    }
    return true;
}

void checkOffset(std::string_view offset, StrictMistakes& mistakes)
{
    if (offset.substr(1, 2) > "23" || offset.substr(4, 2) > "59")
    {
        mistakes.add(offsetOutOfRange, offset, offset);
    }
}

} // namespace

void checkTime(std::string_view text, StrictMistakes& mistakes)
{
    timeExists(text, mistakes);
}

void checkDateTime(std::string_view text, StrictMistakes& mistakes)
{
    if (!checkDate(text, mistakes) || text.size() == dateLength)
    {
        return;
    }
    const std::string_view time = text.substr(dateLength + 1);
    if (!timeExists(time, mistakes))
    {
        return;
    }
    if (time.find_first_of("+-", timeLength) != std::string_view::npos)
    {
        checkOffset(time.substr(time.size() - offsetLength), mistakes);
    }
}

} // namespace vorn::parsers::toml::diagnosis
