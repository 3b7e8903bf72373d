#include "follower.h"

#include <algorithm>
#include <optional>

namespace vorn::parsers::toml::config
{
namespace
{

constexpr std::uint32_t endOfDocument = 0xFFFFFFFF;

// Goes over a document as the parser reads it.
class Characters
{
public:
    Characters(std::string_view document, std::size_t at) : document_(document), at_(at) { read(); }

    std::uint32_t next() const { return character_.code; }
    std::size_t offset() const { return at_; }

    std::uint32_t take()
    {
        const std::uint32_t code = character_.code;
        at_ += character_.length;
        read();
        return code;
    }

    // Returns how many came next, and were taken.
    unsigned takeAll(std::uint32_t code, unsigned max)
    {
        unsigned count = 0;
        while (count < max && next() == code)
        {
            take();
            ++count;
        }
        return count;
    }

private:
    void read()
    {
        character_ = at_ < document_.size() ? readCharacter(document_, at_)
                                            : ReadCharacter{endOfDocument, 0};
    }

    std::string_view document_;
    std::size_t at_;
    ReadCharacter character_ = {};
};

// Takes the content and the delimiter of a string, whose quotes have been taken.
void takeString(Characters& characters, std::uint32_t quote, bool isMultiline)
{
    while (characters.next() != endOfDocument && (isMultiline || characters.next() != '\n'))
    {
        // Of four quotes in a row, in a string of several lines, the first one is content.
        const unsigned quotes = characters.takeAll(quote, isMultiline ? 4 : 1);
        if (quotes >= (isMultiline ? 3 : 1))
        {
            return;
        }
        if (quotes == 0 && characters.take() == '\\' && quote == '"' && characters.next() != '\n')
        {
            characters.take();
        }
    }
}

// The end of the string that starts at an offset.  Without its delimiter it ends with the line,
// or with the document.
std::size_t stringEnd(std::string_view document, std::size_t begin)
{
    Characters characters(document, begin);
    const std::uint32_t quote = characters.take();
    const unsigned more = characters.takeAll(quote, 2);
    if (more != 1)
    {
        takeString(characters, quote, more == 2);
    }
    return characters.offset();
}

// The line feed that ends a comment; the end of the document if there is none.  No value if there
// is a malformed character before it, which may take it along.
std::optional<std::size_t> commentEnd(std::string_view document, std::size_t at)
{
    while (at < document.size())
    {
        if (document.size() - at >= ByteBlock::size)
        {
            const ByteBlock block(document.data() + at);
            const auto marks = ByteBlock::marks(block.notAscii() | block.equal('\n'));
            at += marks != 0 ? ByteBlock::beforeFirst(marks) : ByteBlock::size;
            if (marks == 0)
            {
                continue;
            }
        }
        if (document[at] == '\n')
        {
            return at;
        }
        const std::size_t length = isAscii(document[at]) ? 1 : characterLength(document, at);
        if (length == 1 && !isAscii(document[at]))
        {
            return std::nullopt;
        }
        at += length;
    }
    return at;
}

bool isQuote(std::uint32_t code)
{
    return code == '"' || code == '\'';
}

// Of bare keys, numbers and dates.
bool isTokenCharacter(std::uint32_t code)
{
    const std::uint32_t letter = code | 0x20U;
    return (letter >= 'a' && letter <= 'z') || (code >= '0' && code <= '9') || code == '_' ||
           code == '-' || code == '+' || code == ':';
}

} // namespace

std::string_view Follower::token(const char* text) noexcept
{
    next();
    return take({text, std::strlen(text)});
}

std::string_view Follower::anyString(const char* text) noexcept
{
    const std::string_view taken = token(text);
    // After a whole string there is no such byte.
    const bool isCut = at_ < document_.size() && document_[at_] == '\0' &&
                       taken.data() == document_.data() + position_;
    return isCut ? wholeString() : taken;
}

std::string_view Follower::take(std::string_view text) noexcept
{
    if (isAt(at_, text))
    {
        position_ = at_;
        at_ += text.size();
    }
    else if (!search(text))
    {
        return text;
    }
    return {document_.data() + position_, text.size()};
}

void Follower::skipComment() noexcept
{
    if (const std::optional<std::size_t> end = commentEnd(document_, at_))
    {
        at_ = *end;
        return;
    }
    Characters characters(document_, at_);
    while (characters.next() != '\n' && characters.next() != endOfDocument)
    {
        characters.take();
    }
    at_ = characters.offset();
}

void Follower::skipSpecial() noexcept
{
    while (at_ < document_.size() && kindAt(at_) != other)
    {
        const char c = document_[at_];
        const ReadCharacter character = isAscii(c) ? ReadCharacter{static_cast<unsigned char>(c), 1}
                                                   : readCharacter(document_, at_);
        if (character.code >= 0x80)
        {
            return;
        }
        if (character.code == '#')
        {
            skipComment();
        }
        else if (kindOf(static_cast<unsigned char>(character.code)) == separator)
        {
            at_ += character.length;
        }
        else
        {
            return;
        }
    }
}

void Follower::skipToken() noexcept
{
    Characters characters(document_, at_);
    if (isQuote(characters.next()))
    {
        at_ = stringEnd(document_, at_);
        return;
    }
    if (isTokenCharacter(characters.take()))
    {
        while (isTokenCharacter(characters.next()))
        {
            characters.take();
        }
    }
    at_ = characters.offset();
}

// `lengthHere` returns how long that is which is looked for; 0 if it is not here.
template <typename LengthHere>
bool Follower::searchWhere(LengthHere lengthHere) noexcept
{
    const std::size_t start = at_;
    while (at_ - start < searchable_ && next() < document_.size())
    {
        if (const std::size_t length = lengthHere(); length != 0)
        {
            position_ = at_;
            at_ += length;
            return true;
        }
        skipToken();
    }
    searchable_ -= std::min(searchable_, at_ - start);
    at_ = start;
    return false;
}

bool Follower::searchBracket(char c) noexcept
{
    return searchWhere(
        [&]
        {
            const ReadCharacter character = readCharacter(document_, at_);
            return character.code == static_cast<unsigned char>(c) ? character.length : 0;
        });
}

bool Follower::search(std::string_view text) noexcept
{
    return searchWhere([&] { return isAt(at_, text) ? text.size() : 0; });
}

std::string_view Follower::wholeString() noexcept
{
    at_ = stringEnd(document_, position_);
    return {document_.data() + position_, at_ - position_};
}

} // namespace vorn::parsers::toml::config
