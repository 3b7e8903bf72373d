#include "damaged_part.h"

#include <algorithm>

#include "lexical_error.h"
#include "pipeline/stack_room.h"
#include "statements.h"
#include "token_reader.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

// In bytes.  The recognisers take up to two kilobytes of memory for each: a part ends with the
// first statement after so many, and a statement is too long for them that has more.
constexpr std::size_t enough = 4096;
constexpr std::size_t tooMany = 16384;

class Finder
{
public:
    Finder(std::string_view text, std::size_t begin, const ValidLines& lines)
        : text_(text), lines_(lines), reader_(text, begin, TokenReader::Errors::independent)
    {
        found_.part.begin = begin;
    }

    DamagedPart find()
    {
        for (; reach(at_ + 1); ++at_)
        {
            if (endsPart())
            {
                return found_;
            }
            forget();
        }
        found_.part.end = isLost_ ? end_.begin : text_.size();
        found_.part.next = end_;
        found_.closesBrackets = brackets_.isEmpty();
        found_.hasUnclosedString = isLost_;
        found_.isLast = true;
        if (found_.part.end - found_.part.begin > tooMany && !found_.isLong)
        {
            isCut(tokens_.size());
        }
        return found_;
    }

private:
    // Reads tokens until there are so many.  Returns false if the document ends before, or
    // means nothing any more.
    bool reach(std::size_t count)
    {
        while (tokens_.size() < count && !hasEnded_)
        {
            const DocumentToken token = reader_.next();
            checkErrors();
            if (token.type == TokenType::endOfInput && !hasEnded_)
            {
                hasEnded_ = true;
                end_ = token;
            }
            if (!hasEnded_)
            {
                tokens_.push_back(token);
            }
        }
        return tokens_.size() >= count;
    }

    void checkErrors()
    {
        const auto& errors = reader_.errors();
        const auto broken = std::find_if(
            errors.begin() + static_cast<std::ptrdiff_t>(checked_), errors.end(),
            [this](const LexicalError& error) { return isInLongString(error, text_); });
        checked_ = errors.size();
        if (broken != errors.end())
        {
            const std::size_t end = std::min(broken->resumed, text_.size());
            end_ = {TokenType::endOfInput, end, end};
            hasEnded_ = true;
            isLost_ = true;
        }
    }

    // Whether the part ends with the token at at_, or before it.
    bool endsPart()
    {
        const DocumentToken token = tokens_[at_];
        const bool endsLine = token.type == TokenType::newline;
        while (endsLine && !reachesStatement(tokens_, at_ + 1) && reach(tokens_.size() + 1))
        {
        }
        const auto change = brackets_.take(tokens_, at_);
        const std::size_t size = token.end - found_.part.begin;
        if (!found_.isLong && (size > tooMany || isTooDeep()) && isCut(at_))
        {
            return true;
        }
        const bool isEnough = found_.isLong || size >= enough;
        if (!endsLine || !brackets_.isEmpty() || (!isEnough && !lines_.isNext(token.end)))
        {
            return false;
        }
        found_.closesBrackets = change != OpenBrackets::Change::abandoned;
        endAfter(at_);
        return true;
    }

    bool isTooDeep()
    {
        // Asking for the room takes some time.
        if (brackets_.depth() > safeLevels && maxLevels_ == 0)
        {
            maxLevels_ = maxLevels();
        }
        return brackets_.depth() > std::max<std::size_t>(safeLevels, maxLevels_);
    }

    // Whether there are whole statements before the one of a token, which goes on and on.
    bool isCut(std::size_t at)
    {
        const bool isBetween = at == tokens_.size() && brackets_.isEmpty() && !tokens_.empty() &&
                               tokens_.back().type == TokenType::newline;
        const std::size_t statement = isBetween ? at : Statements(tokens_).beginOf(at);
        found_.isLong = statement == 0;
        if (statement > 0)
        {
            endAfter(statement - 1);
        }
        return statement > 0;
    }

    void endAfter(std::size_t at)
    {
        found_.part.end = tokens_[at].end;
        found_.part.next = reach(at + 2) ? tokens_[at + 1] : end_;
        found_.isLast = false;
        found_.hasUnclosedString = false;
    }

    // A long statement's tokens are not kept.
    void forget()
    {
        constexpr std::size_t kept = 4096;
        if (found_.isLong && at_ >= kept)
        {
            tokens_.erase(tokens_.begin(), tokens_.begin() + static_cast<std::ptrdiff_t>(at_));
            at_ = 0;
        }
    }

    std::string_view text_;
    const ValidLines& lines_;
    TokenReader reader_;
    std::vector<DocumentToken> tokens_;
    bool hasEnded_ = false; // there are no more tokens
    bool isLost_ = false;   // because of an error in a string of several lines
    DocumentToken end_ = {};
    std::size_t at_ = 0;
    std::size_t checked_ = 0; // of the reader's errors
    OpenBrackets brackets_;
    unsigned maxLevels_ = 0; // 0: not known yet
    DamagedPart found_;
};

} // namespace

DamagedPart damagedPart(std::string_view text, std::size_t begin, const ValidLines& lines)
{
    return Finder(text, begin, lines).find();
}

} // namespace vorn::parsers::toml::diagnosis
