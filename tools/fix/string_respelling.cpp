#include "string_respelling.h"

#include "characters.h"
#include "diagnosis/characters.h"
#include "escapes.h"
#include "string_content.h"

namespace tool::fixing
{
namespace
{

// Appends the character at an offset, with an escape if the library knows none so high.
std::size_t appendFrom(std::string_view inner, std::size_t at, std::string& result)
{
    const auto character = vorn::parsers::toml::diagnosis::characterAt(inner, at);
    if (character.code > 0xFFFF)
    {
        appendEscaped(result, character.code);
    }
    else
    {
        result += inner.substr(at, character.length);
    }
    return at + character.length;
}

// A quote that the library would take for a part of the closing delimiter, as the second one
// before it.
bool endsWithTwo(std::string_view inner, char quote)
{
    return inner.size() >= 2 && inner.back() == quote && inner[inner.size() - 2] == quote;
}

// Of a basic string's inner text.
std::string respelledBasic(std::string_view inner, bool isMultiline)
{
    std::string result;
    bool isAfterQuote = false;
    for (std::size_t at = 0; at < inner.size();)
    {
        const char c = inner[at];
        if (c == '\\')
        {
            isAfterQuote = false;
            const std::size_t blanks = blanksEnd(inner, at + 1);
            const bool endsLine = newlineLength(inner, blanks) > 0;
            result += inner.substr(at, endsLine ? 1 : 2);
            at = endsLine ? blanks : at + 2;
            continue;
        }
        if (c == '"' && isMultiline && isAfterQuote && at + 1 == inner.size())
        {
            result += '\\';
        }
        isAfterQuote = c == '"';
        at = appendFrom(inner, at, result);
    }
    return result;
}

// Of a literal string's inner text.  In one of several lines a quote needs an escape where it
// would be a third one, or belong to the closing delimiter.  The library's conversion takes any
// backslash before a line break for a line-ending one, so there it gets another escape.
std::string basicFromLiteral(std::string_view inner, bool isMultiline)
{
    std::string result;
    unsigned quotes = 0;
    for (std::size_t at = 0; at < inner.size();)
    {
        const char c = inner[at];
        quotes = c == '"' ? quotes + 1 : 0;
        if (c == '\\' && newlineLength(inner, at + 1) > 0)
        {
            result += "\\u005C";
            ++at;
            continue;
        }
        if (c == '\\' || (c == '"' && (!isMultiline || quotes == 3 || at + 1 == inner.size())))
        {
            result += '\\';
            quotes = 0;
        }
        at = appendFrom(inner, at, result);
    }
    return result;
}

} // namespace

std::optional<std::string> respelledString(std::string_view string)
{
    const bool isMultiline = isMultilineString(string);
    const bool isBasic = string[0] == '"';
    const std::string_view inner = innerText(string);
    const std::string delimiter(isMultiline ? 3 : 1, '"');
    if (!isBasic)
    {
        const bool isAccepted = !hasHigh(inner) && !(isMultiline && endsWithTwo(inner, '\''));
        return isAccepted
                   ? std::nullopt
                   : std::optional(delimiter + basicFromLiteral(inner, isMultiline) + delimiter);
    }
    std::string respelled = delimiter + respelledBasic(inner, isMultiline) + delimiter;
    return respelled == string ? std::nullopt : std::optional(std::move(respelled));
}

} // namespace tool::fixing
