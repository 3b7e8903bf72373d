// The source lines of a finding, with marks below them.
#include <vorn/parsers/toml_diagnosis.h>

#include <algorithm>
#include <string_view>

#include "excerpt.h"
#include "scan/utf8.h"

namespace vorn::parsers::toml
{
namespace
{

// The line that an offset is in, without its line break.
std::string_view lineAt(std::string_view text, std::size_t& begin)
{
    const std::size_t from = begin == 0 ? std::string_view::npos : text.rfind('\n', begin - 1);
    const std::size_t start =
        from == std::string_view::npos ? std::min(byteOrderMarkLength(text), begin) : from + 1;
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    std::string_view line = text.substr(start, end - start);
    if (!line.empty() && line.back() == '\r' && end < text.size())
    {
        line.remove_suffix(1);
    }
    begin -= start;
    return line;
}

void add(std::string_view text, std::size_t begin, std::size_t end, std::size_t line,
         const std::string& message, std::string& excerpt)
{
    std::size_t place = std::min(begin, text.size());
    const std::size_t size = std::max(std::min(end, text.size()), place) - place;
    const std::string_view source = lineAt(text, place);
    const auto [shown, marks] = diagnosis::excerptOf(source, place, place + size);
    constexpr std::size_t width = 5;
    std::string number = std::to_string(line);
    number.insert(0, number.size() < width ? width - number.size() : 0, ' ');
    excerpt += number + " | " + shown + '\n' + std::string(number.size(), ' ') + " | " + marks;
    excerpt += message.empty() ? "\n" : ' ' + message + '\n';
}

} // namespace

std::string excerpt(const std::string& document, const Finding& finding)
{
    std::string text;
    add(document, finding.begin, finding.end, finding.line, "", text);
    for (const RelatedPlace& place : finding.related)
    {
        add(document, place.begin, place.end, place.line, place.message, text);
    }
    return text;
}

} // namespace vorn::parsers::toml
