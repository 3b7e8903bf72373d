#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "byte_block.h"
#include "token_ends.h"
#include "utf8.h"

namespace vorn::parsers::toml::config
{

// Follows a document along the calls of a visitor: finds where it has what they are about.
//
// For accepted documents it is exact.  Of what the document does not have next, as may be after
// a mistake, it looks for the next one; if there is none, it stays.
class Follower
{
public:
    explicit Follower(std::string_view document) noexcept
        : document_(document), at_(byteOrderMarkLength(document)), position_(at_),
          searchable_(maxSearches * document.size())
    {
    }

    // Moves to the next bracket or brace, and after it.
    void bracket(char c) noexcept
    {
        if (next() < document_.size() && document_[at_] == c)
        {
            position_ = at_++;
            return;
        }
        searchBracket(c);
    }

    // Move to a token, and after it.  They return it as it stands in the document; the text itself
    // if the document does not have it.
    std::string_view bareKey(const char* text) noexcept
    {
        return tryBareKey(text) ? last() : token(text);
    }
    // A number, a boolean, a date or a time.
    std::string_view value(const char* text) noexcept
    {
        return tryValue(text) ? last() : token(text);
    }
    // A date with a time.
    std::string_view dateTime(const char* text) noexcept
    {
        return tryDateTime(text) ? last() : token(text);
    }
    // A string or a quoted key: all of it, even if a NUL byte cuts the text.
    std::string_view string(const char* text) noexcept
    {
        return tryString(text) ? last() : anyString(text);
    }

    // The same if it is plain to see where the token ends.  Otherwise they return false and have
    // moved to no token; then it takes the two below, which are slower.
    bool tryBareKey(const char* text) noexcept { return tryToken<BareKeyEnd>(text); }
    bool tryValue(const char* text) noexcept { return tryToken<ValueEnd>(text); }
    bool tryDateTime(const char* text) noexcept { return tryToken<DateTimeEnd>(text); }
    bool tryBasicString(const char* text) noexcept { return tryToken<BasicStringEnd>(text); }
    bool tryLiteralString(const char* text) noexcept { return tryToken<LiteralStringEnd>(text); }
    bool tryString(const char* text) noexcept
    {
        return *text == '"' ? tryBasicString(text) : tryLiteralString(text);
    }

    std::string_view token(const char* text) noexcept;
    std::string_view anyString(const char* text) noexcept;

    // Moves before the next bracket or token, and returns its offset.
    std::size_t next() noexcept
    {
        at_ = afterSeparators();
        if (at_ < document_.size() && kindAt(at_) == special)
        {
            skipSpecial();
        }
        return at_;
    }

    // The offset of the last bracket or token.
    std::size_t position() const noexcept { return position_; }

private:
    // The document itself tells where a token ends.  A loop over the text does, too, but if lengths
    // vary a processor guesses wrong how often it runs, and a function that reads many bytes of the
    // text at once waits until the parser's have reached the memory.  Following takes some 5 ns for
    // each text, instead of 8 to 17 with a loop, or 7 to 13 with such functions (x86-64).
    // Separators hardly vary: a loop over them is guessed right, so that what comes next does not
    // wait for it.
    template <typename End>
    bool tryToken(const char* text) noexcept
    {
        at_ = afterSeparators();
        const char* const here = document_.data() + at_;
        const std::size_t left = document_.size() - at_;
        std::size_t size = tokenEnd<End>(here, left, End::first);
        if (End::isAfterBlank(here, size))
        {
            size = tokenEnd<End>(here, left, size + 1);
        }
        const bool isPlain = size != 0 && size != noEnd && End::isPlain(here[size]) &&
                             (End::own == 0 || End::isPlain(*here)); // both quotes
        if (!isPlain || !hasStart(text, here, size + End::own))
        {
            return false;
        }
        position_ = at_;
        at_ += size + End::own;
        return true;
    }

    static constexpr std::size_t noEnd = std::string_view::npos;

    // `left` bytes of the document are left, from the token on.
    template <typename End>
    static std::size_t tokenEnd(const char* token, std::size_t left, std::size_t from) noexcept
    {
        for (; left >= from + ByteBlock::size; from += ByteBlock::size)
        {
            const auto ends = ByteBlock::marks(End::found(ByteBlock(token + from)));
            if (ends != 0)
            {
                return from + ByteBlock::beforeFirst(ends);
            }
        }
        return noEnd;
    }

    // Whether a text starts like a token, which has no NUL byte.  In an accepted document it is the
    // token; after a mistake this tells nearly all others.  It looks at one byte after the other,
    // since the text may have no more, and always at as many, so that there is nothing to guess.
    static bool hasStart(const char* text, const char* token, std::size_t size) noexcept
    {
        constexpr std::size_t looked = 4;
        for (std::size_t index = 0; index < looked; ++index)
        {
            const std::size_t at = std::min(index, size - 1);
            if (text[at] != token[at])
            {
                return false;
            }
        }
        // Then comes the text's NUL, or one more byte.
        const std::size_t at = std::min(looked, size);
        const unsigned mask = 0U - static_cast<unsigned>(size > looked);
        return (static_cast<unsigned char>(token[at]) & mask) ==
               static_cast<unsigned char>(text[at]);
    }

    std::string_view last() const noexcept
    {
        return {document_.data() + position_, at_ - position_};
    }

    std::size_t afterSeparators() const noexcept
    {
        std::size_t at = at_;
        while (at < document_.size() && kindAt(at) == separator)
        {
            ++at;
        }
        return at;
    }

    enum Kind : std::uint8_t
    {
        other,
        separator,
        special, // may start a comment, or be a separator
    };

    static constexpr std::array<Kind, 256> kinds() noexcept
    {
        std::array<Kind, 256> result = {};
        for (const char c : {' ', '\t', '\n', '\r', ',', '=', '.'})
        {
            result[static_cast<unsigned char>(c)] = separator;
        }
        result['#'] = special;
        for (std::size_t c = 0x80; c < result.size(); ++c)
        {
            result[c] = special;
        }
        return result;
    }

    static Kind kindOf(unsigned char c) noexcept
    {
        static constexpr std::array<Kind, 256> table = kinds();
        return table[c];
    }
    Kind kindAt(std::size_t at) const noexcept
    {
        return kindOf(static_cast<unsigned char>(document_[at]));
    }

    bool isAt(std::size_t at, std::string_view text) const noexcept
    {
        return document_.size() - at >= text.size() &&
               std::memcmp(document_.data() + at, text.data(), text.size()) == 0;
    }

    // Takes what comes next, or looks for it.
    std::string_view take(std::string_view text) noexcept;

    // Moves after comments and separators, at the first of which it is.
    void skipSpecial() noexcept;
    void skipComment() noexcept;

    // Moves to the next place where something is, and after it: a bracket, or a text at the start
    // of a token.  Stays and returns false if there is none.
    bool searchBracket(char c) noexcept;
    bool search(std::string_view text) noexcept;
    template <typename LengthHere>
    bool searchWhere(LengthHere lengthHere) noexcept;
    // Moves after the bracket or token that comes next.
    void skipToken() noexcept;

    // The string at the last position; moves after it.
    std::string_view wholeString() noexcept;

    // How often all of the document may be looked through in vain.
    static constexpr std::size_t maxSearches = 8;

    std::string_view document_;
    std::size_t at_; // after the last bracket or token
    std::size_t position_;
    std::size_t searchable_; // so many bytes may be looked through in vain
};

} // namespace vorn::parsers::toml::config
