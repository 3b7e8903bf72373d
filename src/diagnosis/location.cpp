#include "location.h"

#include <algorithm>
#include <iterator>

#include "characters.h"
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

RelatedPlace placeOf(Origin& origin)
{
    RelatedPlace place;
    place.begin = origin.begin;
    place.end = origin.end;
    place.message = std::move(origin.message);
    return place;
}

Finding findingOf(Mistake& mistake)
{
    Finding finding;
    finding.severity = mistake.severity;
    finding.begin = mistake.begin;
    finding.end = mistake.end;
    finding.code = mistake.code;
    finding.message = std::move(mistake.message);
    finding.hint = std::move(mistake.hint);
    std::transform(mistake.origins.begin(), mistake.origins.end(),
                   std::back_inserter(finding.related), placeOf);
    return finding;
}

void nameLine(const std::string& afterLine, Finding& finding)
{
    if (!afterLine.empty())
    {
        finding.message += std::to_string(finding.related.at(0).line) + afterLine;
    }
}

} // namespace

std::vector<Finding> located(std::string_view text, std::vector<Mistake>&& mistakes)
{
    std::vector<Finding> findings;
    findings.reserve(mistakes.size());
    std::transform(mistakes.begin(), mistakes.end(), std::back_inserter(findings), findingOf);
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
    for (std::size_t index = 0; index < mistakes.size(); ++index)
    {
        nameLine(mistakes[index].afterLine, findings[index]);
    }
    return findings;
}

} // namespace vorn::parsers::toml::diagnosis
