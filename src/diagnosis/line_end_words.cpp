#include "line_end_words.h"

#include "codes.h"
#include "kind_name.h"
#include "token_words.h"
#include "unquoted.h"
#include "value_words.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

// A string with quotes in it, as it is written; empty if it is not certain where it ends.
std::string withQuotesIn(std::string_view rest)
{
    const bool isClear = rest.size() > 2 && rest.back() == rest[0] && rest[1] != rest[0] &&
                         rest.find_first_of("#=,[]{}\\") == std::string_view::npos;
    const std::string string = isClear ? inQuotes(rest.substr(1, rest.size() - 2)) : "";
    return string.find('\\') == std::string_view::npos ? string : std::string();
}

} // namespace

std::string foundIn(const Site& site)
{
    return ", found " + described(site.found, site.foundText());
}

Words forLineEnd(const Site& site)
{
    constexpr const char* code = codes::extraText;
    const TokenType type = site.found.type;
    const bool isPunctuation = type == TokenType::comma || type == TokenType::equals ||
                               type == TokenType::closeBracket || type == TokenType::closeBrace;
    if (isString(site.before.type) && site.before.end == site.found.begin && !isPunctuation)
    {
        const bool isBasic = site.text[site.before.begin] == '"';
        const std::string meant = withQuotesIn(restOfLine(site.text, site.before.begin));
        const std::string hint = isBasic ? "A quote in a string is written \\\""
                                         : "Put double quotes around a string with an apostrophe "
                                           "in it";
        const std::string example = meant.empty() ? "" : (isBasic ? ", or: " : ": ") + meant;
        const std::string message = "expected the end of the line after the string" + foundIn(site);
        return {codes::quoteInString, message, hint + example + '.'};
    }
    if (type == TokenType::closeBracket || type == TokenType::closeBrace)
    {
        return {codes::strayBracket, std::string(kindName(type)) + " closes nothing here",
                "Every ']' needs a '[' before it, and every '}' a '{'."};
    }
    const std::string_view continued = continuedValue(site);
    if (!continued.empty())
    {
        return forUnquoted(continued);
    }
    if (type == TokenType::comma)
    {
        return {isLineEnd(site.after.type) ? codes::trailingComma : code,
                "expected the end of the line, found ','",
                isLineEnd(site.after.type) ? "Pairs and headers end without a comma."
                                           : "Put each pair on its own line, without commas."};
    }
    const std::string_view value = isValueLikeKey(site.before.type) && type == TokenType::bareKey
                                       ? unquotedAt(site.text, site.before.begin, false)
                                       : std::string_view();
    return {code, "expected the end of the line" + foundIn(site),
            "Put each pair and each header on its own line. " +
                (value.size() > site.before.end - site.before.begin ? quotesHint(value)
                                                                    : "Strings need quotes.")};
}

} // namespace vorn::parsers::toml::diagnosis
