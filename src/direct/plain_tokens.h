// Where the tokens end that come most often, as far as a look at a few blocks of bytes shows it.
// What is the least unusual, or close to the end of the text, is left to the scanner.
#pragma once

#include <cstddef>
#include <cstring>
#include <type_traits>
#include <utility>

#include "event.h"
#include "scan/byte_block.h"
#include "scan/character_class.h"
#include "scan/character_run.h"

namespace vorn::parsers::toml
{

template <typename Block>
inline constexpr bool isVector = Block::size > WordBlock::size;

template <std::size_t size>
bool startsWith(const char* at, const char (&text)[size]) noexcept
{
    return std::memcmp(at, text, size - 1) == 0;
}

template <typename Run, typename Block>
[[gnu::noinline]] const char* runEndByWords(const char* at, const char* end) noexcept
{
    return earlyRunEnd<Run, Block>(at, end);
}

// The end of a run; null if it is not easy to see.  Where it is looked for by words, that is a
// function of its own: one in line would take more room, and no less time.
template <typename Run, typename Block>
const char* plainRunEnd(const char* at, const char* end) noexcept
{
    if constexpr (isVector<Block>)
    {
        return earlyRunEnd<Run, Block>(at, end);
    }
    else
    {
        return runEndByWords<Run, Block>(at, end);
    }
}

// The end of a bare key; null if it is not easy to see.
template <typename Block>
const char* plainKeyEnd(const char* begin, const char* end) noexcept
{
    if (!is(*begin, letter))
    {
        return nullptr;
    }
    const char* const stop = plainRunEnd<KeyCharacters, Block>(begin, end);
    // A word that starts like these could be a boolean or a float.  After a run that ends early
    // there are some bytes more.
    const bool isKey =
        stop != nullptr &&
        !(is(*begin, keywordStart) && (startsWith(begin, "true") || startsWith(begin, "fals") ||
                                       startsWith(begin, "inf") || startsWith(begin, "nan")));
    return isKey ? stop : nullptr;
}

// The end of a basic string of one line without escapes; null if it is not easy to see.
template <typename Block>
const char* plainStringEnd(const char* begin, const char* end) noexcept
{
    const char* const stop = plainRunEnd<Plain<'"', '\n', '\\'>, Block>(begin + 1, end);
    // An empty string could be the start of a longer delimiter.
    return stop != nullptr && *stop == '"' && stop != begin + 1 ? stop + 1 : nullptr;
}

// The end of a boolean; null if this is another token.
template <std::size_t size>
const char* plainWordEnd(const char* begin, const char* end, const char (&word)[size]) noexcept
{
    const bool isWord = end - begin >= static_cast<std::ptrdiff_t>(size) &&
                        startsWith(begin, word) && !is(begin[size - 1], keyCharacter);
    return isWord ? begin + (size - 1) : nullptr;
}

// No number, date or time goes on with these.
constexpr bool endsNumber(char c)
{
    return static_cast<unsigned char>(c) <= ',' || c == ']' || c == '}';
}

// The ends of the digits of a number, and of those after its point: mostly both are in one block.
template <typename Block>
class DigitsInBlock
{
public:
    DigitsInBlock(const char* whole, const char* end) noexcept
        : whole_(whole), others_(end - whole > Block::size ? Digits::outside(Block(whole)) : 0)
    {
    }

    const char* point() const noexcept { return placeOf(others_); }
    const char* fractionEnd() const noexcept { return placeOf(others_ & (others_ - 1)); }

private:
    using Bytes = decltype(Digits::outside(std::declval<Block>()));

    const char* placeOf(Bytes bytes) const noexcept
    {
        return bytes != 0 ? whole_ + Block::firstOf(bytes) : nullptr;
    }

    const char* whole_;
    Bytes others_;
};

// The same where a block has room for few digits.
template <typename Block>
class DigitsByWords
{
public:
    DigitsByWords(const char* whole, const char* end) noexcept
        : point_(plainRunEnd<Digits, Block>(whole, end)), end_(end)
    {
    }

    const char* point() const noexcept { return point_; }
    const char* fractionEnd() const noexcept
    {
        return plainRunEnd<Digits, Block>(point_ + 1, end_);
    }

private:
    const char* point_;
    const char* end_;
};

// A decimal integer, or a float with a fraction.
struct PlainNumber
{
    Event event; // none if it is not easy to see
    const char* stop;
};

// The one whose digits start at `whole`.
template <typename Block>
PlainNumber plainNumber(const char* whole, const char* end) noexcept
{
    constexpr PlainNumber none = {Event::none, nullptr};
    using DigitEnds =
        std::conditional_t<isVector<Block>, DigitsInBlock<Block>, DigitsByWords<Block>>;
    const DigitEnds ends(whole, end);
    const char* const point = ends.point();
    if (point == nullptr || point == whole || (*whole == '0' && point != whole + 1))
    {
        return none;
    }
    if (endsNumber(*point))
    {
        return {Event::visitInteger, point};
    }
    const char* const stop = *point == '.' ? ends.fractionEnd() : nullptr;
    return stop != nullptr && stop != point + 1 && endsNumber(*stop)
               ? PlainNumber{Event::visitFloat, stop}
               : none;
}

} // namespace vorn::parsers::toml
