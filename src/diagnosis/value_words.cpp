#include "value_words.h"

#include <algorithm>
#include <initializer_list>
#include <string>

#include "token_words.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

std::string lowerCase(std::string_view text)
{
    std::string lower(text.substr(0, 16));
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c)
                   { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

bool isOneOf(const std::string& word, std::initializer_list<const char*> words)
{
    return std::any_of(words.begin(), words.end(),
                       [&word](const char* one) { return word == one; });
}

bool isNumeric(std::string_view text)
{
    const std::size_t first = text[0] == '-' ? 1 : 0;
    return first < text.size() && text[first] >= '0' && text[first] <= '9';
}

std::string numberHint(std::string_view text)
{
    const std::string_view digits = text.substr(text[0] == '-' ? 1 : 0);
    if (digits.find_first_not_of("0123456789_") == std::string_view::npos)
    {
        return digits[0] == '0' && digits.size() > 1 && digits.find('_') == std::string_view::npos
                   ? "An integer must not start with 0. Octal integers are written 0o755."
                   : "In a number, an underscore must be between two digits.";
    }
    if (digits.find_first_not_of("0123456789-:.TtZ") == std::string_view::npos)
    {
        return "A date is written 2024-01-31, a date-time 2024-01-31T07:32:00, with seconds. "
               "Strings need quotes.";
    }
    return "Integers are written 42, 0xFF, 0o755 or 0b101, floats 1.5 or 1e6. Anything with a unit "
           "is a string: it needs quotes.";
}

std::string wordHint(std::string_view text)
{
    const std::string lower = lowerCase(text);
    if (isOneOf(lower, {"true", "false", "inf", "nan"}))
    {
        return "Write it in lower case: " + lower + '.';
    }
    if (isOneOf(lower, {"yes", "on", "no", "off"}))
    {
        return "The booleans are true and false. Strings need quotes.";
    }
    if (isOneOf(lower, {"null", "nil", "none"}))
    {
        return "TOML has no such value. Leave the key out.";
    }
    return isNumeric(text) ? numberHint(text)
                           : "Strings need quotes: \"" + quotedContent(text) + "\".";
}

} // namespace

std::string quotedContent(std::string_view text)
{
    const std::string inQuotes = quoted(text);
    return inQuotes.substr(1, inQuotes.size() - 2);
}

Words forValue(const Site& site)
{
    const std::string_view text = site.foundText();
    switch (site.found.type)
    {
    case TokenType::newline:
    case TokenType::endOfInput:
        return {"missing-value", "expected a value, found " + described(site.found, text),
                "The value must start on the line of its key."};
    case TokenType::bareKey:
        return {"not-a-value", quoted(text) + " is not a value", wordHint(text)};
    case TokenType::dot:
        return {"not-a-value", "expected a value, found '.'", "A number starts with a digit: 0.5."};
    case TokenType::equals:
        return {"second-equals", "expected a value, found a second '='",
                "A pair is written key = value."};
    default:
        return {"missing-value", "expected a value, found " + described(site.found, text),
                "Strings need quotes. Arrays are written [1, 2], inline tables {a = 1}."};
    }
}

} // namespace vorn::parsers::toml::diagnosis
