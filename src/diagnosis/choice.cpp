#include "choice.h"

#include <algorithm>

#include "codes.h"
#include "encoding_words.h"
#include "lexical_words.h"
#include "source_lines.h"
#include "statements.h"
#include "syntax_words.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

constexpr std::size_t nowhere = std::string::npos;

// Takes the errors of the recognisers in document order, and chooses those that do not follow
// from an earlier one.
class Choice
{
public:
    Choice(std::string_view text, const Recognition& found, std::vector<Mistake>& mistakes)
        : text_(text), found_(found), tokens_(found.tokens),
          lines_(text.substr(0, found.part.end), found.part.begin), statements_(found.tokens),
          mistakes_(mistakes)
    {
    }

    // Returns whether the rest of the document means anything.
    bool make()
    {
        auto lexical = found_.lexicalErrors.begin();
        for (const SyntaxError& error : found_.syntaxErrors)
        {
            const std::size_t place = at(error.token).begin;
            for (; lexical != found_.lexicalErrors.end() && lexical->begin <= place; ++lexical)
            {
                add(*lexical);
            }
            add(error);
        }
        std::for_each(lexical, found_.lexicalErrors.end(),
                      [this](const LexicalError& error) { add(error); });
        addMissingLineBreak();
        return !insideOut_;
    }

private:
    // The token at an index; after the last one, that after the part.
    DocumentToken at(std::size_t index) const
    {
        return index < tokens_.size() ? tokens_[index] : found_.part.next;
    }

    // After an error in a multi-line string the rest of the document means nothing, after
    // others the rest of the line.
    void add(const LexicalError& error)
    {
        if (insideOut_)
        {
            return;
        }
        const std::size_t line = lines_.lineOf(error.begin);
        const bool follows = hasDamage_ && line <= damagedTo_;
        hasDamage_ = true;
        damagedTo_ = std::max(damagedTo_, lines_.lineOf(std::min(error.resumed, text_.size())));
        insideOut_ = isInLongString(error, text_);
        brokenStatement_ = statements_.beginOf(tokenAfter(error.begin));
        if (!follows && !isLastLine(line))
        {
            addMistake(mistakeOf(error, text_), error.begin);
        }
    }

    void add(const SyntaxError& error)
    {
        const std::size_t index = std::min(error.token, tokens_.size());
        const DocumentToken token = at(index);
        const std::size_t before = index > 0 ? tokens_[index - 1].end - 1 : found_.part.begin;
        // A line break before the token belongs to the line that it ends.
        const std::size_t firstLine = lines_.lineOf(before);
        const std::size_t statement = beginOf(error);
        const bool isDamaged = insideOut_ || (hasDamage_ && firstLine <= damagedTo_);
        const bool isNew = statement != brokenStatement_ || isEmptyBrackets(index);
        if (isDamaged || !isNew || isLastLine(lines_.lineOf(token.begin)))
        {
            return;
        }
        const Site site = siteOf(index, statement);
        if ((hasMistake_ || hasDamage_) && fits(site))
        {
            return;
        }
        const bool isRepaired =
            (error.kind == ErrorKind::unwantedToken || error.kind == ErrorKind::missingToken) &&
            token.type != TokenType::newline;
        brokenStatement_ = isRepaired || isEmptyBrackets(index) ? brokenStatement_ : statement;
        addMistake(mistakeAt(site), token.begin);
    }

    // Whether the parser, after an error, is lost where nothing is wrong.
    static bool fits(const Site& site)
    {
        const TokenType type = site.found.type;
        const bool endsLine = type == TokenType::newline || type == TokenType::endOfInput;
        const bool startsLine = type == TokenType::bareKey || type == TokenType::basicString ||
                                type == TokenType::literalString || type == TokenType::openBracket;
        return (site.place.due == Due::lineEnd && type == TokenType::newline) ||
               (site.place.due == Due::statement && (endsLine || startsLine));
    }

    // The first token of the statement that the parser was in.
    std::size_t beginOf(const SyntaxError& error) const
    {
        // In an array that is not closed, the error is found where the next statement starts.
        constexpr std::size_t rulesOfKey = 3;
        const std::size_t begin = statements_.beginOf(error.token);
        return error.token == begin && begin > 0 && error.rules > rulesOfKey
                   ? statements_.beginOf(begin - 1)
                   : begin;
    }

    Site siteOf(std::size_t index, std::size_t statement) const
    {
        Follower follower;
        for (std::size_t token = statement; token < index; ++token)
        {
            follower.take(tokens_[token]);
        }
        const Place place = follower.place();
        const DocumentToken before =
            index > 0 ? tokens_[index - 1] : DocumentToken{TokenType::endOfInput, 0, 0};
        const bool isClosed = place.isOpen && statements_.isClosed(tokenAfter(place.opening.begin));
        return {text_, before, at(index), at(index + 1), place, isClosed};
    }

    bool isEmptyBrackets(std::size_t index) const
    {
        if (index == 0 || index >= tokens_.size())
        {
            return false;
        }
        const TokenType type = tokens_[index].type;
        const TokenType before = tokens_[index - 1].type;
        return (before == TokenType::openBracket && type == TokenType::closeBracket) ||
               (before == TokenType::openBrace && type == TokenType::closeBrace);
    }

    std::size_t tokenAfter(std::size_t offset) const
    {
        const auto token = std::lower_bound(tokens_.begin(), tokens_.end(), offset,
                                            [](const DocumentToken& one, std::size_t place)
                                            { return one.begin < place; });
        return static_cast<std::size_t>(token - tokens_.begin());
    }

    // Whether the last mistake is on this line.
    bool isLastLine(std::size_t line) const { return line == lastLine_; }

    void addMistake(Mistake&& mistake, std::size_t place)
    {
        lastPlace_ = place;
        lastLine_ = lines_.lineOf(place);
        hasMistake_ = true;
        // (Several errors of a statement may follow from the same bytes before them.)
        const auto before =
            std::find_if(mistakes_.rbegin(), mistakes_.rend(),
                         [&mistake](const Mistake& one) { return one.begin <= mistake.begin; });
        if (before == mistakes_.rend() || before->begin != mistake.begin)
        {
            mistakes_.push_back(std::move(mistake));
        }
    }

    // The parser accepts a document without the last line break, the walk over its tree does not.
    void addMissingLineBreak()
    {
        const bool isLast = found_.part.next.type == TokenType::endOfInput;
        if (!isLast || tokens_.empty() || tokens_.back().type == TokenType::newline || insideOut_)
        {
            return;
        }
        const std::size_t last = tokens_.back().begin;
        const bool isBroken = statements_.beginOf(tokens_.size()) == brokenStatement_;
        if (hasMistake_ &&
            (isBroken || lastPlace_ >= last || isLastLine(lines_.lineOf(found_.end))))
        {
            return;
        }
        addMistake(missingLineBreak(text_, found_.end), found_.end);
    }

    std::string_view text_;
    const Recognition& found_;
    const std::vector<DocumentToken>& tokens_;
    SourceLines lines_; // of the part
    Statements statements_;
    std::vector<Mistake>& mistakes_;
    bool hasMistake_ = false;
    std::size_t lastLine_ = nowhere; // of the last one
    std::size_t lastPlace_ = 0;
    bool hasDamage_ = false;
    std::size_t damagedTo_ = 0;
    bool insideOut_ = false;
    std::size_t brokenStatement_ = nowhere;
};

} // namespace

bool addMistakes(std::string_view text, const Recognition& found, std::vector<Mistake>& mistakes)
{
    return Choice(text, found, mistakes).make();
}

Mistake missingLineBreak(std::string_view text, std::size_t end)
{
    if (end < text.size())
    {
        return malformedBytes(text, end, Severity::error);
    }
    return {Severity::error,
            end,
            end,
            codes::missingLastLineBreak,
            "the line break at the end of the file is missing",
            "Every pair and every header ends with a line break, including the last one."};
}

} // namespace vorn::parsers::toml::diagnosis
