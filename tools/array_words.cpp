#include "array_words.h"

#include <algorithm>

#include "token_words.h"
#include "value_words.h"

namespace tool
{
namespace
{

constexpr std::string_view commaHint = "Separate elements with commas: [1, 2].";

std::size_t lineOf(std::size_t offset, const TokenizedText& document)
{
    const std::string_view before = document.text.substr(0, offset);
    return 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
}

// The open array may have been left open by mistake many lines before.
Words unclosed(const Place& place, const DocumentToken& found, const TokenizedText& document)
{
    const std::size_t line = lineOf(document.tokens[place.opening].begin, document);
    return {"the array opened on line " + std::to_string(line) + " is not closed before " +
                described(found, document.textOf(found)),
            "Close it with ']' after its last element."};
}

Words forClosing(const Place& place)
{
    if (place.due == Due::firstElement)
    {
        return {"the array is empty",
                "An array needs at least one element. Leave the key out instead."};
    }
    if (place.due == Due::element)
    {
        return {"']' is not on the same line as the comma before it",
                "After a trailing comma, ']' must be on the same line. Without the comma, it may "
                "be on its own line after two or more elements."};
    }
    return {"']' is on its own line after a single element",
            "']' may only be on its own line after two or more elements. Put it on the line of the "
            "element."};
}

} // namespace

Words forArray(const Place& place, const DocumentToken& found, const TokenizedText& document)
{
    const bool isWord = found.type == TokenType::bareKey;
    const bool beginsPair =
        (isWord || found.type == TokenType::equals) && place.due != Due::firstElement;
    const bool isUnclosed = !document.statements.isClosed(place.opening);
    if (found.type == TokenType::endOfInput || (isUnclosed && (beginsPair || place.breaks > 0)))
    {
        return unclosed(place, found, document);
    }
    if (found.type == TokenType::closeBracket)
    {
        return forClosing(place);
    }
    if (place.due == Due::arrayEnd)
    {
        return {"expected ',' or ']' after the element, found " +
                    described(found, document.textOf(found)),
                std::string(commaHint)};
    }
    if (found.type == TokenType::comma)
    {
        return {"an element is missing before the comma", std::string(commaHint)};
    }
    return forValue(found, document);
}

Finding lineWithoutElement(const Place& place, const TokenizedText& document)
{
    const std::string_view text = document.text;
    const std::size_t begin = document.tokens[place.newline].end;
    const std::size_t lineEnd = std::min(text.find('\n', begin), text.size());
    const std::size_t first = std::min(text.find_first_not_of(" \t", begin), lineEnd);
    const bool isComment = first < lineEnd && text[first] == '#';
    return {
        Severity::error, isComment ? first : begin, lineEnd,
        isComment ? "a line in an array contains only a comment"
                  : "a line in an array contains only spaces or tabs",
        isComment
            ? "In an array, put comments after an element, a comma or the '['."
            : "In an array, a line without an element must be empty. Remove the spaces and tabs."};
}

} // namespace tool
