#include <vorn/parsers/toml_values.h>

#include "calendar.h"
#include "digits.h"

namespace vorn::parsers::toml
{
namespace
{

// Takes the parts of a text off its start.
class Parts
{
public:
    explicit Parts(std::string_view text) : rest_(text) {}

    bool isEnd() const { return rest_.empty(); }
    bool isNext(char c) const { return !rest_.empty() && rest_[0] == c; }

    bool take(char c)
    {
        const bool taken = isNext(c);
        rest_.remove_prefix(taken ? 1 : 0);
        return taken;
    }

    bool take(int& number, std::size_t digits)
    {
        number = 0;
        for (const char c : rest_.substr(0, digits))
        {
            if (!config::isDigit(c))
            {
                return false;
            }
            number = number * 10 + (c - '0');
        }
        if (rest_.size() < digits)
        {
            return false;
        }
        rest_.remove_prefix(digits);
        return true;
    }

    // Two digits, a separator and two digits.
    bool take(int& first, char separator, int& second)
    {
        return take(first, 2) && take(separator) && take(second, 2);
    }

    // The digits after the point of a second.
    bool takeFraction(int& nanosecond)
    {
        int unit = 100000000;
        bool isTaken = false;
        for (int digit = 0; take(digit, 1); unit /= 10)
        {
            nanosecond += digit * unit;
            isTaken = true;
        }
        return isTaken;
    }

private:
    std::string_view rest_;
};

bool takeDate(Parts& parts, Date& date)
{
    return parts.take(date.year, 4) && parts.take('-') && parts.take(date.month, '-', date.day) &&
           config::exists(date);
}

bool takeTime(Parts& parts, Time& time)
{
    return parts.take(time.hour, ':', time.minute) && parts.take(':') &&
           parts.take(time.second, 2) &&
           (!parts.take('.') || parts.takeFraction(time.nanosecond)) && config::exists(time);
}

bool takeOffset(Parts& parts, int& offset)
{
    if (parts.take('Z'))
    {
        offset = 0;
        return true;
    }
    const bool isNegative = parts.isNext('-');
    int hours = 0;
    int minutes = 0;
    if (!(parts.take('+') || parts.take('-')) || !parts.take(hours, ':', minutes) || minutes > 59)
    {
        return false;
    }
    offset = (isNegative ? -1 : 1) * (hours * 60 + minutes);
    return config::isOffset(offset);
}

// What comes after a date.
bool takeRest(Parts& parts, DateTime& value)
{
    if (parts.isEnd())
    {
        return true;
    }
    if (!(parts.take('T') || parts.take('t') || parts.take(' ')) ||
        !takeTime(parts, value.time.emplace()))
    {
        return false;
    }
    return parts.isEnd() || takeOffset(parts, value.offset.emplace());
}

} // namespace

std::optional<DateTime> dateTimeValue(std::string_view text) noexcept
{
    Parts parts(text);
    DateTime value;
    const bool isTime = text.size() > 2 && text[2] == ':';
    const bool isTaken = isTime ? takeTime(parts, value.time.emplace())
                                : takeDate(parts, value.date.emplace()) && takeRest(parts, value);
    return isTaken && parts.isEnd() ? std::optional(value) : std::nullopt;
}

} // namespace vorn::parsers::toml
