// Well-formed UTF-8.
#pragma once

#include <cstddef>
#include <string_view>

namespace vorn::parsers::toml
{

constexpr bool isAscii(char c)
{
    return (static_cast<unsigned char>(c) & 0x80) == 0;
}

// Whether a byte is one after the first of a sequence.
constexpr bool isContinuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

enum class Utf8Range
{
    upToFFFF, // sequences of up to three bytes: what the grammar knows
    whole,    // up to U+10FFFF
};

// Whether this many continuations come after the byte at `at`.
inline bool isContinued(const char* at, const char* end, std::ptrdiff_t count) noexcept
{
    if (end - at <= count)
    {
        return false;
    }
    for (; count > 0 && isContinuation(at[count]); --count)
    {
    }
    return count == 0;
}

// The end of the well-formed sequence at `at`, which is before `end`, of a character that is
// not ASCII; null if there is none.
inline const char* sequenceEnd(const char* at, const char* end, Utf8Range range) noexcept
{
    const auto first = static_cast<unsigned char>(*at);
    if (first >= 0xC2 && first <= 0xDF)
    {
        return isContinued(at, end, 1) ? at + 2 : nullptr;
    }
    // In longer ones the second byte tells overlong forms, surrogates and what is too high.
    if ((first & 0xF0) == 0xE0 && isContinued(at, end, 2))
    {
        const auto second = static_cast<unsigned char>(at[1]);
        const bool overlong = first == 0xE0 && second < 0xA0;
        const bool surrogate = first == 0xED && second >= 0xA0;
        return overlong || surrogate ? nullptr : at + 3;
    }
    if (range == Utf8Range::whole && first >= 0xF0 && first <= 0xF4 && isContinued(at, end, 3))
    {
        const auto second = static_cast<unsigned char>(at[1]);
        const bool overlong = first == 0xF0 && second < 0x90;
        const bool tooHigh = first == 0xF4 && second >= 0x90;
        return overlong || tooHigh ? nullptr : at + 4;
    }
    return nullptr;
}

// The length of the byte order mark that a text starts with; 0 without one.
constexpr std::size_t byteOrderMarkLength(std::string_view text)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return text.substr(0, mark.size()) == mark ? mark.size() : 0;
}

} // namespace vorn::parsers::toml
