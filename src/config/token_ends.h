// Where the tokens of a document end, without a look at their texts.
#pragma once

#include <cstddef>

#include "byte_block.h"
#include "utf8.h"

namespace vorn::parsers::toml::config
{

// Each has these:
//
//   first           the first byte of the token that may end it
//   own             how many bytes of its end are the token's
//   found()         the bytes that end it, and all that are not plain to see
//   isAfterBlank()  whether what was found is a blank within the token
//   isPlain()       whether what was found ends the token
struct BareKeyEnd
{
    static constexpr std::size_t first = 0;
    static constexpr std::size_t own = 0;
    static ByteBlock::Found found(const ByteBlock& block) noexcept
    {
        return block.lowOrNotAscii('-' - 1) | block.equal('.') | braces(block);
    }
    static bool isAfterBlank(const char*, std::size_t) noexcept { return false; }
    // A malformed character may be a separator.
    static bool isPlain(char c) noexcept { return isAscii(c); }

    // And '=' and ']', which have fewer bits.
    static ByteBlock::Found braces(const ByteBlock& block) noexcept
    {
        return block.equalWith(0x60, '}');
    }
};

// Of numbers, booleans, dates and times.
struct ValueEnd : BareKeyEnd
{
    static ByteBlock::Found found(const ByteBlock& block) noexcept
    {
        return block.lowOrNotAscii('+' - 1) | block.equal(',') | braces(block);
    }
};

// Of a date with a time, which may have a blank between them.
struct DateTimeEnd : ValueEnd
{
    static bool isAfterBlank(const char* token, std::size_t size) noexcept
    {
        constexpr std::size_t date = sizeof("1979-05-27") - 1;
        return size == date && token[size] == ' ';
    }
};

// Of strings of one line.  (Those of several lines are not plain to see.)
struct LiteralStringEnd
{
    static constexpr std::size_t first = 1;
    static constexpr std::size_t own = 1;
    static ByteBlock::Found found(const ByteBlock& block) noexcept
    {
        return block.notAscii() | block.equal('\0') | block.equal('\'');
    }
    static bool isAfterBlank(const char*, std::size_t) noexcept { return false; }
    static bool isPlain(char c) noexcept { return c == '\''; }
};

struct BasicStringEnd : LiteralStringEnd
{
    static ByteBlock::Found found(const ByteBlock& block) noexcept
    {
        return block.notAscii() | block.equal('\0') | block.equal('"') | block.equal('\\');
    }
    static bool isPlain(char c) noexcept { return c == '"'; }
};

} // namespace vorn::parsers::toml::config
