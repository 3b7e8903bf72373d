#pragma once

#include <cstdint>
#include <string>

namespace test
{

// The UTF-8 form of a code point, a surrogate like any other.
inline std::string utf8(std::uint32_t point)
{
    const auto byte = [](std::uint32_t value) { return static_cast<char>(value); };
    const auto trail = [&](unsigned shift) { return byte(0x80 | ((point >> shift) & 0x3F)); };
    if (point < 0x80)
    {
        return {byte(point)};
    }
    if (point < 0x800)
    {
        return {byte(0xC0 | (point >> 6)), trail(0)};
    }
    if (point < 0x10000)
    {
        return {byte(0xE0 | (point >> 12)), trail(6), trail(0)};
    }
    return {byte(0xF0 | (point >> 18)), trail(12), trail(6), trail(0)};
}

} // namespace test
