#include <vorn/parsers/toml_diagnosis.h>

#include <algorithm>

#include "character_words.h"
#include "characters.h"
#include "choice.h"
#include "damaged_part.h"
#include "location.h"
#include "long_statement.h"
#include "pipeline/input_stream.h"
#include "refused_document.h"
#include "scan/utf8.h"
#include "valid_lines.h"

namespace vorn::parsers::toml
{
namespace diagnosis
{
namespace
{

class Diagnosis
{
public:
    Diagnosis(const std::string& document, const DiagnosisOptions& options)
        : document_(document),
          max_(options.maxFindings == 0 ? std::string::npos : options.maxFindings), lines_(document)
    {
    }

    std::vector<Mistake> make()
    {
        if (!isStreamable(document_))
        {
            return {tooLarge()};
        }
        LastLine sink;
        std::size_t at = lines_.pass(byteOrderMarkLength(document_), sink);
        const bool isReadDirectly = at == document_.size();
        while (at < document_.size() && mistakes_.size() < max_)
        {
            const DamagedPart damaged = damagedPart(document_, at, lines_);
            examine(damaged);
            at = damaged.isLast ? document_.size() : lines_.pass(damaged.part.end, sink);
            end_ = damaged.isLast && !damaged.hasUnclosedString ? damaged.part.next.begin : end_;
        }
        if (mistakes_.empty() && !isReadDirectly)
        {
            addRefusal();
        }
        addWarnings();
        return std::move(mistakes_);
    }

private:
    void examine(const DamagedPart& damaged)
    {
        if (!damaged.isLong)
        {
            const Recognition found = recognise(document_, damaged.part);
            if (!found.isTooDeep)
            {
                addMistakes(document_, found, mistakes_);
                return;
            }
        }
        if (auto mistake = firstMistake(document_, damaged))
        {
            mistakes_.push_back(std::move(*mistake));
        }
    }

    void addRefusal()
    {
        if (auto mistake = refusedDocument(document_))
        {
            mistakes_.push_back(std::move(*mistake));
        }
    }

    // The first errors come before all warnings where there are too many.
    void addWarnings()
    {
        mistakes_.erase(mistakes_.begin() +
                            static_cast<std::ptrdiff_t>(std::min(mistakes_.size(), max_)),
                        mistakes_.end());
        const std::size_t malformed = findMalformed(document_);
        if (malformed < end_)
        {
            addWarning(malformedBytes(document_, malformed, Severity::warning));
        }
        if (end_ < document_.size())
        {
            addWarning({Severity::warning, end_, end_ + 1, "unread-bytes",
                        "the file is only read up to these bytes, which are not valid UTF-8",
                        "They are read as the end of the file. Save the file as UTF-8."});
        }
        std::stable_sort(mistakes_.begin(), mistakes_.end(),
                         [](const Mistake& a, const Mistake& b) { return a.begin < b.begin; });
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
