#include "lexical_words.h"

#include <algorithm>
#include <optional>
#include <string>

#include "character_words.h"
#include "characters.h"
#include "codes.h"
#include "encoding_words.h"
#include "foreign_words.h"
#include "unquoted.h"
#include "value_words.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

char byteAt(std::string_view text, std::size_t at)
{
    return at < text.size() ? text[at] : '\0';
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isQuote(char c)
{
    return c == '"' || c == '\'';
}

// Whether the text has the shape, in which 0 means any digit.
bool hasShape(std::string_view text, std::size_t at, std::string_view shape)
{
    if (text.size() - at < shape.size())
    {
        return false;
    }
    return std::equal(shape.begin(), shape.end(), text.begin() + static_cast<std::ptrdiff_t>(at),
                      [](char wanted, char c) { return wanted == '0' ? isDigit(c) : wanted == c; });
}

std::size_t lineBegin(std::string_view text, std::size_t at)
{
    const std::size_t lineBreak = at == 0 ? std::string_view::npos : text.rfind('\n', at - 1);
    return lineBreak == std::string_view::npos ? 0 : lineBreak + 1;
}

Mistake errorAt(std::size_t begin, std::size_t end, const char* code, std::string message,
                std::string hint)
{
    return {Severity::error,    begin,          std::max(begin, end), code,
            std::move(message), std::move(hint)};
}

// Whether the line has an equals sign after the place, and none before it.
bool isInKey(std::size_t begin, std::string_view text)
{
    const std::size_t before = text.find_last_of("\n=", begin);
    const std::size_t after = text.find_first_of("\n=", begin);
    return (before == std::string_view::npos || text[before] == '\n') &&
           after != std::string_view::npos && text[after] == '=';
}

constexpr std::string_view timeHint = "A time is written 07:32:00 or 07:32:00.25, with seconds.";
constexpr std::string_view date = "0000-00-00";

bool isBlankAfterDate(const LexicalError& error, std::string_view text)
{
    const std::size_t afterDate = error.begin + date.size();
    return hasShape(text, error.begin, date) && byteAt(text, afterDate) == ' ' &&
           error.at == afterDate + 1;
}

Mistake blankAfterDate(const LexicalError& error)
{
    const std::size_t afterDate = error.begin + date.size();
    return errorAt(afterDate, afterDate + 1, codes::blankAfterDate,
                   "expected a time after the date and the space",
                   "A date followed by a space starts a date-time. Remove the space, or write "
                   "a tab instead.");
}

Mistake inDateTime(const LexicalError& error, std::string_view text)
{
    const std::size_t time =
        error.begin + (hasShape(text, error.begin, date) ? date.size() + 1 : 0);
    if (error.at > time + 8 && byteAt(text, time + 8) != '.')
    {
        return errorAt(error.begin, error.at, codes::invalidDateTime,
                       "the offset of the date-time is incomplete",
                       "An offset is written Z or +01:00.");
    }
    if (error.kind == ErrorKind::noAlternative || error.kind == ErrorKind::recognition ||
        error.kind == ErrorKind::mismatchedSet)
    {
        return errorAt(error.begin, error.at, codes::invalidDateTime, "the time is incomplete",
                       std::string(timeHint));
    }
    return errorAt(error.begin, error.at, codes::invalidDateTime,
                   "expected digits after the dot of the time", std::string(timeHint));
}

bool isAfterString(std::size_t begin, std::string_view text)
{
    const std::size_t before = begin == 0 ? begin : text.find_last_not_of(" \t", begin - 1);
    return before != std::string_view::npos && isQuote(text[before]);
}

Mistake inNumber(const LexicalError& error, std::string_view text)
{
    const std::string hint = "A float is written 1.5, 1e6 or 1.5e-6, with digits on both sides of "
                             "the dot and after the e.";
    if (byteAt(text, error.begin) == '+' && error.at <= error.begin + 1)
    {
        if (isAfterString(error.begin, text))
        {
            return errorAt(error.begin, error.begin + 1, codes::extraText,
                           "expected the end of the line, found '+'",
                           "Strings cannot be joined. Write them as one.");
        }
        return errorAt(error.begin, error.begin + 1, codes::invalidNumber,
                       "expected a number after '+'",
                       "A plus sign may only start a number: +1, +1.5 or +inf.");
    }
    if (error.at > error.begin && text[error.at - 1] == '_')
    {
        return errorAt(error.at - 1, error.at, codes::invalidNumber, "expected a digit after '_'",
                       "An underscore must be between two digits.");
    }
    return errorAt(error.begin, error.at, codes::invalidNumber, "the number is missing a digit",
                   hint);
}

bool isTimeOrDate(const LexicalError& error, std::string_view text)
{
    return hasShape(text, error.begin, "0000-") || hasShape(text, error.begin, "00:");
}

// Whether what the lexer began to read is certainly no string.
bool isMeantAsNumber(const LexicalError& error, std::string_view value, std::string_view text)
{
    return value == "+" || hasShape(text, error.begin, date) ||
           (isTimeOrDate(error, text) &&
            value.find_first_not_of("0123456789:-+.Zz ") == std::string_view::npos);
}

// Bytes of other encodings, and characters that are not allowed anywhere.
std::optional<Mistake> inCharacters(const LexicalError& error, std::string_view text)
{
    if (const auto misread =
            misreadIn(text, lineBegin(text, error.begin), std::max(error.begin + 1, error.at)))
    {
        return malformedBytes(text, *misread, Severity::error);
    }
    if (error.at >= text.size())
    {
        return std::nullopt;
    }
    const Character character = characterAt(text, error.at);
    const bool isInString = isQuote(byteAt(text, error.begin));
    if (character.isWellFormed && character.code > 0xFFFF)
    {
        return highCharacter(error.at, character);
    }
    if (!character.isWellFormed && (error.at == error.begin || isInString))
    {
        return malformedBytes(text, error.at, Severity::error);
    }
    return std::nullopt;
}

// What is meant, where the lexer does not get through a value, or through a line.
std::optional<Mistake> asItIsMeant(const LexicalError& error, std::string_view text)
{
    if (error.at == error.begin)
    {
        if (auto mistake = mergeConflictAt(text, error.begin))
        {
            return mistake;
        }
        if (auto mistake = foreignCommentAt(text, error.begin))
        {
            return mistake;
        }
    }
    const std::string_view value = unquotedAround(text, error.begin);
    if (!value.empty() && !isOnlyMistyped(text, error.begin))
    {
        if (auto mistake = malformedIn(value, text))
        {
            return mistake;
        }
        const auto begin = static_cast<std::size_t>(value.data() - text.data());
        Words words = forUnquoted(value);
        if (words.code == codes::unquotedString && isMeantAsNumber(error, value, text))
        {
            return std::nullopt;
        }
        return errorAt(begin, begin + value.size(), words.code, std::move(words.message),
                       std::move(words.hint));
    }
    return error.at == error.begin ? colonAt(text, error.begin) : std::nullopt;
}

} // namespace

Mistake mistakeOf(const LexicalError& error, std::string_view text)
{
    if (auto mistake = inCharacters(error, text))
    {
        return std::move(*mistake);
    }
    const char first = byteAt(text, error.begin);
    if (isQuote(first))
    {
        return inString(error, text);
    }
    if (first == '\r' || (first == '\n' && error.at > 0))
    {
        return loneCarriageReturn(text[error.at - 1] == '\r' ? error.at - 1 : error.begin);
    }
    if (isBlankAfterDate(error, text) && !isInKey(error.begin, text))
    {
        return blankAfterDate(error);
    }
    if (auto mistake = asItIsMeant(error, text))
    {
        return std::move(*mistake);
    }
    if (error.at == error.begin && first != '+')
    {
        return strayCharacter(text, error.at);
    }
    Mistake mistake = isBlankAfterDate(error, text) ? blankAfterDate(error)
                      : isTimeOrDate(error, text)   ? inDateTime(error, text)
                                                    : inNumber(error, text);
    if (text.substr(error.begin, 2) == "+=")
    {
        mistake.hint = "A pair is written key = value.";
    }
    else if (isInKey(error.begin, text))
    {
        mistake.hint =
            "What starts like a number or a date is read as a value. Quote it to use it in a key.";
    }
    return mistake;
}

} // namespace vorn::parsers::toml::diagnosis
