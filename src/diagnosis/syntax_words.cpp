#include "syntax_words.h"

#include <algorithm>
#include <optional>

#include "array_words.h"
#include "codes.h"
#include "encoding_words.h"
#include "foreign_words.h"
#include "kind_name.h"
#include "line_end_words.h"
#include "token_words.h"
#include "unquoted.h"
#include "value_words.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

constexpr std::string_view pairHint = "A line contains a pair, key = value, or a header, [key].";

constexpr std::string_view jsonHint =
    "It looks like JSON. There are no braces around a document, and each line contains one pair, "
    "key = value.";

constexpr std::string_view tableHint = "In an inline table, pairs are written {a = 1, b = 2}.";

// A document of YAML may start with such a line.
bool isYaml(const Site& site)
{
    return isLineEnd(site.found.type) && site.textOf(site.before) == "---";
}

// Where a key is expected.
Words forKey(const char* code, const std::string& expected, const Site& site,
             const std::string& hint)
{
    if (isValueLikeKey(site.found.type))
    {
        return {codes::unquotedKey, "expected a key" + foundIn(site),
                "It is read as a value. Quote it to use it as a key: \"" +
                    quotedContent(site.foundText()) + "\"."};
    }
    if (site.found.type == TokenType::mlBasicString ||
        site.found.type == TokenType::mlLiteralString)
    {
        return {codes::multiLineKey, expected + foundIn(site),
                "A quoted key is written on one line, with \" or '."};
    }
    return {code, expected + foundIn(site), hint};
}

Words forStatement(const Site& site)
{
    const TokenType type = site.found.type;
    if (type == TokenType::equals)
    {
        return {codes::missingKey, "the key before '=' is missing", std::string(pairHint)};
    }
    if (type == TokenType::closeBracket || type == TokenType::closeBrace)
    {
        return {codes::strayBracket, std::string(kindName(type)) + " closes nothing here",
                std::string(pairHint)};
    }
    return forKey(codes::missingKey, "expected a key or a header", site,
                  std::string(type == TokenType::openBrace ? jsonHint : pairHint));
}

Words forEquals(const Site& site)
{
    const TokenType type = site.found.type;
    const bool isWord =
        type == TokenType::bareKey || isValueLikeKey(type) || isString(type) || isYaml(site);
    if (isWord && !site.place.isInTable)
    {
        return forWords(site);
    }
    const std::string hint(site.place.isInTable ? tableHint : pairHint);
    return {codes::missingEquals, "expected '=' after the key" + foundIn(site), hint};
}

Words forHeader(const Site& site)
{
    const std::string hint = site.place.isOfArray
                                 ? "A header of an array of tables is written [[key]]."
                                 : "A header is written [key].";
    if (site.found.type == TokenType::closeBracket)
    {
        return {codes::missingKey, "the key of the header is missing", hint};
    }
    return forKey(codes::missingKey, "expected the key of a header", site, hint);
}

// The words of a header without quotes.
std::string_view keyOfHeader(const Site& site)
{
    const std::string_view text = site.text;
    const std::size_t begin = text.find_first_not_of("[ \t", site.place.begin);
    const std::size_t end = std::min(text.find_first_of("]\n", begin), text.size());
    const std::string_view key = text.substr(begin, end - begin);
    const bool isClosed = end < text.size() && text[end] == ']' && end > site.found.begin;
    return isClosed && site.found.type == TokenType::bareKey && !inQuotes(key).empty() &&
                   key.find_first_of("\"'.=#\\") == std::string_view::npos
               ? key
               : std::string_view();
}

Words forHeaderEnd(const Site& site)
{
    const std::string hint = site.place.isOfArray
                                 ? "A header of an array of tables is written [[key]], on one line."
                                 : "A header is written [key], on one line.";
    const std::string message = "expected ']' after the key of the header" + foundIn(site);
    const std::string_view key = keyOfHeader(site);
    if (!key.empty())
    {
        const std::string brackets = site.place.isOfArray ? "]]" : "]";
        return {codes::unquotedKey, message,
                "A key of several words needs quotes: " + std::string(brackets.size(), '[') +
                    inQuotes(key) + brackets + '.'};
    }
    return {codes::unclosedHeader, message, hint};
}

// In an inline table, closed or not.
Words forTable(const Site& site)
{
    const Place& place = site.place;
    if (isLineEnd(site.found.type) || place.breaks > 0)
    {
        return {codes::unclosedInlineTable,
                "the inline table is not closed on its line",
                "An inline table must be on one line, up to its '}'. For a longer table, write a "
                "header, [key].",
                {},
                true};
    }
    if (site.found.type == TokenType::closeBrace)
    {
        return place.due == Due::firstPair
                   ? Words{codes::emptyInlineTable, "the inline table is empty",
                           "An inline table needs at least one pair. Leave the key out, or use a "
                           "header, [key], with nothing below it."}
                   : Words{codes::trailingComma, "expected a pair after the comma, found '}'",
                           "An inline table has no comma before its '}'."};
    }
    if (place.due == Due::tableEnd)
    {
        const std::string_view continued = continuedValue(site);
        if (!continued.empty())
        {
            return forUnquoted(continued);
        }
        return {codes::missingComma,
                "expected ',' or '}' after the pair" + foundIn(site),
                std::string(tableHint),
                {},
                site.found.type == TokenType::closeBracket};
    }
    return forKey(codes::missingKey, "expected a key in the inline table", site,
                  std::string(tableHint));
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
        return forKey(codes::missingKey, "expected a key after the dot", site,
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

std::vector<Origin> originsOf(const Place& place)
{
    return {{place.opening.begin, place.opening.end,
             place.isInTable ? "the inline table was opened here" : "the array was opened here"}};
}

// Bytes that are misread, and what else has nothing to do with the statement.
std::optional<Mistake> beforeAll(const Site& site)
{
    const std::size_t found = site.found.begin;
    const std::size_t begin = site.place.due == Due::statement ? found : site.place.begin;
    if (const auto misread = misreadIn(site.text, begin, found + 1))
    {
        return malformedBytes(site.text, *misread, Severity::error);
    }
    return found < site.text.size() ? mergeConflictAt(site.text, found) : std::nullopt;
}

} // namespace

Mistake mistakeAt(const Site& site)
{
    if (auto mistake = beforeAll(site))
    {
        return std::move(*mistake);
    }
    const Place& place = site.place;
    const bool isInArray =
        place.due == Due::firstElement || place.due == Due::element || place.due == Due::arrayEnd;
    const bool endsLine = site.found.type == TokenType::newline;
    if (isInArray && place.breaks + (endsLine ? 1U : 0U) > 1)
    {
        return lineWithoutElement(site);
    }
    Words words = wordsFor(site);
    const bool isLonger = !words.about.empty();
    if (auto mistake = malformedIn(words.about, site.text))
    {
        return std::move(*mistake);
    }
    const std::size_t begin =
        isLonger ? static_cast<std::size_t>(words.about.data() - site.text.data()) : placed(site);
    const std::size_t end = isLineEnd(site.found.type) ? begin : site.found.end;
    return {Severity::error,
            begin,
            isLonger ? begin + words.about.size() : end,
            words.code,
            std::move(words.message),
            std::move(words.hint),
            words.showsOpening ? originsOf(place) : std::vector<Origin>(),
            std::move(words.afterLine)};
}

} // namespace vorn::parsers::toml::diagnosis
