#include <vorn/parsers/toml_diagnosis.h>

#include <algorithm>

#include "characters.h"
#include "choice.h"
#include "codes.h"
#include "damaged_part.h"
#include "encoding_words.h"
#include "location.h"
#include "long_statement.h"
#include "pipeline/input_stream.h"
#include "refused_document.h"
#include "scan/utf8.h"
#include "selection.h"
#include "statements.h"
#include "strict_bytes.h"
#include "strict_sink.h"
#include "valid_lines.h"

namespace vorn::parsers::toml
{
namespace diagnosis
{
namespace
{

// The document goes on after a statement that is not valid.
void skip(LastLine&)
{
}

void skip(StrictSink& sink)
{
    sink.statementSkipped();
}

class Diagnosis
{
public:
    Diagnosis(const std::string& document, const DiagnosisOptions& options)
        : document_(document), options_(options),
          max_(options.maxFindings == 0 ? std::string::npos : options.maxFindings), lines_(document)
    {
    }

    std::vector<Mistake> make()
    {
        if (!isStreamable(document_))
        {
            return {tooLarge()}; // Of four gigabytes.  GCOVR_EXCL_LINE
        }
        if (options_.strict)
        {
            findStrictly();
        }
        else
        {
            LastLine sink;
            find(sink);
        }
        leaveOutConsequences(mistakes_); // (They may leave no room for their cause.)
        keepFirst(max_, mistakes_);
        addWarnings();
        leaveOutConsequences(mistakes_);
        return std::move(mistakes_);
    }

private:
    void findStrictly()
    {
        StrictSink sink(document_, options_.maxFindings);
        find(sink);
        addOthers(sink.takeMistakes(), mistakes_);
        addOthers(findForbiddenBytes(document_, options_.maxFindings, mistakes_), mistakes_);
    }

    // The sink gets the valid lines.
    template <typename Sink>
    void find(Sink& sink)
    {
        std::size_t at = lines_.pass(byteOrderMarkLength(document_), sink);
        const bool isReadDirectly = at == document_.size();
        while (at < document_.size() && !hasEnoughBefore(at))
        {
            const DamagedPart damaged = damagedPart(document_, at, lines_);
            skip(sink);
            examine(damaged, sink);
            at = damaged.isLast ? document_.size() : lines_.pass(damaged.part.end, sink);
            end_ = damaged.isLast && !damaged.hasUnclosedString ? damaged.part.next.begin : end_;
        }
        if (mistakes_.empty() && !isReadDirectly)
        {
            addRefusal();
        }
    }

    // The last mistake of a part may be at the first token after it, with others before that one.
    bool hasEnoughBefore(std::size_t place) const
    {
        return mistakes_.size() >= max_ && mistakes_[max_ - 1].begin < place;
    }

    template <typename Sink>
    void examine(const DamagedPart& damaged, Sink& sink)
    {
        if (!damaged.isLong)
        {
            const Recognition found = recognise(document_, damaged.part);
            if (!found.isTooDeep)
            {
                addMistakes(document_, found, mistakes_);
                skipStatements(found.tokens, sink);
                return;
            }
        }
        if (auto mistake = firstMistake(document_, damaged))
        {
            mistakes_.push_back(std::move(*mistake));
        }
    }

    // The first statement of the part has been skipped.
    template <typename Sink>
    void skipStatements(const std::vector<DocumentToken>& tokens, Sink& sink)
    {
        const Statements statements(tokens);
        bool isFirst = true;
        for (std::size_t at = 0; at < tokens.size(); at = statements.nextAfter(at))
        {
            const bool isEmpty = tokens[at].type == TokenType::newline;
            if (!isEmpty && !isFirst && !lines_.read(tokens[at].begin, sink))
            {
                skip(sink);
            }
            isFirst = isFirst && isEmpty;
        }
    }

    void addRefusal()
    {
        if (auto mistake = refusedDocument(document_, lines_))
        {
            mistakes_.push_back(std::move(*mistake));
        }
    }

    // The first errors come before all warnings where there are too many.
    void addWarnings()
    {
        const std::size_t malformed = findMalformed(document_);
        if (malformed < end_ && !options_.strict)
        {
            addWarning(malformedBytes(document_, malformed, Severity::warning));
        }
        if (end_ < document_.size())
        {
            addEnd();
        }
        keepFirst(max_, mistakes_);
    }

    // Of bytes that are an error there is no warning, too.
    void addEnd()
    {
        const auto told = std::find_if(mistakes_.begin(), mistakes_.end(),
                                       [this](const Mistake& one) {
                                           return one.begin <= end_ && end_ < one.end &&
                                                  one.code == std::string_view(codes::notUtf8);
                                       });
        if (told == mistakes_.end())
        {
            addWarning({Severity::warning, end_, end_ + 1, codes::unreadBytes,
                        "the file is only read up to these bytes, which are not valid UTF-8",
                        "They are read as the end of the file. Save the file as UTF-8."});
        }
        else if (end_ + 1 < document_.size())
        {
            told->hint += " The rest is not read until then.";
        }
    }

    void addWarning(Mistake&& warning)
    {
        const bool isSaid =
            std::any_of(mistakes_.begin(), mistakes_.end(),
                        [&](const Mistake& one)
                        { return one.begin == warning.begin && one.message == warning.message; });
        if (!isSaid && mistakes_.size() < max_)
        {
            mistakes_.push_back(std::move(warning));
        }
    }

    const std::string& document_;
    const DiagnosisOptions& options_;
    const std::size_t max_;
    ValidLines lines_;
    std::size_t end_ = document_.size(); // where the library finds it
    std::vector<Mistake> mistakes_;
};

} // namespace
} // namespace diagnosis

std::vector<Finding> diagnose(const std::string& document, const DiagnosisOptions& options)
{
    return diagnosis::located(document, diagnosis::Diagnosis(document, options).make());
}

} // namespace vorn::parsers::toml
