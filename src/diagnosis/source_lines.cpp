#include "source_lines.h"

#include <algorithm>

#include "scan/utf8.h"

#include "characters.h"

namespace vorn::parsers::toml::diagnosis
{

SourceLines::SourceLines(std::string_view text, std::size_t from)
    : text_(text), begins_{from > 0 ? from : byteOrderMarkLength(text)}
{
    for (std::size_t at = text.find('\n', from); at != std::string_view::npos;
         at = text.find('\n', at))
    {
        begins_.push_back(++at);
    }
}

std::size_t SourceLines::lineOf(std::size_t offset) const
{
    const auto next = std::upper_bound(begins_.begin(), begins_.end(), offset);
    return std::max<std::size_t>(1, static_cast<std::size_t>(next - begins_.begin()));
}

SourcePlace SourceLines::placeOf(std::size_t offset) const
{
    const std::size_t number = lineOf(offset);
    const std::size_t begin = std::min(beginOf(number), offset);
    return {number, 1 + countCharacters(text_.substr(begin, offset - begin))};
}

std::string_view SourceLines::line(std::size_t line) const
{
    const std::size_t begin = beginOf(line);
    std::string_view content = text_.substr(begin, text_.find('\n', begin) - begin);
    if (!content.empty() && content.back() == '\r' && begin + content.size() < text_.size())
    {
        content.remove_suffix(1);
    }
    return content;
}

} // namespace vorn::parsers::toml::diagnosis
