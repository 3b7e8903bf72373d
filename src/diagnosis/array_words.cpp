#include "array_words.h"

#include <algorithm>

#include "codes.h"
#include "token_words.h"
#include "value_words.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

constexpr std::string_view commaHint = "Separate elements with commas: [1, 2].";

// The open array may have been left open by mistake many lines before.
Words unclosed(const Site& site)
{
    return {codes::unclosedArray,
            "the array opened on line ",
            "Close it with ']' after its last element.",
            {},
            true,
            " is not closed before " + described(site.found, site.foundText())};
}

// Whether the opening bracket is on an earlier line, or the wrong one closes it.
bool isAfterOpening(const Site& site)
{
    const std::size_t opening = site.place.opening.begin;
    return site.found.type == TokenType::closeBrace ||
           site.text.substr(opening, site.found.begin - opening).find('\n') !=
               std::string_view::npos;
}

Words forClosing(const Place& place)
{
    if (place.due == Due::firstElement)
    {
        return {codes::emptyArray, "the array is empty",
                "An array needs at least one element. Leave the key out instead."};
    }
    if (place.due == Due::element)
    {
        return {codes::bracketOnOwnLine, "']' is not on the same line as the comma before it",
                "After a trailing comma, ']' must be on the same line. Without the comma, it may "
                "be on its own line after two or more elements."};
    }
    return {codes::bracketOnOwnLine, "']' is on its own line after a single element",
            "']' may only be on its own line after two or more elements. Put it on the line of the "
            "element."};
}

} // namespace

Words forArray(const Site& site)
{
    const Place& place = site.place;
    const TokenType type = site.found.type;
    const bool beginsPair =
        (type == TokenType::bareKey || type == TokenType::equals) && place.due != Due::firstElement;
    if (type == TokenType::endOfInput ||
        (!site.isOpeningClosed && (beginsPair || place.breaks > 0)))
    {
        return unclosed(site);
    }
    if (type == TokenType::closeBracket)
    {
        return forClosing(place);
    }
    if (place.due == Due::arrayEnd)
    {
        const std::string_view continued = continuedValue(site);
        return continued.empty() ? Words{codes::missingComma,
                                         "expected ',' or ']' after the element, found " +
                                             described(site.found, site.foundText()),
                                         std::string(commaHint),
                                         {},
                                         isAfterOpening(site)}
                                 : forUnquoted(continued);
    }
    if (type == TokenType::comma)
    {
        return {codes::missingElement, "an element is missing before the comma",
                std::string(commaHint)};
    }
    return forValue(site);
}

Mistake lineWithoutElement(const Site& site)
{
    const std::string_view text = site.text;
    const std::size_t begin = site.place.breaks > 0 ? site.place.newline.end : site.found.end;
    const std::size_t lineEnd = std::min(text.find('\n', begin), text.size());
    const std::size_t first = std::min(text.find_first_not_of(" \t", begin), lineEnd);
    if (first < lineEnd && text[first] == '#')
    {
        return {Severity::error,
                first,
                lineEnd,
                codes::commentInArray,
                "a line in an array contains only a comment",
                "In an array, put comments after an element, a comma or the '['."};
    }
    return {Severity::error,
            begin,
            lineEnd,
            codes::blankLineInArray,
            "a line in an array contains only spaces or tabs",
            "In an array, a line without an element must be empty. Remove the spaces and tabs."};
}

} // namespace vorn::parsers::toml::diagnosis
