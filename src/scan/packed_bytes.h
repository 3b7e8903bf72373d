// Machine words whose bytes are looked at all at once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace vorn::parsers::toml
{

using PackedBytes = std::uintptr_t;

// The same byte in every place.
constexpr PackedBytes everywhere(unsigned char byte)
{
    return ~PackedBytes{0} / 0xFF * byte;
}

constexpr PackedBytes highBits = everywhere(0x80);

// Whether the first byte in memory is the lowest one of the word.
constexpr bool littleEndian = __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__;

template <typename Word = PackedBytes>
Word loadBytes(const char* at) noexcept
{
    Word word = 0;
    std::memcpy(&word, at, sizeof(word));
    return word;
}

// The place of the lowest byte with a bit set, from 0.
inline std::ptrdiff_t lowestByte(PackedBytes marked) noexcept
{
    static_assert(sizeof(PackedBytes) <= sizeof(unsigned long));
    return __builtin_ctzl(marked) / 8;
}

} // namespace vorn::parsers::toml
