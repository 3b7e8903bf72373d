#include "date_words.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <string>

#include "codes.h"
#include "token_words.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

constexpr std::size_t npos = std::string_view::npos;
constexpr std::string_view digits = "0123456789";

Words invalid(std::string_view value, std::string&& hint)
{
    return {codes::invalidDateTime, quoted(value) + " is not a value", std::move(hint), value};
}

// Three numbers with the same character between them.
struct Parts
{
    std::array<std::string_view, 3> numbers;
    char separator;
};

std::optional<Parts> partsOf(std::string_view value)
{
    Parts parts = {};
    for (std::size_t part = 0; part < 3; ++part)
    {
        const std::size_t end = std::min(value.find_first_not_of(digits), value.size());
        const bool isLast = part == 2;
        if (end == 0 || isLast != (end == value.size()))
        {
            return std::nullopt;
        }
        parts.numbers[part] = value.substr(0, end);
        if (!isLast)
        {
            parts.separator = part == 0 ? value[end] : parts.separator;
            if (value[end] != parts.separator)
            {
                return std::nullopt;
            }
            value.remove_prefix(end + 1);
        }
    }
    return parts;
}

std::string padded(std::string_view number)
{
    return (number.size() == 1 ? "0" : "") + std::string(number);
}

bool isAtMost(std::string_view number, unsigned most)
{
    if (number.size() > 2)
    {
        return false;
    }
    const unsigned value = std::accumulate(
        number.begin(), number.end(), 0U,
        [](unsigned sum, char digit) { return 10 * sum + static_cast<unsigned>(digit - '0'); });
    return value > 0 && value <= most;
}

std::string dateOf(std::string_view year, std::string_view month, std::string_view day)
{
    return std::string(year) + '-' + padded(month) + '-' + padded(day);
}

std::optional<Words> forDateAlone(std::string_view value)
{
    constexpr std::size_t yearSize = 4;
    const auto parts = partsOf(value);
    if (!parts || (parts->separator != '-' && parts->separator != '.' && parts->separator != '/'))
    {
        return std::nullopt;
    }
    const auto& [first, second, third] = parts->numbers;
    if (first.size() == yearSize && isAtMost(second, 12) && isAtMost(third, 31))
    {
        return invalid(value, "A date is written " + dateOf(first, second, third) + '.');
    }
    if (third.size() != yearSize || !isAtMost(first, 31) || !isAtMost(second, 31))
    {
        return std::nullopt;
    }
    // Which one is the day is known only of some.
    if (isAtMost(second, 12) && !isAtMost(first, 12))
    {
        return invalid(value,
                       "A date is written year first: " + dateOf(third, second, first) + '.');
    }
    if (isAtMost(first, 12) && !isAtMost(second, 12))
    {
        return invalid(value,
                       "A date is written year first: " + dateOf(third, first, second) + '.');
    }
    return invalid(value, "A date is written year first, then the month: 2024-01-31.");
}

struct Time
{
    std::string text;   // with seconds, and two digits each; empty: none
    std::string reason; // why it is written like that
};

// The hour, minute and second at the start of a text; what follows is left.
Time takeTime(std::string_view& text, const std::string& name)
{
    const std::size_t hour = text.find_first_not_of(digits);
    if ((hour != 1 && hour != 2) || text[hour] != ':' || text.size() < hour + 3 ||
        text.substr(hour + 1, 2).find_first_not_of(digits) != npos)
    {
        return {};
    }
    std::string time = padded(text.substr(0, hour)) + std::string(text.substr(hour, 3));
    text.remove_prefix(hour + 3);
    const bool hasSeconds =
        text.size() >= 3 && text[0] == ':' && text.substr(1, 2).find_first_not_of(digits) == npos;
    if (!hasSeconds)
    {
        return {time + ":00", name + " is written with seconds: "};
    }
    time.append(text.substr(0, 3));
    text.remove_prefix(3);
    return {time, "An hour has two digits: "};
}

std::optional<Words> forTime(std::string_view value)
{
    std::string_view rest = value;
    const Time time = takeTime(rest, "A time");
    if (time.text.empty())
    {
        return std::nullopt;
    }
    if (rest.empty())
    {
        return invalid(value, time.reason + time.text + '.');
    }
    if (rest == "Z" || rest == "z" || rest[0] == '+' || rest[0] == '-')
    {
        return invalid(value, "A time without a date has no offset: " + time.text + '.');
    }
    return std::nullopt;
}

std::optional<Words> forDateTime(std::string_view value)
{
    constexpr std::size_t dateSize = 10;
    if (value.size() <= dateSize || value.find_first_not_of("0123456789-") != dateSize ||
        !partsOf(value.substr(0, dateSize)))
    {
        return std::nullopt;
    }
    const char joint = value[dateSize];
    std::string_view rest = value.substr(dateSize + 1);
    const Time time = takeTime(rest, "A date-time");
    if ((joint != 'T' && joint != 't' && joint != ' ') || time.text.empty())
    {
        return invalid(value, "A date is written 2024-01-31, a date-time 2024-01-31T07:32:00.");
    }
    const std::string start = std::string(value.substr(0, dateSize + 1)) + time.text;
    const std::string offsetReason = "An offset is written Z or +01:00: ";
    if (rest == "z")
    {
        return invalid(value, offsetReason + start + "Z.");
    }
    if (rest.empty() || rest == "Z")
    {
        return invalid(value, time.reason + start + std::string(rest) + '.');
    }
    if (rest.find_first_of("+-") != 0 || rest.find_first_not_of("0123456789:", 1) != npos)
    {
        return std::nullopt;
    }
    std::string offset(rest.substr(1));
    offset.erase(std::remove(offset.begin(), offset.end(), ':'), offset.end());
    offset += offset.size() == 2 ? "00" : "";
    if (offset.size() != 4)
    {
        return std::nullopt;
    }
    offset.insert(2, 1, ':');
    const std::string& reason = rest.substr(1) == offset ? time.reason : offsetReason;
    return invalid(value, reason + start + rest[0] + offset + '.');
}

} // namespace

std::optional<Words> forDate(std::string_view value)
{
    if (auto words = forDateAlone(value))
    {
        return words;
    }
    if (auto words = forTime(value))
    {
        return words;
    }
    return forDateTime(value);
}

} // namespace vorn::parsers::toml::diagnosis
