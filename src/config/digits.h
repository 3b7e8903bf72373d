// Decimal digits, whatever the locale is.
#pragma once

namespace vorn::parsers::toml::config
{

constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// The value of a hexadecimal digit; one that no radix has if it is none.
constexpr unsigned noDigit = 16;
constexpr unsigned digitValue(char c)
{
    // Letters of both cases have their place in the lower four bits.
    const auto code = static_cast<unsigned char>(c);
    const unsigned letter = code | 0x20U;
    return isDigit(c) ? code - unsigned{'0'}
                      : (letter >= 'a' && letter <= 'f' ? (code & 0xFU) + 9 : noDigit);
}

} // namespace vorn::parsers::toml::config
