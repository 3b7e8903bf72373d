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

constexpr std::string_view pairHint = "A line contains a pair, key = value, or a header, [key].";

bool isLineEnd(TokenType type)
{
    return type == TokenType::newline || type == TokenType::endOfInput;
}

Words valueForKey(const DocumentToken& found, const TokenizedText& document)
{
    const std::string text(document.textOf(found));
    return {"expected a key, found " + described(found, text),
            "It is read as a value. Quote it to use it as a key: \"" + quotedContent(text) + "\"."};
}

// Where a key is expected.
Words forKey(const std::string& expected, const DocumentToken& found, const TokenizedText& document,
             const std::string& hint)
{
    if (isValueLikeKey(found.type))
    {
        return valueForKey(found, document);
    }
    if (found.type == TokenType::mlBasicString || found.type == TokenType::mlLiteralString)
    {
        return {expected + ", found " + described(found, document.textOf(found)),
                "A quoted key is written on one line, with \" or '."};
    }
    return {expected + ", found " + described(found, document.textOf(found)), hint};
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
    return forKey("expected a key or a header", found, document, std::string(pairHint));
}

Words forEquals(const Place& place, const DocumentToken& found, const TokenizedText& document)
{
    const std::string hint = place.isInTable
                                 ? "In an inline table, pairs are written {a = 1, b = 2}."
                             : found.type == TokenType::bareKey || isValueLikeKey(found.type)
                                 ? "A key of several words needs quotes: \"my key\" = 1."
                                 : std::string(pairHint);
    return {"expected '=' after the key, found " + described(found, document.textOf(found)), hint};
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
    return forKey("expected the key of a header", found, document, hint);
}

Words forHeaderEnd(const Place& place, const DocumentToken& found, const TokenizedText& document)
{
    const std::string hint = place.isOfArray
                                 ? "A header of an array of tables is written [[key]], on one line."
                                 : "A header is written [key], on one line.";
    return {"expected ']' after the key of the header, found " +
                described(found, document.textOf(found)),
            hint};
}

bool isString(TokenType type)
{
    return type == TokenType::basicString || type == TokenType::literalString ||
           type == TokenType::mlBasicString || type == TokenType::mlLiteralString;
}

Words forLineEnd(std::size_t index, const TokenizedText& document)
{
    const DocumentToken found = document.at(index);
    const DocumentToken before = document.at(index > 0 ? index - 1 : 0);
    if (isString(before.type) && before.end == found.begin)
    {
        const bool isBasic = document.text[before.begin] == '"';
        return {"expected the end of the line after the string, found " +
                    described(found, document.textOf(found)),
                isBasic ? "A quote in a string is written \\\"."
                        : "Put double quotes around a string with an apostrophe in it."};
    }
    if (found.type == TokenType::closeBracket || found.type == TokenType::closeBrace)
    {
        return {std::string(kindName(found.type)) + " closes nothing here",
                "Every ']' needs a '[' before it, and every '}' a '{'."};
    }
    const bool isNumber = isValueLikeKey(before.type);
    if (found.type == TokenType::comma && isLineEnd(document.at(index + 1).type))
    {
        return {"expected the end of the line, found ','",
                "Pairs and headers end without a comma."};
    }
    if (isNumber && found.type == TokenType::comma)
    {
        return {"expected the end of the line, found ','",
                "A float is written 1.5, an array [1, 5]."};
    }
    if (isNumber && found.type == TokenType::dot)
    {
        return {"expected the end of the line, found '.'",
                "A float has one dot. Versions and addresses are strings: they need quotes."};
    }
    return {"expected the end of the line, found " + described(found, document.textOf(found)),
            "Put each pair and each header on its own line. Strings need quotes."};
}

// In an inline table, closed or not.
Words forTable(const Place& place, const DocumentToken& found, const TokenizedText& document)
{
    if (isLineEnd(found.type) || place.breaks > 0)
    {
        return {"the inline table is not closed on its line",
                "An inline table must be on one line, up to its '}'. For a longer table, write a "
                "header, [key]."};
    }
    if (found.type == TokenType::closeBrace)
    {
        return place.due == Due::firstPair
                   ? Words{"the inline table is empty",
                           "An inline table needs at least one pair. Leave the key out, or use a "
                           "header, [key], with nothing below it."}
                   : Words{"expected a pair after the comma, found '}'",
                           "An inline table has no comma before its '}'."};
    }
    if (place.due == Due::tableEnd)
    {
        return {"expected ',' or '}' after the pair, found " +
                    described(found, document.textOf(found)),
                "In an inline table, pairs are written {a = 1, b = 2}."};
    }
    return forKey("expected a key in the inline table", found, document,
                  "In an inline table, pairs are written {a = 1, b = 2}.");
}

Words wordsFor(const Place& place, std::size_t index, const TokenizedText& document)
{
    const DocumentToken found = document.at(index);
    switch (place.due)
    {
    case Due::statement:
        return forStatement(found, document);
    case Due::equals:
        return place.isInTable && isLineEnd(found.type) ? forTable(place, found, document)
                                                        : forEquals(place, found, document);
    case Due::keyPart:
        return forKey("expected a key after the dot", found, document,
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
        return forLineEnd(index, document);
    }
}

// The place of a token that does not fit is its own.  That of an end of line or file is right
// after the token before it, if that is on the same line.
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
        const bool isAfter = index > 0 && between.find('\n') == std::string_view::npos &&
                             document.tokens[index - 1].type != TokenType::newline;
        finding.begin = isAfter ? before : found.begin;
        finding.end = finding.begin;
    }
    return finding;
}

} // namespace

Finding findingOf(const SyntaxError& error, const TokenizedText& document)
{
    const std::size_t index = std::min(error.token, document.tokens.size());
    const DocumentToken found = document.at(index);
    const Place place = placeOf(document.tokens, document.beginOf(error), index);
    Finding finding = placed(index, document);
    const bool isInArray =
        place.due == Due::firstElement || place.due == Due::element || place.due == Due::arrayEnd;
    const bool breaksTwice =
        place.breaks + (found.type == TokenType::newline ? 1U : 0U) > 1 && isInArray;
    if (breaksTwice)
    {
        return lineWithoutElement(place, document);
    }
    Words words = wordsFor(place, index, document);
    finding.message = std::move(words.message);
    finding.hint = std::move(words.hint);
    return finding;
}

} // namespace tool
