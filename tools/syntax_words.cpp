#include "syntax_words.h"

#include <algorithm>

#include "array_words.h"
#include "place.h"
#include "token_words.h"
#include "value_words.h"

namespace tool
{
namespace
{

constexpr std::string_view pairHint = "A line holds a pair, key = value, or a header, [key].";

bool isLineEnd(TokenType type)
{
    return type == TokenType::newline || type == TokenType::endOfInput;
}

Words valueForKey(const DocumentToken& found, const TokenizedText& document)
{
    const std::string text(document.textOf(found));
    return {"a key is due, and " + described(found, text) + " is a value",
            "What reads as a value is no key as it stands. Quote it: \"" + quotedContent(text) +
                "\"."};
}

// A key is due.
Words forKey(const std::string& due, const DocumentToken& found, const TokenizedText& document,
             const std::string& hint)
{
    if (isValueLikeKey(found.type))
    {
        return valueForKey(found, document);
    }
    if (found.type == TokenType::mlBasicString || found.type == TokenType::mlLiteralString)
    {
        return {due + ", not " + described(found, document.textOf(found)),
                "A key in quotes stands on one line, in \" or '."};
    }
    return {due + ", not " + described(found, document.textOf(found)), hint};
}

Words forStatement(const DocumentToken& found, const TokenizedText& document)
{
    if (found.type == TokenType::equals)
    {
        return {"the key before '=' is missing", std::string(pairHint)};
    }
    if (found.type == TokenType::closeBracket || found.type == TokenType::closeBrace)
    {
        return {std::string(kindName(found.type)) + " closes nothing here", std::string(pairHint)};
    }
    return forKey("a key or a header is due", found, document, std::string(pairHint));
}

Words forEquals(const Place& place, const DocumentToken& found, const TokenizedText& document)
{
    const std::string hint = place.isInTable
                                 ? "In an inline table pairs are written {a = 1, b = 2}."
                             : found.type == TokenType::bareKey || isValueLikeKey(found.type)
                                 ? "A key of several words has quotes: \"my key\" = 1."
                                 : std::string(pairHint);
    return {"'=' is due behind the key, not " + described(found, document.textOf(found)), hint};
}

Words forHeader(const Place& place, const DocumentToken& found, const TokenizedText& document)
{
    const bool isEmpty = found.type == TokenType::closeBracket;
    const std::string hint = place.isOfArray ? "A header of an array of tables is written [[key]]."
                                             : "A header is written [key].";
    if (isEmpty)
    {
        return {"the key of the header is missing", hint};
    }
    return forKey("the key of a header is due", found, document, hint);
}

Words forHeaderEnd(const Place& place, const DocumentToken& found, const TokenizedText& document)
{
    const std::string hint = place.isOfArray
                                 ? "A header of an array of tables is written [[key]], on one line."
                                 : "A header is written [key], on one line.";
    return {"']' is due behind the key of the header, not " +
                described(found, document.textOf(found)),
            hint};
}

Words forLineEnd(const DocumentToken& found, const TokenizedText& document)
{
    if (found.type == TokenType::closeBracket || found.type == TokenType::closeBrace)
    {
        return {std::string(kindName(found.type)) + " closes nothing here",
                "Every ']' and '}' belongs to one that opens."};
    }
    return {"the end of the line is due, not " + described(found, document.textOf(found)),
            "Each pair and each header has a line of its own. Texts of several words have quotes."};
}

// What an inline table that is not closed is told, whatever stands in the place.
Words forTable(const Place& place, const DocumentToken& found, const TokenizedText& document)
{
    if (isLineEnd(found.type) || place.breaks > 0)
    {
        return {"the inline table does not end on its line",
                "An inline table stands on one line, up to its '}'. What is longer is a table with "
                "a header, [key]."};
    }
    if (found.type == TokenType::closeBrace)
    {
        return place.due == Due::firstPair
                   ? Words{"the inline table is empty",
                           "An inline table holds one pair or more. Leave the key out, or use a "
                           "header, [key], with nothing below it."}
                   : Words{"a pair is due behind the comma, not '}'",
                           "No comma stands before the '}' of an inline table."};
    }
    if (place.due == Due::tableEnd)
    {
        return {"',' or '}' is due behind the pair, not " +
                    described(found, document.textOf(found)),
                "In an inline table pairs are written {a = 1, b = 2}."};
    }
    return forKey("a key is due in the inline table", found, document,
                  "In an inline table pairs are written {a = 1, b = 2}.");
}

Words wordsFor(const Place& place, const DocumentToken& found, const TokenizedText& document)
{
    switch (place.due)
    {
    case Due::statement:
        return forStatement(found, document);
    case Due::equals:
        return place.isInTable && isLineEnd(found.type) ? forTable(place, found, document)
                                                        : forEquals(place, found, document);
    case Due::keyPart:
        return forKey("a key is due behind the dot", found, document,
                      "A dotted key is written a.b.c.");
    case Due::header:
        return forHeader(place, found, document);
    case Due::headerEnd:
        return forHeaderEnd(place, found, document);
    case Due::value:
        return forValue(found, document);
    case Due::firstElement:
    case Due::element:
    case Due::arrayEnd:
        return forArray(place, found, document);
    case Due::firstPair:
    case Due::pair:
    case Due::tableEnd:
        return forTable(place, found, document);
    default:
        return forLineEnd(found, document);
    }
}

// A token that does not fit is where it is; an end is right behind what stands before it, if
// that is on the same line.
Finding placed(std::size_t index, const TokenizedText& document)
{
    const DocumentToken found = document.at(index);
    Finding finding;
    finding.begin = found.begin;
    finding.end = found.end;
    if (isLineEnd(found.type))
    {
        const std::size_t before = index > 0 ? document.tokens[index - 1].end : 0;
        const std::string_view between = document.text.substr(before, found.begin - before);
        const bool isBehind = index > 0 && between.find('\n') == std::string_view::npos &&
                              document.tokens[index - 1].type != TokenType::newline;
        finding.begin = isBehind ? before : found.begin;
        finding.end = finding.begin;
    }
    return finding;
}

} // namespace

Finding findingOf(const SyntaxError& error, const TokenizedText& document)
{
    const std::size_t index = std::min(error.token, document.tokens.size());
    const DocumentToken found = document.at(index);
    const Place place = placeOf(document.tokens, document.statements.beginOf(index), index);
    Finding finding = placed(index, document);
    const bool isInArray =
        place.due == Due::firstElement || place.due == Due::element || place.due == Due::arrayEnd;
    const bool breaksTwice =
        place.breaks + (found.type == TokenType::newline ? 1U : 0U) > 1 && isInArray;
    if (breaksTwice)
    {
        return lineWithoutElement(place, document);
    }
    Words words = wordsFor(place, found, document);
    finding.message = std::move(words.message);
    finding.hint = std::move(words.hint);
    return finding;
}

} // namespace tool
