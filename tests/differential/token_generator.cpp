#include "token_generator.h"

namespace test
{
namespace
{

using Choices = std::string_view;

constexpr Choices signs[] = {"", "", "", "+", "-"};
// Many of these begin like a value.
constexpr Choices keys[] = {
    // Words.
    "a", "b", "key", "server-1", "_", "-", "--", "E", "tru", "true_", "truefalse", "false-",
    "infinity", "nanx", "inf-", "-infx", "Inf", "NaN",
    // Numbers.
    "1a", "-1x", "0x", "0x1G", "0b2", "0o8", "0X1", "01", "00", "-01", "0_1", "1_", "1__0", "1e",
    "1e5x", "1e5_", "-1-2", "1-1", "0x_1", "0b1_",
    // Dates.
    "1979-", "1979-05-2", "1979-05-27T", "1979-05-27Z", "1979-05-27T0x", "1979-05-277"};

constexpr Choices decimal = "0123456789";

// Around and beyond the lengths that 7, 8 and, now and then, 16 bits can tell.
std::size_t longLength(Random& random)
{
    switch (random.below(4))
    {
    case 0:
        return random.between(124, 130);
    case 1:
        return random.between(252, 258);
    case 2:
        return random.oneIn(100) ? random.between(65530, 65540) : random.between(60, 70);
    default:
        return random.oneIn(100) ? random.between(65000, 75000) : random.between(70, 700);
    }
}

} // namespace

std::string TokenGenerator::blanks()
{
    static constexpr Choices usual[] = {"", "", "", " ", " ", "\t", "  \t "};
    if (random_.oneIn(1000))
    {
        return std::string(random_.between(1, 300), random_.oneOf(" \t"));
    }
    return std::string(random_.oneOf(usual));
}

std::string TokenGenerator::newlines()
{
    static constexpr Choices usual[] = {"\n",   "\n",   "\n",         "\n",
                                        "\r\n", "\n\n", "\n\r\n\n\n", "\r\n\r\n"};
    return std::string(random_.oneOf(usual));
}

std::string TokenGenerator::comment()
{
    static constexpr Choices usual[] = {
        "#",    "# note",   "#\ta = 1", "# \xC3\xA9\xE2\x82\xAC\xEF\xBF\xBF",
        "# \r", "#\"'[]{}", "#\x01#"};
    return random_.oneIn(200) ? '#' + longContent() : std::string(random_.oneOf(usual));
}

std::string TokenGenerator::key()
{
    switch (random_.below(12))
    {
    case 0:
    case 1:
        return quoted('"');
    case 2:
        return quoted('\'');
    case 3:
        return random_.oneIn(10) ? std::string(longLength(random_), random_.oneOf("a0-"))
                                 : std::string(random_.between(1, 20), random_.oneOf("zA_-"));
    default:
        return std::string(random_.oneOf(keys));
    }
}

std::string TokenGenerator::quoted(char quote)
{
    return quote + content(quote, false) + quote;
}

std::string TokenGenerator::multiLine(char quote)
{
    const std::string delimiter(3, quote);
    return delimiter + content(quote, true) + (random_.oneIn(5) ? std::string(1, quote) : "") +
           delimiter;
}

std::string TokenGenerator::content(char quote, bool lines)
{
    if (random_.oneIn(50))
    {
        return longContent();
    }
    std::string text;
    for (std::size_t items = random_.below(6); items > 0; --items)
    {
        text += contentItem(quote, lines);
    }
    return text;
}

std::string TokenGenerator::contentItem(char quote, bool lines)
{
    static constexpr Choices plain[] = {
        // ASCII.
        "a", "b ", "0", "#", "=", "[", "]", "{", ",", "\t", "\r", "\x01", "\x7F", "some words ",
        // The first and the last character of each length, and others.
        "\xC2\x80", "\xC3\xA9", "\xE0\xA0\x80", "\xE2\x82\xAC", "\xED\x9F\xBF", "\xEE\x80\x80",
        "\xEF\xBB\xBF", "\xEF\xBF\xBF"};
    static constexpr Choices escapes[] = {"\\\"",    "\\'",     "\\\\",        "\\b",
                                          "\\f",     "\\n",     "\\r",         "\\t",
                                          "\\u00e9", "\\uD800", "\\UFFFFFFFF", "\\U0001F600"};
    static constexpr Choices breaks[] = {"\n", "\r\n", "\n\n  "};
    const bool basic = quote == '"';
    if (basic && random_.oneIn(4))
    {
        return std::string(random_.oneOf(escapes));
    }
    if (lines && random_.oneIn(3))
    {
        return (basic && random_.oneIn(2) ? "\\" : "") + std::string(random_.oneOf(breaks));
    }
    if (lines && random_.oneIn(4))
    {
        // One or two quotes, and content after them.
        return std::string(random_.between(1, 2), quote) + 'x';
    }
    if (random_.oneIn(12))
    {
        return basic ? "'" : "\"";
    }
    if (!basic && random_.oneIn(12))
    {
        return "\\";
    }
    return std::string(random_.oneOf(plain));
}

std::string TokenGenerator::longContent()
{
    std::string text(longLength(random_), random_.oneOf("ab \t"));
    for (std::size_t items = random_.below(3); items > 0; --items)
    {
        text.insert(random_.below(text.size() + 1), "\xE2\x82\xAC");
    }
    return text;
}

std::string TokenGenerator::string()
{
    const char quote = random_.oneOf("\"'");
    return random_.oneIn(2) ? quoted(quote) : multiLine(quote);
}

// Digits of a set, with underscores between some of them.
std::string TokenGenerator::digits(std::string_view set, std::size_t least, std::size_t most)
{
    std::string text;
    for (std::size_t count = random_.between(least, most); count > 0; --count)
    {
        text += random_.oneOf(set);
        if (count > 1 && random_.oneIn(6))
        {
            text += '_';
        }
    }
    return text;
}

std::string TokenGenerator::integer()
{
    switch (random_.below(8))
    {
    case 0:
        return "0x" + digits("0123456789abcdefABCDEF", 1, 10);
    case 1:
        return "0o" + digits("01234567", 1, 10);
    case 2:
        return "0b" + digits("01", 1, 10);
    case 3:
        return std::string(random_.oneOf(signs)) + random_.oneOf(decimal);
    default:
    {
        const std::string rest = digits(decimal, 1, 5);
        return std::string(random_.oneOf(signs)) + random_.oneOf(decimal.substr(1)) +
               (random_.oneIn(6) ? "_" : "") + rest;
    }
    }
}

std::string TokenGenerator::exponent()
{
    static constexpr Choices marks[] = {"e", "E", "e+", "E+", "e-", "E-"};
    return std::string(random_.oneOf(marks)) + digits(decimal, 1, 3);
}

std::string TokenGenerator::floating()
{
    static constexpr Choices special[] = {"inf", "+inf", "-inf", "nan", "+nan", "-nan"};
    if (random_.oneIn(4))
    {
        return std::string(random_.oneOf(special));
    }
    std::string text(random_.oneOf(signs));
    text += random_.oneIn(4) ? "0" : random_.oneOf(decimal.substr(1)) + digits(decimal, 0, 3);
    const bool fraction = random_.oneIn(2);
    if (fraction)
    {
        text += '.' + digits(decimal, 1, 4);
    }
    return !fraction || random_.oneIn(2) ? text + exponent() : text;
}

std::string TokenGenerator::dateTime()
{
    static constexpr Choices dates[] = {"1979-05-27", "2024-13-45", "0000-00-00"};
    static constexpr Choices times[] = {"07:32:00", "00:32:00.999999", "25:61:61.5", "99:99:99"};
    static constexpr Choices offsets[] = {"Z", "+01:00", "-07:30", "+99:99"};
    const std::string date(random_.oneOf(dates));
    const std::string time(random_.oneOf(times));
    switch (random_.below(4))
    {
    case 0:
        return date;
    case 1:
        return time;
    case 2:
        return date + random_.oneOf("Tt ") + time;
    default:
        return date + random_.oneOf("Tt ") + time + std::string(random_.oneOf(offsets));
    }
}

std::string TokenGenerator::scalar()
{
    switch (random_.below(5))
    {
    case 0:
        return string();
    case 1:
        return floating();
    case 2:
        return dateTime();
    case 3:
        return random_.oneIn(2) ? "true" : "false";
    default:
        return integer();
    }
}

} // namespace test
