#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

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

    // Moves to a bare key, a number, a boolean or a date, and after it.  Returns it as it stands
    // in the document; the text itself if the document does not have it.
    std::string_view token(const char* text) noexcept
    {
        // Byte by byte, since the parser has just written the text like that: a function that reads
        // many of them at once waits until they have reached the memory.  It saves some 2 of 12 ns
        // (x86-64).
        const std::size_t left = document_.size() - next();
        const char* const here = document_.data() + at_;
        std::size_t size = 0;
        while (size < left && text[size] == here[size] && text[size] != '\0')
        {
            ++size;
        }
        if (text[size] != '\0')
        {
            return take({text, std::strlen(text)});
        }
        position_ = at_;
        at_ += size;
        return {here, size};
    }

    // The same for a string or a quoted key: all of it, even if a NUL byte cuts the text.
    std::string_view string(const char* text) noexcept
    {
        next();
        const std::string_view taken = take({text, std::strlen(text)});
        // After a whole string there is no such byte.
        const bool isCut = at_ < document_.size() && document_[at_] == '\0' &&
                           taken.data() == document_.data() + position_;
        return isCut ? wholeString() : taken;
    }

    // Moves before the next bracket or token, and returns its offset.
    std::size_t next() noexcept
    {
        while (at_ < document_.size() && kindAt(at_) == separator)
        {
            ++at_;
        }
        if (at_ < document_.size() && kindAt(at_) == special)
        {
            skipSpecial();
        }
        return at_;
    }

    // The offset of the last bracket or token.
    std::size_t position() const noexcept { return position_; }

private:
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
