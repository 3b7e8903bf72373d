#include "string_reading.h"

#include <algorithm>

#include "characters.h"
#include "escapes.h"

namespace tool::fixing
{
namespace
{

class StringReader
{
public:
    StringReader(std::string_view text, std::size_t at)
        : text_(text), begin_(at), quote_(text[at]), isBasic_(quote_ == '"'),
          isMultiline_(text.substr(at, 3) == std::string_view(isBasic_ ? "\"\"\"" : "'''")),
          at_(at + (isMultiline_ ? 3 : 1))
    {
    }

    StringReading read()
    {
        while (!isClosed_ && !mistake_)
        {
            readOne();
        }
        const PieceKind basic =
            isMultiline_ ? PieceKind::multilineBasicString : PieceKind::basicString;
        const PieceKind literal =
            isMultiline_ ? PieceKind::multilineLiteralString : PieceKind::literalString;
        return {isBasic_ ? basic : literal, at_, mistake_};
    }

private:
    void fail(std::size_t at, const char* message) { mistake_ = Mistake{at, message}; }

    void readOne()
    {
        if (at_ == text_.size())
        {
            fail(begin_, "the string has no closing quote");
        }
        else if (text_[at_] == quote_)
        {
            readQuotes();
        }
        else if (isBasic_ && text_[at_] == '\\')
        {
            readEscape();
        }
        else if (const std::size_t newline = newlineLength(text_, at_); newline > 0)
        {
            isMultiline_ ? void(at_ += newline)
                         : fail(begin_, "the string has no closing quote on its line");
        }
        else if (isControl(text_[at_]))
        {
            fail(at_, "a control character in a string");
        }
        else
        {
            ++at_;
        }
    }

    // Up to two quotes before the closing delimiter belong to the content.
    void readQuotes()
    {
        const std::size_t count =
            std::min(text_.find_first_not_of(quote_, at_), text_.size()) - at_;
        isClosed_ = !isMultiline_ || count >= 3;
        at_ += isMultiline_ ? std::min<std::size_t>(count, 5) : 1;
    }

    void readEscape()
    {
        const std::size_t blanks = blanksEnd(text_, at_ + 1);
        if (const std::size_t newline = newlineLength(text_, blanks); isMultiline_ && newline > 0)
        {
            at_ = blanks + newline;
            return;
        }
        const Escape escape = escapeAt(text_, at_);
        escape.length > 0 ? void(at_ += escape.length) : fail(at_, "an unknown escape");
    }

    std::string_view text_;
    std::size_t begin_;
    char quote_;
    bool isBasic_;
    bool isMultiline_;
    std::size_t at_;
    bool isClosed_ = false;
    std::optional<Mistake> mistake_;
};

} // namespace

StringReading readString(std::string_view text, std::size_t at)
{
    return StringReader(text, at).read();
}

} // namespace tool::fixing
