#include "number_words.h"

#include <algorithm>
#include <string>

#include "codes.h"
#include "scan/scanner.h"
#include "token_words.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

constexpr std::size_t npos = std::string_view::npos;
constexpr std::string_view allDigits = "0123456789";

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool hasOnly(std::string_view text, std::string_view characters)
{
    return text.find_first_not_of(characters) == npos;
}

Words invalid(std::string_view value, std::string&& hint)
{
    return {codes::invalidNumber, quoted(value) + " is not a value", std::move(hint), value};
}

// Without the underscores that are not between two digits.
std::string withoutStrayUnderscores(std::string_view text)
{
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at)
    {
        const bool isBetween = !result.empty() && isDigit(result.back()) && at + 1 < text.size() &&
                               isDigit(text[at + 1]);
        if (text[at] != '_' || isBetween)
        {
            result += text[at];
        }
    }
    return result;
}

// 0x1F with a sign, in capitals, or with wrong digits.
std::optional<Words> forPrefixed(std::string_view value, bool hasSign, std::string_view digits)
{
    const char prefix =
        digits.size() > 1 && digits[0] == '0' ? static_cast<char>(digits[1] | ('a' ^ 'A')) : '\0';
    const bool isHex = prefix == 'x';
    if (!isHex && prefix != 'o' && prefix != 'b')
    {
        return std::nullopt;
    }
    const std::string_view valid = isHex           ? "0123456789abcdefABCDEF_"
                                   : prefix == 'b' ? "01_"
                                                   : "01234567_";
    const std::string_view rest = digits.substr(2);
    std::string start = std::string("0") + prefix;
    if (rest.empty() || !hasOnly(rest, valid))
    {
        return invalid(value, "After " + start + " come digits, " +
                                  (isHex           ? "0-9 and a-f: 0x1F."
                                   : prefix == 'b' ? "0 and 1: 0b101."
                                                   : "0-7: 0o755."));
    }
    if (hasSign)
    {
        const std::string example = value[0] == '+' ? start.append(rest) : "-31";
        return invalid(value, "Only decimal integers may have a sign: " + example + '.');
    }
    if (digits[1] != prefix)
    {
        return invalid(value, start + " is written with a small letter: " + start +
                                  std::string(rest) + '.');
    }
    return invalid(value, "In a number, an underscore must be between two digits.");
}

// 007, 1_, 1__0.
Words forInteger(std::string_view value, const std::string& sign, std::string_view digits)
{
    const std::string tidy = withoutStrayUnderscores(digits);
    if (tidy.size() != digits.size())
    {
        return invalid(value, "An underscore must be between two digits: " + sign + tidy + '.');
    }
    const std::string plain(
        digits.substr(std::min(digits.find_first_not_of("0_"), digits.size() - 1)));
    std::string hint = "An integer must not start with 0: " + sign + plain + '.';
    if (sign.empty() && hasOnly(digits, "01234567"))
    {
        hint += " Octal integers are written 0o" + plain + '.';
    }
    return invalid(value, std::move(hint));
}

bool isInteger(std::string_view text)
{
    const char* const end = text.data() + text.size();
    if (text.empty())
    {
        return false;
    }
    const Token token = scanToken(text.data(), end);
    return token.type == TokenType::decInt && token.end == end;
}

// 1,5 and 1,000,000.
std::optional<Words> forCommas(std::string_view value)
{
    const std::size_t comma = value.find(',');
    if (comma == npos || !hasOnly(value, "0123456789,+-"))
    {
        return std::nullopt;
    }
    std::string elements;
    bool isArray = true;
    bool isGrouped = value.find_first_of("123456789") < comma;
    for (std::size_t begin = 0, end = 0; begin <= value.size(); begin = end + 1)
    {
        end = std::min(value.find(',', begin), value.size());
        const std::string_view element = value.substr(begin, end - begin);
        isArray = isArray && isInteger(element);
        // Groups of three digits are thousands.
        isGrouped = isGrouped && (begin == 0 ? isInteger(element)
                                             : element.size() == 3 && hasOnly(element, allDigits));
        elements.append(begin == 0 ? "" : ", ").append(element);
    }
    std::string plain(value);
    if (isGrouped)
    {
        std::replace(plain.begin(), plain.end(), ',', '_');
        return invalid(value,
                       "Thousands are separated by underscores, or not at all: " + plain + '.');
    }
    plain[comma] = '.';
    if (isInteger(value.substr(0, comma)) && comma + 1 < value.size() &&
        hasOnly(value.substr(comma + 1), allDigits))
    {
        std::string hint = "A float is written " + plain;
        if (isArray)
        {
            hint += ", an array [" + elements + ']';
        }
        return invalid(value, std::move(hint) + '.');
    }
    if (!isArray)
    {
        return std::nullopt;
    }
    return invalid(value, "An array is written [" + elements + "].");
}

// 1., .5, 1e, 1.5_ and 01.5: puts digits where they are missing.
std::optional<Words> forFloat(std::string_view value, const std::string& sign,
                              std::string_view number)
{
    const std::string tidy = withoutStrayUnderscores(number);
    const std::size_t exponent = std::min(tidy.find_first_of("eE"), tidy.size());
    const std::size_t dot = std::min(tidy.find('.'), exponent);
    std::string whole = tidy.substr(0, dot);
    std::string fraction = tidy.substr(dot, exponent - dot);
    const std::string power = tidy.substr(exponent);
    const std::size_t powerDigits = power.find_first_not_of("eE+-");
    if (!hasOnly(whole, "0123456789_") || !hasOnly(fraction, "0123456789_.") ||
        !hasOnly(power, "0123456789_eE+-") || power.find_first_of("eE", 1) != npos ||
        power.find_first_of("+-", 2) != npos)
    {
        return std::nullopt;
    }
    if (!power.empty() && powerDigits == npos)
    {
        return invalid(value, "Digits must follow the e, as in 1e6.");
    }
    const bool lacksDigits = whole.empty() || fraction == ".";
    const bool isZeroFirst = whole.size() > 1 && whole[0] == '0';
    whole.erase(0, std::min(whole.find_first_not_of("0_"), whole.empty() ? 0 : whole.size() - 1));
    whole += whole.empty() ? "0" : "";
    fraction += fraction == "." ? "0" : "";
    const std::string reason = lacksDigits   ? "A float has digits on both sides of the dot: "
                               : isZeroFirst ? "A float must not start with 0 and another digit: "
                                             : "An underscore must be between two digits: ";
    return invalid(value, reason + sign + whole + fraction + power + '.');
}

} // namespace

std::optional<Words> forNumber(std::string_view value)
{
    const bool hasSign = value.find_first_of("+-") == 0;
    const std::string_view number = value.substr(hasSign ? 1 : 0);
    const std::string sign(value.substr(0, hasSign ? 1 : 0));
    const std::size_t first = number.find_first_not_of("._");
    if (first == npos || !isDigit(number[first]) || first > 1)
    {
        return std::nullopt;
    }
    if (auto words = forPrefixed(value, hasSign, number))
    {
        return words;
    }
    if (hasOnly(number, "0123456789_"))
    {
        if (number[0] == '_')
        {
            return std::nullopt;
        }
        return forInteger(value, sign, number);
    }
    if (auto words = forCommas(value))
    {
        return words;
    }
    if (std::count(number.begin(), number.end(), '.') > 1)
    {
        return std::nullopt;
    }
    return forFloat(value, sign, number);
}

} // namespace vorn::parsers::toml::diagnosis
