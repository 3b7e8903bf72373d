#include "diagnosis.h"

#include <algorithm>

#include "character_words.h"
#include "lexical_words.h"
#include "source_lines.h"
#include "syntax_words.h"
#include "utf8.h"

namespace tool
{
namespace
{

constexpr std::size_t nowhere = std::string::npos;

// Takes the errors of the recognisers in document order, and chooses those that do not follow
// from an earlier one.
class Choice
{
public:
    Choice(const Recognition& found, const std::string& text)
        : found_(found), text_(text), lines_(text),
          statements_(found.tokens), document_{text, found.tokens, statements_, found.end}
    {
    }

    // Returns the number of errors, and the first of them in words.
    std::size_t make(std::vector<Finding>& findings)
    {
        auto lexical = found_.lexicalErrors.begin();
        for (const SyntaxError& error : found_.syntaxErrors)
        {
            const std::size_t place = document_.at(error.token).begin;
            for (; lexical != found_.lexicalErrors.end() && lexical->begin <= place; ++lexical)
            {
                add(*lexical);
            }
            add(error);
        }
        std::for_each(lexical, found_.lexicalErrors.end(),
                      [this](const LexicalError& error) { add(error); });
        addMissingLineBreak();
        findings = std::move(findings_);
        return count_;
    }

private:
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
            addFinding(error.begin, [&] { return findingOf(error, text_); });
        }
    }

    void add(const SyntaxError& error)
    {
        const std::size_t index = std::min(error.token, found_.tokens.size());
        const DocumentToken token = document_.at(index);
        const std::size_t before = index > 0 ? found_.tokens[index - 1].end - 1 : 0;
        // A line break before the token belongs to the line that it ends.
        const std::size_t firstLine = lines_.lineOf(before);
        const std::size_t statement = document_.beginOf(error);
        const bool isDamaged = insideOut_ || (hasDamage_ && firstLine <= damagedTo_);
        const bool isNew = statement != brokenStatement_ || isEmptyBrackets(index);
        if (isDamaged || !isNew || isLastLine(lines_.lineOf(token.begin)))
        {
            return;
        }
        const bool isRepaired =
            (error.kind == ErrorKind::unwantedToken || error.kind == ErrorKind::missingToken) &&
            token.type != TokenType::newline;
        brokenStatement_ = isRepaired || isEmptyBrackets(index) ? brokenStatement_ : statement;
        addFinding(token.begin, [&] { return findingOf(error, document_); });
    }

    bool isEmptyBrackets(std::size_t index) const
    {
        if (index == 0 || index >= found_.tokens.size())
        {
            return false;
        }
        const TokenType type = found_.tokens[index].type;
        const TokenType before = found_.tokens[index - 1].type;
        return (before == TokenType::openBracket && type == TokenType::closeBracket) ||
               (before == TokenType::openBrace && type == TokenType::closeBrace);
    }

    std::size_t tokenAfter(std::size_t offset) const
    {
        const auto token = std::lower_bound(found_.tokens.begin(), found_.tokens.end(), offset,
                                            [](const DocumentToken& one, std::size_t place)
                                            { return one.begin < place; });
        return static_cast<std::size_t>(token - found_.tokens.begin());
    }

    // Whether the last finding is on this line.
    bool isLastLine(std::size_t line) const { return line == lastLine_; }

    // Finding words takes time, so only findings that are shown get them.
    template <typename Words>
    void addFinding(std::size_t place, Words words)
    {
        ++count_;
        lastPlace_ = place;
        lastLine_ = lines_.lineOf(place);
        if (findings_.size() < maxErrors)
        {
            findings_.push_back(words());
        }
    }

    // The parser accepts a document without the last line break, the walk over its tree does not.
    void addMissingLineBreak()
    {
        if (found_.tokens.empty() || found_.tokens.back().type == TokenType::newline || insideOut_)
        {
            return;
        }
        const std::size_t last = found_.tokens.back().begin;
        const bool isBroken = statements_.beginOf(found_.tokens.size()) == brokenStatement_;
        if (count_ > 0 && (isBroken || lastPlace_ >= last || isLastLine(lines_.lineOf(found_.end))))
        {
            return;
        }
        addFinding(
            found_.end,
            [this]
            {
                return Finding{
                    Severity::error, found_.end, found_.end,
                    "the line break at the end of the file is missing",
                    "Every pair and every header ends with a line break, including the last one."};
            });
    }

    const Recognition& found_;
    const std::string& text_;
    SourceLines lines_;
    Statements statements_;
    TokenizedText document_;
    std::vector<Finding> findings_;
    std::size_t count_ = 0;
    std::size_t lastLine_ = nowhere; // of the last one
    std::size_t lastPlace_ = 0;
    bool hasDamage_ = false;
    std::size_t damagedTo_ = 0;
    bool insideOut_ = false;
    std::size_t brokenStatement_ = nowhere;
};

std::vector<Finding> warnings(const Recognition& found, const std::string& text)
{
    std::vector<Finding> findings;
    const std::size_t malformed = findMalformed(text);
    if (malformed == nowhere)
    {
        return findings;
    }
    if (malformed < found.end)
    {
        findings.push_back(malformedBytes(text, malformed, Severity::warning));
    }
    if (found.end < text.size())
    {
        findings.push_back({Severity::warning, found.end, found.end + 1,
                            "the file is only read up to these bytes, which are not valid UTF-8",
                            "They are read as the end of the file. Save the file as UTF-8."});
    }
    return findings;
}

} // namespace

Diagnosis diagnose(const std::string& text)
{
    Diagnosis diagnosis;
    const Recognition found = recognise(text);
    diagnosis.refusal = found.refusal;
    if (found.refusal != Refusal::none)
    {
        return diagnosis;
    }
    diagnosis.errors = Choice(found, text).make(diagnosis.findings);
    for (Finding& warning : warnings(found, text))
    {
        const bool isSaid =
            std::any_of(diagnosis.findings.begin(), diagnosis.findings.end(),
                        [&](const Finding& one)
                        { return one.begin == warning.begin && one.message == warning.message; });
        if (!isSaid)
        {
            diagnosis.findings.push_back(std::move(warning));
        }
    }
    std::stable_sort(diagnosis.findings.begin(), diagnosis.findings.end(),
                     [](const Finding& a, const Finding& b) { return a.begin < b.begin; });
    return diagnosis;
}

std::vector<Finding> warningsFor(const std::string& text)
{
    if (findMalformed(text) == nowhere)
    {
        return {};
    }
    const Recognition found = findTokens(text);
    return found.refusal == Refusal::none ? warnings(found, text) : std::vector<Finding>();
}

} // namespace tool
