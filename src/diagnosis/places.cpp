#include "places.h"

#include <algorithm>
#include <iterator>

#include "characters.h"
#include "codes.h"
#include "scan/utf8.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

// An offset whose line and column are wanted.
struct Wanted
{
    std::size_t offset;
    std::size_t* line;
    std::size_t* column;
};

template <typename Place>
void want(Place& place, std::vector<Wanted>& wanted)
{
    wanted.push_back({place.begin, &place.line, &place.column});
    wanted.push_back({place.end, &place.endLine, &place.endColumn});
}

// Counts in one pass over the text, however long its lines are.
void count(std::string_view text, std::vector<Wanted>& wanted)
{
    std::sort(wanted.begin(), wanted.end(),
              [](const Wanted& a, const Wanted& b) { return a.offset < b.offset; });
    std::size_t at = byteOrderMarkLength(text);
    std::size_t lineEnd = text.find('\n', at);
    std::size_t line = 1;
    std::size_t column = 1;
    for (const Wanted& one : wanted)
    {
        while (lineEnd < one.offset)
        {
            at = lineEnd + 1;
            lineEnd = text.find('\n', at);
            ++line;
            column = 1;
        }
        const std::size_t offset = std::max(at, one.offset);
        column += countCharacters(text.substr(at, offset - at));
        at = offset;
        *one.line = line;
        *one.column = column;
    }
}

Finding findingOf(Mistake&& mistake)
{
    Finding finding;
    finding.severity = mistake.severity;
    finding.begin = mistake.begin;
    finding.end = mistake.end;
    finding.code = mistake.code;
    finding.message = std::move(mistake.message);
    finding.hint = std::move(mistake.hint);
    for (Origin& origin : mistake.origins)
    {
        RelatedPlace place;
        place.begin = origin.begin;
        place.end = origin.end;
        place.message = std::move(origin.message);
        finding.related.push_back(std::move(place));
    }
    return finding;
}

// In a document of another encoding nothing else means anything: its first error is all.
void leaveOutConsequences(std::vector<Mistake>& mistakes)
{
    const auto isOther = [](const Mistake& one) { return one.code == codes::utf16; };
    const auto isOtherError = [&](const Mistake& one)
    { return isOther(one) && one.severity == Severity::error; };
    auto other = std::find_if(mistakes.begin(), mistakes.end(), isOtherError);
    other =
        other == mistakes.end() ? std::find_if(mistakes.begin(), mistakes.end(), isOther) : other;
    const bool hasOtherErrors =
        std::any_of(mistakes.begin(), mistakes.end(),
                    [&](const Mistake& one) { return one.severity == Severity::error; });
    if (other != mistakes.end() && (other->severity == Severity::error || !hasOtherErrors))
    {
        mistakes = {std::move(*other)};
    }
}

} // namespace

std::vector<Finding> located(std::string_view text, std::vector<Mistake>&& mistakes)
{
    leaveOutConsequences(mistakes);
    std::vector<Finding> findings;
    findings.reserve(mistakes.size());
    std::transform(mistakes.begin(), mistakes.end(), std::back_inserter(findings),
                   [](Mistake& mistake) { return findingOf(std::move(mistake)); });
    std::vector<Wanted> wanted;
    wanted.reserve(2 * findings.size());
    for (Finding& finding : findings)
    {
        want(finding, wanted);
        for (RelatedPlace& place : finding.related)
        {
            want(place, wanted);
        }
    }
    count(text, wanted);
    return findings;
}

} // namespace vorn::parsers::toml::diagnosis
