#include "unquoted.h"

#include <algorithm>

#include "characters.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

constexpr std::size_t npos = std::string_view::npos;
constexpr std::string_view blanks = " \t";

// In bytes: longer ones are not repeated in hints.
constexpr std::size_t maxHinted = 60;

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t end = text.find_last_not_of(" \t\r");
    return text.substr(0, end == npos ? 0 : end + 1);
}

// Comments, those of other languages, too, follow a blank.
bool startsComment(std::string_view text, std::size_t at)
{
    return text[at] == '#' || text[at] == ';' || text.substr(at, 2) == "//" ||
           text.substr(at, 2) == "/*";
}

std::size_t commentIn(std::string_view text)
{
    for (std::size_t at = text.find_first_of(blanks); at != npos && at + 1 < text.size();
         at = text.find_first_of(blanks, at + 1))
    {
        if (startsComment(text, at + 1))
        {
            return at;
        }
    }
    return text.size();
}

bool isOfKey(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == '.' || isBlank(c);
}

// Where the value of the pair on the line starts; npos if there is none.
std::size_t valueBegin(std::string_view line)
{
    std::size_t at = 0;
    while (at < line.size() && line[at] != '=')
    {
        if (line[at] == '"' || line[at] == '\'')
        {
            at = line.find(line[at], at + 1);
            if (at == npos)
            {
                return npos;
            }
        }
        else if (!isOfKey(line[at]))
        {
            return npos;
        }
        ++at;
    }
    return at < line.size() ? line.find_first_not_of(blanks, at + 1) : npos;
}

} // namespace

std::string_view restOfLine(std::string_view text, std::size_t begin)
{
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    const std::size_t first = std::min(text.find_first_not_of(blanks, begin), end);
    return trimmed(text.substr(first, end - first));
}

std::string_view unquotedAt(std::string_view text, std::size_t begin, bool isEnclosed)
{
    std::string_view value = restOfLine(text, begin);
    value = trimmed(value.substr(0, isEnclosed ? value.find_first_of(",]}") : commentIn(value)));
    value = trimmed(value.substr(0, commentIn(value)));
    if (value.size() > 1 && (value.back() == ',' || value.back() == ';'))
    {
        value.remove_suffix(1);
    }
    // Of several words with such characters the first alone is likely to be the value.
    return value.find_first_of("=[]{}\"") == npos ? value
                                                  : value.substr(0, value.find_first_of(blanks));
}

std::string_view unquotedAround(std::string_view text, std::size_t at)
{
    const std::size_t lineBreak = at == 0 ? npos : text.rfind('\n', at - 1);
    const std::size_t lineBegin = lineBreak == npos ? 0 : lineBreak + 1;
    const std::string_view line = text.substr(lineBegin, text.find('\n', at) - lineBegin);
    const std::size_t value = valueBegin(line);
    const std::size_t place = at - lineBegin;
    const std::string_view ended = trimmed(line.substr(0, commentIn(line)));
    // (A line that ends with a comma is one of an array.)
    const bool isElement = value == npos && !ended.empty() && ended.back() == ',';
    if (!isElement && (value == npos || value > place || line[value] == '"' || line[value] == '\''))
    {
        return {};
    }
    const bool isEnclosed = isElement || line[value] == '[' || line[value] == '{';
    const std::size_t begin =
        isEnclosed ? line.substr(0, place).find_last_of(" \t,[{=") + 1 : value;
    const std::string_view found = unquotedAt(line, begin, isEnclosed);
    const std::string_view rest = restOfLine(line, begin + found.size());
    const bool isKey = !rest.empty() && (rest[0] == '=' || rest[0] == ':');
    const bool isFound = place < begin + found.size() && !isKey &&
                         (!isEnclosed || found.find_first_of("'\":") == npos);
    return isFound ? text.substr(lineBegin + begin, found.size()) : std::string_view();
}

std::string inQuotes(std::string_view text)
{
    if (text.empty() || text.size() > maxHinted)
    {
        return {};
    }
    for (std::size_t at = 0; at < text.size();)
    {
        const Character character = characterAt(text, at);
        if (character.code > 0xFFFF ||
            shown(text, character, at).text != text.substr(at, character.length))
        {
            return {};
        }
        at += character.length;
    }
    const bool needsEscape = text.find_first_of("\\\"") != npos;
    if (needsEscape && text.find('\'') == npos)
    {
        return '\'' + std::string(text) + '\'';
    }
    std::string result = "\"";
    for (const char c : text)
    {
        result += c == '\\' || c == '"' ? "\\" : "";
        result += c;
    }
    return result + '"';
}

std::string quotesHint(std::string_view text)
{
    const std::string string = inQuotes(text);
    const std::string hint = "Strings need quotes";
    return hint + (string.empty() ? "" : ": ") + string + '.';
}

} // namespace vorn::parsers::toml::diagnosis
