#include "toml_reader.h"

#include <string>
#include <utility>

#include "scan/utf8.h"

#include "characters.h"
#include "diagnosis/characters.h"
#include "string_reading.h"
#include "word_kind.h"

namespace tool::fixing
{
namespace
{

using Kind = PieceKind;

// Each operation that reads returns whether there was no mistake.
class Reader
{
public:
    explicit Reader(std::string_view text) : text_(text) {}

    Reading read()
    {
        if (const std::size_t malformed = vorn::parsers::toml::diagnosis::findMalformed(text_);
            malformed != std::string_view::npos)
        {
            fail(malformed, "bytes that are not UTF-8");
            return std::move(reading_);
        }
        if (const std::size_t mark = vorn::parsers::toml::byteOrderMarkLength(text_); mark > 0)
        {
            add(Kind::mark, mark);
        }
        while (at_ < text_.size() && readLine())
        {
        }
        return std::move(reading_);
    }

private:
    char next() const { return at_ < text_.size() ? text_[at_] : '\0'; }

    bool fail(std::size_t at, std::string message)
    {
        reading_.mistake = Mistake{at, std::move(message)};
        return false;
    }

    bool failExpecting(const std::string& what) { return fail(at_, "expected " + what); }

    bool add(Kind kind, std::size_t length)
    {
        reading_.pieces.push_back({kind, at_, at_ + length});
        at_ += length;
        return true;
    }

    bool take(std::string_view text, Kind kind)
    {
        return text_.substr(at_, text.size()) == text && add(kind, text.size());
    }

    bool takeNewline()
    {
        const std::size_t length = newlineLength(text_, at_);
        return length > 0 && add(Kind::newline, length);
    }

    void readBlanks()
    {
        if (const std::size_t end = blanksEnd(text_, at_); end > at_)
        {
            add(Kind::blanks, end - at_);
        }
    }

    bool readComment()
    {
        std::size_t end = at_;
        while (end < text_.size() && !isControl(text_[end]))
        {
            ++end;
        }
        if (end < text_.size() && newlineLength(text_, end) == 0)
        {
            return fail(end, "a control character in a comment");
        }
        return add(Kind::comment, end - at_);
    }

    // Blanks, comments and line breaks within an array.
    bool readSpacing()
    {
        for (;;)
        {
            readBlanks();
            if (next() == '#' && !readComment())
            {
                return false;
            }
            if (!takeNewline())
            {
                return true;
            }
        }
    }

    bool readLine()
    {
        readBlanks();
        const bool isEmpty = at_ == text_.size() || next() == '#' || newlineLength(text_, at_) > 0;
        if (!isEmpty && !(next() == '[' ? readHeader() : readPair()))
        {
            return false;
        }
        readBlanks();
        if (next() == '#' && !readComment())
        {
            return false;
        }
        return at_ == text_.size() || takeNewline() || failExpecting("the end of the line");
    }

    bool readHeader()
    {
        if (take("[[", Kind::arrayHeaderBegin))
        {
            return readKey() && (take("]]", Kind::arrayHeaderEnd) || failExpecting("']]'"));
        }
        return take("[", Kind::headerBegin) && readKey() &&
               (take("]", Kind::headerEnd) || failExpecting("']'"));
    }

    bool readPair()
    {
        if (!readKeyAndEquals())
        {
            return false;
        }
        isValueDue_ = true;
        while (isValueDue_ || !isTable_.empty())
        {
            if (!(isValueDue_ ? readValueStart() : readAfterValue()))
            {
                return false;
            }
        }
        return true;
    }

    bool readKeyAndEquals()
    {
        if (!readKey() || !(take("=", Kind::equals) || failExpecting("'=' after the key")))
        {
            return false;
        }
        readBlanks();
        return true;
    }

    bool readKey()
    {
        do
        {
            readBlanks();
            if (!readKeyPart())
            {
                return false;
            }
            readBlanks();
        } while (take(".", Kind::dot));
        return true;
    }

    bool readKeyPart()
    {
        if (next() == '"' || next() == '\'')
        {
            const StringReading string = readString(text_, at_);
            if (string.kind == Kind::multilineBasicString ||
                string.kind == Kind::multilineLiteralString)
            {
                return failExpecting("a key, which is on one line");
            }
            return addString(string,
                             string.kind == Kind::basicString ? Kind::basicKey : Kind::literalKey);
        }
        std::size_t end = at_;
        while (end < text_.size() && isBareKeyCharacter(text_[end]))
        {
            ++end;
        }
        return end > at_ ? add(Kind::bareKey, end - at_) : failExpecting("a key");
    }

    bool addString(const StringReading& string, Kind kind)
    {
        reading_.mistake = string.mistake;
        return !string.mistake && add(kind, string.end - at_);
    }

    // A scalar, or what comes up to the first value in brackets.
    bool readValueStart()
    {
        if (take("[", Kind::arrayBegin))
        {
            isTable_.push_back(false);
            return readSpacing() && (next() != ']' || readEnd("]", Kind::arrayEnd));
        }
        if (take("{", Kind::tableBegin))
        {
            isTable_.push_back(true);
            readBlanks();
            return next() == '}' ? readEnd("}", Kind::tableEnd) : readKeyAndEquals();
        }
        isValueDue_ = false;
        if (next() == '"' || next() == '\'')
        {
            const StringReading string = readString(text_, at_);
            return addString(string, string.kind);
        }
        const std::size_t end = wordEnd(text_, at_);
        const std::optional<Kind> kind = kindOfWord(text_.substr(at_, end - at_));
        return kind ? add(*kind, end - at_) : failExpecting("a value");
    }

    // What comes after a value in brackets, up to the next one.
    bool readAfterValue()
    {
        if (isTable_.back())
        {
            readBlanks();
            if (take(",", Kind::tableComma))
            {
                isValueDue_ = true;
                return readKeyAndEquals();
            }
            return readEnd("}", Kind::tableEnd);
        }
        if (!readSpacing())
        {
            return false;
        }
        if (take(",", Kind::arrayComma))
        {
            isValueDue_ = true;
            return readSpacing() && (next() != ']' || readEnd("]", Kind::arrayEnd));
        }
        return readEnd("]", Kind::arrayEnd);
    }

    bool readEnd(const char* bracket, Kind kind)
    {
        isTable_.pop_back();
        isValueDue_ = false;
        return take(bracket, kind) || failExpecting(std::string("',' or '") + bracket + '\'');
    }

    std::string_view text_;
    std::size_t at_ = 0;
    Reading reading_;
    std::vector<bool> isTable_; // of the open brackets
    bool isValueDue_ = false;
};

} // namespace

Reading readToml(std::string_view text)
{
    return Reader(text).read();
}

} // namespace tool::fixing
