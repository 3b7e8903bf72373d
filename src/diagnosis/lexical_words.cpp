#include "lexical_words.h"

#include <algorithm>
#include <string>

#include "character_words.h"
#include "characters.h"
#include "grammar/lexer/decisions.h"
#include "token_words.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

constexpr std::string_view longQuotes[] = {"\"\"\"", "'''"};

bool failedIn(const LexicalError& error, Decision decision)
{
    return error.kind == ErrorKind::noAlternative &&
           error.decision == static_cast<unsigned>(decision);
}

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

bool isAtEnd(const LexicalError& error, std::string_view text)
{
    return error.at >= text.size();
}

Mistake errorAt(std::size_t begin, std::size_t end, const char* code, std::string message,
                std::string hint)
{
    return {Severity::error,    begin,          std::max(begin, end), code,
            std::move(message), std::move(hint)};
}

Mistake unclosedString(const LexicalError& error, std::string_view text)
{
    const bool isBasic = text[error.begin] == '"';
    if (isInLongString(error, text))
    {
        const std::string quotes(longQuotes[isBasic ? 0 : 1]);
        return errorAt(error.begin, error.begin + 3, "unclosed-string",
                       "the string that starts here is never closed",
                       "Close it with " + quotes + '.');
    }
    std::string hint = isBasic ? "Close the string with \" on the same line. A string of several "
                                 "lines starts and ends with \"\"\"."
                               : "Close the string with ' on the same line. Put double quotes "
                                 "around a string with an apostrophe in it.";
    return errorAt(error.begin, error.at, "unclosed-string", "the string is not closed on its line",
                   std::move(hint));
}

constexpr std::string_view escapesHint =
    "The valid escapes are \\\" \\' \\\\ \\b \\f \\n \\r \\t \\uXXXX \\UXXXXXXXX. In 'literal "
    "strings' a backslash is just a backslash.";

Mistake wrongEscape(std::size_t backslash, std::string_view text)
{
    const std::size_t next = backslash + 1;
    const Character character =
        next < text.size() ? characterAt(text, next) : Character{'\n', 0, true};
    const std::size_t end = next + character.length;
    const char c = byteAt(text, next);
    if (character.length == 0 || c == '\n')
    {
        return errorAt(backslash, next, "unfinished-escape",
                       "there is nothing to escape after the backslash",
                       "A backslash joins lines only in strings with \"\"\" around them. A "
                       "backslash itself is written \\\\.");
    }
    const std::string name = "unknown escape " + printable(text.substr(backslash, end - backslash));
    if (c == ' ' || c == '\t' || c == '\r')
    {
        return errorAt(backslash, end, "blank-after-backslash",
                       "there is whitespace after the backslash",
                       "A backslash that joins lines must be the last character of its line. A "
                       "backslash itself is written \\\\.");
    }
    if (c == 'x' || c == 'e')
    {
        return errorAt(backslash, end, "unknown-escape", name,
                       c == 'x' ? "Write \\u0041 instead of \\x41. A backslash itself is written "
                                  "\\\\."
                                : "The escape character is written \\u001B. A backslash itself is "
                                  "written \\\\.");
    }
    return errorAt(backslash, end, "unknown-escape", name, std::string(escapesHint));
}

Mistake shortEscape(const LexicalError& error, std::string_view text)
{
    std::size_t backslash = text.rfind('\\', error.at);
    backslash =
        backslash == std::string_view::npos || backslash < error.begin ? error.at : backslash;
    const bool isLong = byteAt(text, backslash + 1) == 'U';
    return errorAt(backslash, error.at, "short-escape",
                   std::string("the escape \\") + (isLong ? "U" : "u") + " has too few digits",
                   std::string(isLong ? "Eight hexadecimal digits follow \\U, as in \\U000000E9. "
                                      : "Four hexadecimal digits follow \\u, as in \\u00E9. ") +
                       "In 'literal strings' a backslash is just a backslash.");
}

Mistake inStringAlone(const LexicalError& error, std::string_view text)
{
    if (failedIn(error, Decision::escape))
    {
        return wrongEscape(error.at - 1, text);
    }
    if (failedIn(error, Decision::mlEscape))
    {
        return wrongEscape(error.at, text);
    }
    if (error.kind == ErrorKind::mismatchedSet)
    {
        return shortEscape(error, text);
    }
    if (error.kind == ErrorKind::recognition && isInLongString(error, text) &&
        error.at > error.begin + 4 && text.substr(error.at - 2, 2) == "\\\r")
    {
        return loneCarriageReturn(error.at - 1);
    }
    return unclosedString(error, text);
}

Mistake inString(const LexicalError& error, std::string_view text)
{
    Mistake mistake = inStringAlone(error, text);
    if (isInLongString(error, text) && !isAtEnd(error, text))
    {
        mistake.hint += " The rest is not checked until this string is fixed.";
    }
    return mistake;
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

Mistake inDateTime(const LexicalError& error, std::string_view text)
{
    constexpr std::string_view date = "0000-00-00";
    const bool hasDate = hasShape(text, error.begin, date);
    const std::size_t afterDate = error.begin + date.size();
    if (hasDate && byteAt(text, afterDate) == ' ' && error.at == afterDate + 1)
    {
        return errorAt(afterDate, afterDate + 1, "blank-after-date",
                       "expected a time after the date and the space",
                       "A date followed by a space starts a date-time. Remove the space, or write "
                       "a tab instead.");
    }
    const std::size_t time = hasDate ? afterDate + 1 : error.begin;
    if (error.at > time + 8 && byteAt(text, time + 8) != '.')
    {
        return errorAt(error.begin, error.at, "incomplete-offset",
                       "the offset of the date-time is incomplete",
                       "An offset is written Z or +01:00.");
    }
    if (error.kind == ErrorKind::noAlternative || error.kind == ErrorKind::recognition ||
        error.kind == ErrorKind::mismatchedSet)
    {
        return errorAt(error.begin, error.at, "incomplete-time", "the time is incomplete",
                       std::string(timeHint));
    }
    return errorAt(error.begin, error.at, "incomplete-time",
                   "expected digits after the dot of the time", std::string(timeHint));
}

Mistake inNumber(const LexicalError& error, std::string_view text)
{
    const std::string hint = "A float is written 1.5, 1e6 or 1.5e-6, with digits on both sides of "
                             "the dot and after the e.";
    if (byteAt(text, error.begin) == '+' && error.at <= error.begin + 1)
    {
        return errorAt(error.begin, error.begin + 1, "stray-plus", "expected a number after '+'",
                       "A plus sign may only start a number: +1, +1.5 or +inf.");
    }
    const char c = byteAt(text, error.begin + 1);
    if (byteAt(text, error.begin) == '+' && (c == 'i' || c == 'n'))
    {
        return errorAt(error.begin, error.at, "stray-plus", "expected a number after '+'",
                       "The only words that may follow are inf and nan.");
    }
    if (error.at > error.begin && text[error.at - 1] == '_')
    {
        return errorAt(error.at - 1, error.at, "misplaced-underscore", "expected a digit after '_'",
                       "An underscore must be between two digits.");
    }
    return errorAt(error.begin, error.at, "incomplete-number", "the number is missing a digit",
                   hint);
}

} // namespace

Mistake mistakeOf(const LexicalError& error, std::string_view text)
{
    if (!isAtEnd(error, text))
    {
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
    if (error.at == error.begin && first != '+')
    {
        return strayCharacter(text, error.at);
    }
    const bool isDate = hasShape(text, error.begin, "0000-") || hasShape(text, error.begin, "00:");
    Mistake mistake = isDate ? inDateTime(error, text) : inNumber(error, text);
    if (isInKey(error.begin, text))
    {
        mistake.hint =
            "What starts like a number or a date is read as a value. Quote it to use it in a key.";
    }
    return mistake;
}

} // namespace vorn::parsers::toml::diagnosis
