#include "key_path.h"

#include <cstddef>
#include <utility>

#include <vorn/parsers/toml_values.h>

#include "digits.h"
#include "shown_text.h"

namespace vorn::parsers::toml::config
{
namespace
{

bool isBare(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || isDigit(c) || c == '_' || c == '-';
}

std::size_t bareEnd(std::string_view text, std::size_t begin)
{
    while (begin < text.size() && isBare(text[begin]))
    {
        ++begin;
    }
    return begin;
}

// Whether a text without quotes is a key wherever it stands: what is or starts like a value is
// none.
bool isBareKey(std::string_view text)
{
    return !text.empty() && bareEnd(text, 0) == text.size() && text[0] != '-' &&
           !isDigit(text[0]) && text != "true" && text != "false" && text != "inf" && text != "nan";
}

// Where a quoted key ends, after its quote; npos if it does not.
std::size_t quotedEnd(std::string_view text, std::size_t begin)
{
    const char quote = text[begin];
    for (std::size_t at = begin + 1; at < text.size(); ++at)
    {
        if (text[at] == quote)
        {
            return at + 1;
        }
        at += text[at] == '\\' && quote == '"' ? 1 : 0;
    }
    return std::string_view::npos;
}

} // namespace

std::optional<std::vector<std::string>> namesIn(std::string_view path)
{
    std::vector<std::string> names;
    for (std::size_t at = 0;; ++at)
    {
        const bool isQuoted = at < path.size() && (path[at] == '"' || path[at] == '\'');
        const std::size_t end = isQuoted ? quotedEnd(path, at) : bareEnd(path, at);
        if (end == std::string_view::npos || end == at)
        {
            return std::nullopt;
        }
        const std::string_view text = path.substr(at, end - at);
        std::optional<std::string> name = isQuoted ? stringValue(text) : std::string(text);
        if (!name)
        {
            return std::nullopt;
        }
        names.push_back(std::move(*name));
        if (end == path.size())
        {
            return names;
        }
        if (path[end] != '.')
        {
            return std::nullopt;
        }
        at = end;
    }
}

std::string keyOf(std::string_view name)
{
    return isBareKey(name) ? std::string(name) : quoted(name);
}

void addKey(std::string& path, std::string_view name)
{
    if (!path.empty())
    {
        path += '.';
    }
    path += keyOf(name);
}

} // namespace vorn::parsers::toml::config
