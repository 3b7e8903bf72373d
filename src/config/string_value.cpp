#include <vorn/parsers/toml_values.h>

#include <algorithm>
#include <cstddef>
#include <utility>

#include "string_escapes.h"

namespace vorn::parsers::toml
{
namespace
{

// Turns the text of a string into its content.
class StringReading
{
public:
    // The text starts with a quote.
    explicit StringReading(std::string_view text)
        : text_(text), quote_(text[0]), escape_(quote_ == '"' ? '\\' : quote_),
          isMultiline_(text.size() >= 6 && text[1] == quote_ && text[2] == quote_),
          lineFeed_(isMultiline_ ? quote_ : '\n')
    {
    }

    std::optional<std::string> content()
    {
        at_ = isMultiline_ ? 3 + config::lineBreakLength(text_, 3) : 1;
        // It is no longer than its text.
        content_.reserve(text_.size() - at_);
        do
        {
            copyPlain();
        } while (takeEscape() || takeQuotes());
        return at_ == text_.size() && isEnded_ ? std::optional(std::move(content_)) : std::nullopt;
    }

private:
    void copyPlain()
    {
        const std::size_t begin = at_;
        while (at_ < text_.size() && text_[at_] != quote_ && text_[at_] != escape_ &&
               text_[at_] != lineFeed_)
        {
            ++at_;
        }
        content_.append(text_.data() + begin, at_ - begin);
    }

    bool takeEscape()
    {
        if (at_ == text_.size() || text_[at_] != '\\')
        {
            return false;
        }
        std::size_t length = isMultiline_ ? config::joinedLength(text_, at_) : 0;
        if (length == 0)
        {
            length = config::appendEscaped(content_, text_, at_);
        }
        at_ += length;
        return length != 0;
    }

    // Takes quotes that are content.  Those that are not end the string: of four in a row, in a
    // string of several lines, the first one is content, too.
    bool takeQuotes()
    {
        const std::size_t delimiter = isMultiline_ ? 3 : 1;
        const std::size_t max = isMultiline_ ? 4 : 1;
        std::size_t count = 0;
        while (count < max && at_ < text_.size() && text_[at_] == quote_)
        {
            ++at_;
            ++count;
        }
        isEnded_ = count >= delimiter;
        content_.append(isEnded_ ? count - delimiter : count, quote_);
        return count != 0 && !isEnded_;
    }

    std::string_view text_;
    char quote_;
    char escape_; // where there are none, this is the quote
    bool isMultiline_;
    char lineFeed_; // likewise, where it is content
    std::size_t at_ = 0;
    bool isEnded_ = false;
    std::string content_;
};

// Nearly all strings are of one line, without anything that is not content itself.
bool isPlain(std::string_view text)
{
    const char quote = text[0];
    const char escape = quote == '"' ? '\\' : quote;
    return text.back() == quote &&
           std::none_of(text.begin() + 1, text.end() - 1,
                        [quote, escape](char c) { return c == quote || c == escape || c == '\n'; });
}

} // namespace

std::optional<std::string> stringValue(std::string_view text)
{
    if (text.empty() || (text[0] != '"' && text[0] != '\''))
    {
        return std::nullopt;
    }
    if (text.size() >= 2 && isPlain(text))
    {
        return std::optional<std::string>(std::in_place, text.substr(1, text.size() - 2));
    }
    return StringReading(text).content();
}

} // namespace vorn::parsers::toml
