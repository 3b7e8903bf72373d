#include "string_content.h"

#include "characters.h"
#include "escapes.h"

namespace tool::fixing
{
namespace
{

// The end of a line-ending backslash, with all blanks and line breaks after it; its place if
// the backslash is not one.
std::size_t lineEndingEnd(std::string_view text, std::size_t at)
{
    std::size_t end = blanksEnd(text, at + 1);
    if (newlineLength(text, end) == 0)
    {
        return at;
    }
    while (const std::size_t length = newlineLength(text, end))
    {
        end = blanksEnd(text, end + length);
    }
    return end;
}

std::string resolved(std::string_view text)
{
    std::string content;
    for (std::size_t at = 0; at < text.size();)
    {
        const bool isEscape = text[at] == '\\';
        const std::size_t lineEnd = isEscape ? lineEndingEnd(text, at) : at;
        const Escape escape = isEscape ? escapeAt(text, at) : Escape{0, 0};
        if (lineEnd > at)
        {
            at = lineEnd;
        }
        else if (escape.length > 0)
        {
            appendCharacter(content, escape.code);
            at += escape.length;
        }
        else
        {
            content += text[at++];
        }
    }
    return content;
}

} // namespace

bool isMultilineString(std::string_view string)
{
    return string.size() >= 6 && string[1] == string[0] && string[2] == string[0];
}

std::string_view innerText(std::string_view string)
{
    const std::size_t delimiter = isMultilineString(string) ? 3 : 1;
    return string.substr(delimiter, string.size() - 2 * delimiter);
}

std::string contentOf(std::string_view string)
{
    std::string_view inner = innerText(string);
    if (isMultilineString(string))
    {
        inner.remove_prefix(newlineLength(inner, 0));
    }
    return string[0] == '"' ? resolved(inner) : std::string(inner);
}

} // namespace tool::fixing
