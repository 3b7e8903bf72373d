#include "syntax_words.h"

#include "array_words.h"
#include "token_words.h"
#include "value_words.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

constexpr std::string_view pairHint = "A line contains a pair, key = value, or a header, [key].";

bool isLineEnd(TokenType type)
{
    return type == TokenType::newline || type == TokenType::endOfInput;
}

std::string foundIn(const Site& site)
{
    return ", found " + described(site.found, site.foundText());
}

// Where a key is expected.
Words forKey(const char* code, const std::string& expected, const Site& site,
             const std::string& hint)
{
    if (isValueLikeKey(site.found.type))
    {
        return {"value-as-key", "expected a key" + foundIn(site),
                "It is read as a value. Quote it to use it as a key: \"" +
                    quotedContent(site.foundText()) + "\"."};
    }
    if (site.found.type == TokenType::mlBasicString ||
        site.found.type == TokenType::mlLiteralString)
    {
        return {"multi-line-key", expected + foundIn(site),
                "A quoted key is written on one line, with \" or '."};
    }
    return {code, expected + foundIn(site), hint};
}

Words forStatement(const Site& site)
{
    const TokenType type = site.found.type;
    if (type == TokenType::equals)
    {
        return {"missing-key", "the key before '=' is missing", std::string(pairHint)};
    }
    if (type == TokenType::closeBracket || type == TokenType::closeBrace)
    {
        return {"stray-bracket", std::string(kindName(type)) + " closes nothing here",
                std::string(pairHint)};
    }
    return forKey("missing-key", "expected a key or a header", site, std::string(pairHint));
}

Words forEquals(const Site& site)
{
    const TokenType type = site.found.type;
    const std::string hint = site.place.isInTable
                                 ? "In an inline table, pairs are written {a = 1, b = 2}."
                             : type == TokenType::bareKey || isValueLikeKey(type)
                                 ? "A key of several words needs quotes: \"my key\" = 1."
                                 : std::string(pairHint);
    return {"missing-equals", "expected '=' after the key" + foundIn(site), hint};
}

Words forHeader(const Site& site)
{
    const std::string hint = site.place.isOfArray
                                 ? "A header of an array of tables is written [[key]]."
                                 : "A header is written [key].";
    if (site.found.type == TokenType::closeBracket)
    {
        return {"missing-header-key", "the key of the header is missing", hint};
    }
    return forKey("missing-header-key", "expected the key of a header", site, hint);
}

Words forHeaderEnd(const Site& site)
{
    const std::string hint = site.place.isOfArray
                                 ? "A header of an array of tables is written [[key]], on one line."
                                 : "A header is written [key], on one line.";
    return {"unclosed-header", "expected ']' after the key of the header" + foundIn(site), hint};
}

bool isString(TokenType type)
{
    return type == TokenType::basicString || type == TokenType::literalString ||
           type == TokenType::mlBasicString || type == TokenType::mlLiteralString;
}

Words forLineEnd(const Site& site)
{
    constexpr const char* code = "text-after-value";
    const TokenType type = site.found.type;
    if (isString(site.before.type) && site.before.end == site.found.begin)
    {
        const bool isBasic = site.text[site.before.begin] == '"';
        return {"quote-in-string", "expected the end of the line after the string" + foundIn(site),
                isBasic ? "A quote in a string is written \\\"."
                        : "Put double quotes around a string with an apostrophe in it."};
    }
    if (type == TokenType::closeBracket || type == TokenType::closeBrace)
    {
        return {"stray-bracket", std::string(kindName(type)) + " closes nothing here",
                "Every ']' needs a '[' before it, and every '}' a '{'."};
    }
    const bool isNumber = isValueLikeKey(site.before.type);
    if (type == TokenType::comma && isLineEnd(site.after.type))
    {
        return {code, "expected the end of the line, found ','",
                "Pairs and headers end without a comma."};
    }
    if (isNumber && type == TokenType::comma)
    {
        return {code, "expected the end of the line, found ','",
                "A float is written 1.5, an array [1, 5]."};
    }
    if (isNumber && type == TokenType::dot)
    {
        return {code, "expected the end of the line, found '.'",
                "A float has one dot. Versions and addresses are strings: they need quotes."};
    }
    return {code, "expected the end of the line" + foundIn(site),
            "Put each pair and each header on its own line. Strings need quotes."};
}

// In an inline table, closed or not.
Words forTable(const Site& site)
{
    const Place& place = site.place;
    if (isLineEnd(site.found.type) || place.breaks > 0)
    {
        return {"unclosed-inline-table", "the inline table is not closed on its line",
                "An inline table must be on one line, up to its '}'. For a longer table, write a "
                "header, [key]."};
    }
    if (site.found.type == TokenType::closeBrace)
    {
        return place.due == Due::firstPair
                   ? Words{"empty-inline-table", "the inline table is empty",
                           "An inline table needs at least one pair. Leave the key out, or use a "
                           "header, [key], with nothing below it."}
                   : Words{"trailing-comma", "expected a pair after the comma, found '}'",
                           "An inline table has no comma before its '}'."};
    }
    if (place.due == Due::tableEnd)
    {
        return {"missing-comma", "expected ',' or '}' after the pair" + foundIn(site),
                "In an inline table, pairs are written {a = 1, b = 2}."};
    }
    return forKey("missing-key", "expected a key in the inline table", site,
                  "In an inline table, pairs are written {a = 1, b = 2}.");
}

Words wordsFor(const Site& site)
{
    switch (site.place.due)
    {
    case Due::statement:
        return forStatement(site);
    case Due::equals:
        return site.place.isInTable && isLineEnd(site.found.type) ? forTable(site)
                                                                  : forEquals(site);
    case Due::keyPart:
        return forKey("missing-key", "expected a key after the dot", site,
                      "A dotted key is written a.b.c.");
    case Due::header:
        return forHeader(site);
    case Due::headerEnd:
        return forHeaderEnd(site);
    case Due::value:
        return forValue(site);
    case Due::firstElement:
    case Due::element:
    case Due::arrayEnd:
        return forArray(site);
    case Due::firstPair:
    case Due::pair:
    case Due::tableEnd:
        return forTable(site);
    default:
        return forLineEnd(site);
    }
}

// The place of a token that does not fit is its own.  That of an end of line or file is right
// after the token before it, if that is on the same line.
std::size_t placed(const Site& site)
{
    if (!isLineEnd(site.found.type) || isLineEnd(site.before.type))
    {
        return site.found.begin;
    }
    const std::size_t before = site.before.end;
    const std::string_view between = site.text.substr(before, site.found.begin - before);
    return between.find('\n') == std::string_view::npos ? before : site.found.begin;
}

} // namespace

Mistake mistakeAt(const Site& site)
{
    const Place& place = site.place;
    const bool isInArray =
        place.due == Due::firstElement || place.due == Due::element || place.due == Due::arrayEnd;
    const bool endsLine = site.found.type == TokenType::newline;
    if (isInArray && place.breaks + (endsLine ? 1U : 0U) > 1)
    {
        return lineWithoutElement(site);
    }
    Words words = wordsFor(site);
    const std::size_t begin = placed(site);
    return {Severity::error,
            begin,
            isLineEnd(site.found.type) ? begin : site.found.end,
            words.code,
            std::move(words.message),
            std::move(words.hint)};
}

} // namespace vorn::parsers::toml::diagnosis
