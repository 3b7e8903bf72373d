#include "value_words.h"

#include <algorithm>
#include <initializer_list>
#include <string>

#include "characters.h"
#include "codes.h"
#include "date_words.h"
#include "number_words.h"
#include "token_words.h"
#include "unquoted.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

constexpr std::string_view valueForms =
    "Strings need quotes. Arrays are written [1, 2], inline tables {a = 1}.";

std::string lowerCase(std::string_view text)
{
    std::string lower(text.substr(0, 16));
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c)
                   { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

bool isOneOf(const std::string& word, std::initializer_list<const char*> words)
{
    return std::any_of(words.begin(), words.end(),
                       [&word](const char* one) { return word == one; });
}

// The unit of a number, as kB or %.
bool isUnit(std::string_view text)
{
    return text == "%" ||
           std::all_of(text.begin(), text.end(),
                       [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); });
}

Words notValue(const char* code, std::string_view value, std::string&& hint)
{
    return {code, quoted(value) + " is not a value", std::move(hint), value};
}

// Words that mean a value elsewhere.
std::optional<Words> forWord(std::string_view value)
{
    const std::string lower = lowerCase(value);
    if (isOneOf(lower, {"true", "false"}))
    {
        return notValue(codes::invalidBoolean, value, "Write it in lower case: " + lower + '.');
    }
    if (isOneOf(lower, {"yes", "on", "no", "off"}))
    {
        const std::string meant = isOneOf(lower, {"yes", "on"}) ? "true" : "false";
        return notValue(codes::invalidBoolean, value,
                        "Write " + meant + ", or " + inQuotes(value) + " for a string.");
    }
    if (isOneOf(lower, {"null", "nil", "none", "undefined", "~"}))
    {
        return notValue(codes::nullValue, value, "TOML has no such value. Leave the key out.");
    }
    const bool hasSign = lower[0] == '+' || lower[0] == '-';
    const std::string sign = lower.substr(0, hasSign ? 1 : 0);
    std::string name = lower.substr(sign.size());
    name.erase(0, name[0] == '.' ? 1 : 0);
    if (isOneOf(name, {"inf", "infinity", "nan"}))
    {
        return notValue(codes::invalidNumber, value,
                        "Write it as " + sign + name.substr(0, 3) + '.');
    }
    return std::nullopt;
}

Words forMissing(const Site& site)
{
    const std::string found = described(site.found, site.foundText());
    const std::string_view rest = restOfLine(site.text, site.before.end);
    if (site.before.type == TokenType::equals && !rest.empty() && rest[0] == '#')
    {
        return {codes::missingValue, "expected a value, found a comment",
                "'#' starts a comment. " + quotesHint(rest)};
    }
    return {codes::missingValue, "expected a value, found " + found,
            "The value must start on the line of its key."};
}

} // namespace

std::string quotedContent(std::string_view text)
{
    const std::string word = quoted(text);
    return word.substr(1, word.size() - 2);
}

Words forUnquoted(std::string_view value)
{
    if (auto words = forWord(value))
    {
        return std::move(*words);
    }
    if (auto words = forDate(value))
    {
        return std::move(*words);
    }
    if (auto words = forNumber(value))
    {
        return std::move(*words);
    }
    const std::size_t quote = value.find_first_of("\"'");
    if (value.size() > 2 && value[0] == '`' && value.back() == '`')
    {
        return notValue(codes::unquotedString, value,
                        quotesHint(value.substr(1, value.size() - 2)));
    }
    if ((quote == 1 || quote == 2) && value.back() == value[quote])
    {
        return notValue(codes::unquotedString, value,
                        "A string starts with its quote. In 'literal strings' a backslash is just "
                        "a backslash.");
    }
    const std::size_t unit = value.find_first_not_of("0123456789.");
    const bool hasUnit =
        unit != 0 && unit < value.size() && value[unit - 1] != '.' && isUnit(value.substr(unit));
    return notValue(codes::unquotedString, value,
                    quotesHint(value) + (hasUnit ? " A number has no unit." : ""));
}

bool isOnlyMistyped(std::string_view text, std::size_t at)
{
    const Character character = characterAt(text, at);
    const char32_t code = character.code;
    return !character.isWellFormed || code < 0x20 || code == 0x7F || code == 0xA0 ||
           code == 0xFEFF || (code >= 0x2018 && code <= 0x201E) || code == '(' || code == ')' ||
           code == ';' || (code == '>' && at > 0 && text[at - 1] == '=') ||
           (code >= 0x80 && shown(text, character, at).text.size() != character.length);
}

std::string_view continuedValue(const Site& site)
{
    const TokenType type = site.found.type;
    if (!isValueLikeKey(site.before.type) || site.before.end != site.found.begin)
    {
        return {};
    }
    const bool isList = type == TokenType::comma;
    if (type != TokenType::dot && type != TokenType::bareKey && !isValueLikeKey(type) && !isList)
    {
        return {};
    }
    const std::string_view value = unquotedAt(site.text, site.before.begin, site.place.isOpen);
    const std::size_t size = site.before.end - site.before.begin;
    // (A list with blanks is one, or the start of another pair.)
    const bool goesOn =
        value.size() > size && (!isList || value.find(' ') == std::string_view::npos);
    return goesOn ? value : std::string_view();
}

Words forValue(const Site& site)
{
    const std::string_view text = site.foundText();
    switch (site.found.type)
    {
    case TokenType::newline:
    case TokenType::endOfInput:
        return forMissing(site);
    case TokenType::bareKey:
    case TokenType::dot:
        return forUnquoted(unquotedAt(site.text, site.found.begin, site.place.isOpen));
    case TokenType::equals:
        return {codes::secondEquals, "expected a value, found a second '='",
                "A pair is written key = value."};
    default:
        return {codes::missingValue, "expected a value, found " + described(site.found, text),
                std::string(valueForms)};
    }
}

} // namespace vorn::parsers::toml::diagnosis
