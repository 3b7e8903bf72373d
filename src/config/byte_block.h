// Some bytes of a document, which are looked at all at once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace vorn::parsers::toml::config
{

// Those of a machine word.
class WordBlock
{
public:
    using Marks = std::uintptr_t; // the highest bit of each byte that is marked
    using Found = Marks;          // the same; may be joined by |

    static constexpr std::size_t size = sizeof(Marks);

    explicit WordBlock(const char* at) noexcept
    {
        std::memcpy(&bytes_, at, size);
        if constexpr (__BYTE_ORDER__ == __ORDER_BIG_ENDIAN__)
        {
            bytes_ = size == 8 ? static_cast<Marks>(__builtin_bswap64(bytes_))
                               : __builtin_bswap32(static_cast<std::uint32_t>(bytes_));
        }
    }

    Found notAscii() const noexcept { return bytes_ & highest; }
    Found equal(char c) const noexcept { return zeros(bytes_ ^ everywhere(c)); }
    // Those that are `c` with these bits set.
    Found equalWith(char bits, char c) const noexcept
    {
        return zeros((bytes_ | everywhere(bits)) ^ everywhere(c));
    }
    // Those that are at most `max`, which is ASCII, and those that are not ASCII.
    Found lowOrNotAscii(char max) const noexcept
    {
        const Marks above = (bytes_ & ~highest) + (highest - everywhere(max) - ones);
        return (~above | bytes_) & highest;
    }

    static Marks marks(Found found) noexcept { return found; }
    // Those of the first bytes, at least one.
    static Marks amongFirst(Marks marks, std::size_t count) noexcept
    {
        return marks & (highest >> (8 * (size - count)));
    }
    // How many bytes are before the first that is marked.  Some byte is.
    static std::size_t beforeFirst(Marks marks) noexcept
    {
        return static_cast<std::size_t>(__builtin_ctzl(marks)) / 8;
    }
    // How many bytes end with the last that is marked.  Some byte is.
    static std::size_t upToLast(Marks marks) noexcept
    {
        return size - static_cast<std::size_t>(__builtin_clzl(marks)) / 8;
    }
    static std::size_t count(Marks marks) noexcept
    {
        return (marks >> 7U) * ones >> (8 * (size - 1));
    }

private:
    static_assert(sizeof(Marks) == sizeof(unsigned long));

    static constexpr Marks ones = ~Marks{0} / 0xFF;
    static constexpr Marks highest = ones * 0x80;

    static constexpr Marks everywhere(char c) { return ones * static_cast<unsigned char>(c); }
    // No byte carries into the next one.
    static constexpr Marks zeros(Marks bytes)
    {
        return ~(((bytes & ~highest) + ~highest) | bytes) & highest;
    }

    Marks bytes_ = 0;
};

#if defined(__SSE2__)

// Twice as many on processors that all can do so, and faster.
class VectorBlock
{
public:
    using Marks = unsigned; // a bit for each byte that is marked
    using Found = __m128i;  // the highest bit of each; may be joined by |

    static constexpr std::size_t size = sizeof(__m128i);

    explicit VectorBlock(const char* at) noexcept
        : bytes_(_mm_loadu_si128(reinterpret_cast<const __m128i*>(at)))
    {
    }

    Found notAscii() const noexcept { return bytes_; }
    Found equal(char c) const noexcept { return _mm_cmpeq_epi8(bytes_, _mm_set1_epi8(c)); }
    Found equalWith(char bits, char c) const noexcept
    {
        return _mm_cmpeq_epi8(bytes_ | _mm_set1_epi8(bits), _mm_set1_epi8(c));
    }
    Found lowOrNotAscii(char max) const noexcept
    {
        // Those that are not ASCII are negative here.
        return ~_mm_cmpgt_epi8(bytes_, _mm_set1_epi8(max));
    }

    static Marks marks(Found found) noexcept
    {
        return static_cast<Marks>(_mm_movemask_epi8(found));
    }
    static Marks amongFirst(Marks marks, std::size_t count) noexcept
    {
        return marks & ~(~0U << count);
    }
    static std::size_t beforeFirst(Marks marks) noexcept
    {
        return static_cast<std::size_t>(__builtin_ctz(marks));
    }
    static std::size_t upToLast(Marks marks) noexcept
    {
        return static_cast<std::size_t>(31 - __builtin_clz(marks)) + 1;
    }
    static std::size_t count(Marks marks) noexcept
    {
        // Most often it is one, and not all of these processors have an instruction that counts.
        std::size_t count = 0;
        for (; marks != 0; marks &= marks - 1)
        {
            ++count;
        }
        return count;
    }

private:
    __m128i bytes_;
};

using ByteBlock = VectorBlock;

#else

using ByteBlock = WordBlock;

#endif

} // namespace vorn::parsers::toml::config
