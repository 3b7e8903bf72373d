#include "calendar.h"

namespace vorn::parsers::toml::config
{
namespace
{

int daysOf(int month, int year)
{
    const bool isLeapYear = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    switch (month)
    {
    case 2:
        return isLeapYear ? 29 : 28;
    case 4:
    case 6:
    case 9:
    case 11:
        return 30;
    default:
        return 31;
    }
}

bool isFrom(int number, int first, int last)
{
    return number >= first && number <= last;
}

} // namespace

bool exists(const Date& date)
{
    return isFrom(date.year, 0, 9999) && isFrom(date.month, 1, 12) &&
           isFrom(date.day, 1, daysOf(date.month, date.year));
}

bool exists(const Time& time)
{
    return isFrom(time.hour, 0, 23) && isFrom(time.minute, 0, 59) && isFrom(time.second, 0, 60) &&
           isFrom(time.nanosecond, 0, 999999999);
}

bool isOffset(int minutes)
{
    return isFrom(minutes, 1 - minutesOfDay, minutesOfDay - 1);
}

} // namespace vorn::parsers::toml::config
