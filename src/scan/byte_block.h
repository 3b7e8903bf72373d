// Bytes that are looked at all at once: 16 where every processor of the kind has registers for as
// many, elsewhere those of a machine word.
//
// A block marks the bytes of itself that equal an ASCII character, or are from one to another.
// Marks become an integer, and that the place of the first one.
#pragma once

#include <cstddef>

#include "packed_bytes.h"

#if defined(__x86_64__)
#include <emmintrin.h>
#endif

namespace vorn::parsers::toml
{

class WordBlock
{
public:
    static constexpr std::ptrdiff_t size = sizeof(PackedBytes);

    explicit WordBlock(const char* bytes) noexcept : word_(loadBytes(bytes)) {}

    // In the high bit of each byte; the others mean nothing.
    PackedBytes equal(char c) const noexcept
    {
        return highBits - (low() ^ everywhere(static_cast<unsigned char>(c)));
    }
    PackedBytes from(char first, char last) const noexcept { return from(low(), first, last); }
    PackedBytes fromInAnyCase(char first, char last) const noexcept
    {
        return from(low() | everywhere(0x20), first, last);
    }

    // The bytes that are marked, or are not ASCII; those that are not marked.
    PackedBytes markedOrNotAscii(PackedBytes marks) const noexcept
    {
        return (marks | word_) & highBits;
    }
    PackedBytes notMarked(PackedBytes marks) const noexcept { return (~marks | word_) & highBits; }

    // The place of the first byte, from 0.
    static std::ptrdiff_t firstOf(PackedBytes bytes) noexcept { return lowestByte(bytes); }

private:
    PackedBytes low() const noexcept { return word_ & ~highBits; }

    static PackedBytes from(PackedBytes low, char first, char last) noexcept
    {
        return (low + everywhere(static_cast<unsigned char>(0x80 - first))) &
               ~(low + everywhere(static_cast<unsigned char>(0x7F - last)));
    }

    PackedBytes word_;
};

#if defined(__x86_64__)

class VectorBlock
{
public:
    static constexpr std::ptrdiff_t size = sizeof(__m128i);

    explicit VectorBlock(const char* bytes) noexcept
        : bytes_(_mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes)))
    {
    }

    __m128i equal(char c) const noexcept { return _mm_cmpeq_epi8(bytes_, _mm_set1_epi8(c)); }
    __m128i from(char first, char last) const noexcept { return from(bytes_, first, last); }
    __m128i fromInAnyCase(char first, char last) const noexcept
    {
        return from(_mm_or_si128(bytes_, _mm_set1_epi8(0x20)), first, last);
    }

    // One bit for each byte.
    unsigned markedOrNotAscii(__m128i marks) const noexcept
    {
        return bitsOf(_mm_or_si128(marks, bytes_));
    }
    static unsigned notMarked(__m128i marks) noexcept { return bitsOf(marks) ^ 0xFFFF; }

    static std::ptrdiff_t firstOf(unsigned bytes) noexcept { return __builtin_ctz(bytes); }

private:
    static unsigned bitsOf(__m128i marks) noexcept
    {
        return static_cast<unsigned>(_mm_movemask_epi8(marks));
    }

    // Comparisons are those of signed bytes: `first` is moved to the lowest of these.
    static __m128i from(__m128i bytes, char first, char last) noexcept
    {
        const __m128i moved = _mm_add_epi8(bytes, _mm_set1_epi8(static_cast<char>(-128 - first)));
        return _mm_cmplt_epi8(moved, _mm_set1_epi8(static_cast<char>(last - first - 127)));
    }

    __m128i bytes_;
};

using ByteBlock = VectorBlock;

#else

using ByteBlock = WordBlock;

#endif

} // namespace vorn::parsers::toml
