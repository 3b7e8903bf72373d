#include "plain_number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <locale>
#include <system_error>

#include "scan/scanner.h"

namespace vorn::parsers::toml
{
namespace
{

// Whether a stream that is made now has the classic locale.  Another thread may set another one
// at any time, so that each call asks, which takes 8 ns.
bool isLocaleClassic()
{
    const std::locale& classic = std::locale::classic();
    return std::locale() == classic;
}

// What a whole text is; none where the locale may have its own way of reading it.
TokenType typeOf(std::string_view text)
{
    if (text.empty() || !isLocaleClassic())
    {
        return TokenType::none;
    }
    const char* const end = text.data() + text.size();
    const Token token = scanToken(text.data(), end);
    return token.end == end ? token.type : TokenType::none;
}

bool isSign(char c) noexcept
{
    return c == '+' || c == '-';
}

struct Radix
{
    unsigned value;
    unsigned digits; // so many fit 64 bits
};

Radix radixOf(TokenType type) noexcept
{
    switch (type)
    {
    case TokenType::decInt:
        return {10, 19};
    case TokenType::hexInt:
        return {16, 16};
    case TokenType::octInt:
        return {8, 21};
    default:
        return {0, 0};
    }
}

// Of any digit, as the scanner has found it.
unsigned valueOf(char c) noexcept
{
    const unsigned low = static_cast<unsigned char>(c) & 0xFU;
    return c <= '9' ? low : low + 9;
}

// Whether the sum of a number and one that is far smaller is the former, and so is their
// difference: every other way of rounding changes one of them.
template <typename Number>
bool roundsToNearest() noexcept
{
    const volatile Number tiny = std::numeric_limits<float>::min();
    return 1 + tiny == 1 - tiny;
}

// A stream rounds as the process does, std::from_chars() to the nearest.  (The two types have
// different units where the processor has two, each with a way of its own.)
bool isRoundingNearest() noexcept
{
    return roundsToNearest<float>() && roundsToNearest<long double>();
}

using Room = std::array<char, 48>;

// Without its underscores, in `room` if it has any; empty if it does not fit there.
std::string_view withoutUnderscores(std::string_view text, Room& room) noexcept
{
    if (text.find('_') == std::string_view::npos)
    {
        return text;
    }
    if (text.size() > room.size())
    {
        return {};
    }
    const char* const end = std::remove_copy(text.begin(), text.end(), room.begin(), '_');
    return {room.data(), static_cast<std::size_t>(end - room.data())};
}

// Whether a number is in range, and its value.  Before GCC 11 the standard library reads no
// floats: the stated way does.
bool convert([[maybe_unused]] std::string_view number, [[maybe_unused]] double& value) noexcept
{
#ifdef __cpp_lib_to_chars
    return std::from_chars(number.data(), number.data() + number.size(), value).ec == std::errc();
#else
    return false;
#endif
}

} // namespace

bool readPlainBoolean(std::string_view text, bool& value)
{
    // The names in the classic locale.
    value = text == "true";
    return (value || text == "false") && isLocaleClassic();
}

bool readPlainInteger(std::string_view text, long long& value)
{
    // The stated way needs no stream for binary digits.
    const bool isBinary = text.size() > 1 && text[1] == 'b';
    const Radix radix = radixOf(isBinary ? TokenType::none : typeOf(text));
    if (radix.digits == 0)
    {
        return false;
    }
    const bool isNegative = text[0] == '-';
    text.remove_prefix(radix.value != 10 ? 2 : isSign(text[0]) ? 1 : 0);
    std::uint64_t number = 0;
    unsigned digits = 0;
    for (const char c : text)
    {
        if (c != '_')
        {
            number = number * radix.value + valueOf(c);
            ++digits;
        }
    }
    if (digits > radix.digits || number > std::numeric_limits<std::int64_t>::max())
    {
        return false;
    }
    value = static_cast<long long>(number);
    value = isNegative ? -value : value;
    return true;
}

bool readPlainFloat(std::string_view text, double& value)
{
    const TokenType type = typeOf(text);
    if ((type != TokenType::floating && type != TokenType::decInt) || !isRoundingNearest())
    {
        return false;
    }
    Room room; // NOLINT(cppcoreguidelines-pro-type-member-init): it is filled where it is used
    std::string_view number = withoutUnderscores(text, room);
    if (number.empty())
    {
        return false;
    }
    number.remove_prefix(number[0] == '+' ? 1 : 0);
    // Below the smallest normal number strtod() sets errno.  (Zero is in range where it is exact.)
    return convert(number, value) &&
           (std::abs(value) > std::numeric_limits<double>::min() || value == 0);
}

} // namespace vorn::parsers::toml
