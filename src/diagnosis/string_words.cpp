#include "string_words.h"

#include <algorithm>
#include <string>

#include "character_words.h"
#include "characters.h"
#include "codes.h"
#include "grammar/lexer/decisions.h"
#include "token_words.h"
#include "unquoted.h"

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
        return errorAt(error.begin, error.begin + 3, codes::unclosedString,
                       "the string that starts here is never closed",
                       "Close it with " + quotes + '.');
    }
    std::string hint = isBasic ? "Close the string with \" on the same line. A string of several "
                                 "lines starts and ends with \"\"\"."
                               : "Close the string with ' on the same line. Put double quotes "
                                 "around a string with an apostrophe in it.";
    return errorAt(error.begin, error.at, codes::unclosedString,
                   "the string is not closed on its line", std::move(hint));
}

// The string as a literal one, if it is closed on its line and may be one.
std::string asLiteral(const LexicalError& error, std::string_view text)
{
    std::size_t end = error.begin + 1;
    while (end < text.size() && text[end] != '\n' && text[end] != '"')
    {
        end += text[end] == '\\' && byteAt(text, end + 1) != '\n' ? 2 : 1;
    }
    if (byteAt(text, end) != '"' || isInLongString(error, text))
    {
        return {};
    }
    const std::string_view content = text.substr(error.begin + 1, end - error.begin - 1);
    const std::string literal = inQuotes(content);
    // Of other escapes in it these would be a part, too.
    const bool isMeant = content.find("\\\"") == std::string_view::npos &&
                         content.find("\\n") == std::string_view::npos &&
                         content.find("\\\\") == std::string_view::npos;
    return isMeant && !literal.empty() && literal[0] == '\'' ? literal : std::string();
}

std::string literalHint(const LexicalError& error, std::string_view text)
{
    const std::string literal = asLiteral(error, text);
    return literal.empty()
               ? "In 'literal strings' a backslash is just a backslash."
               : "In a literal string a backslash is just a backslash: " + literal + '.';
}

Mistake misplacedBackslash(std::size_t begin, std::size_t end, const char* message,
                           const char* hint)
{
    return errorAt(begin, end, codes::misplacedBackslash, message,
                   std::string(hint) + " A backslash itself is written \\\\.");
}

Mistake wrongEscape(std::size_t backslash, const LexicalError& error, std::string_view text)
{
    const std::size_t next = backslash + 1;
    const Character character =
        next < text.size() ? characterAt(text, next) : Character{'\n', 0, true};
    const std::size_t end = next + character.length;
    const char c = byteAt(text, next);
    if (character.length == 0 || c == '\n')
    {
        return misplacedBackslash(
            backslash, next, "there is nothing to escape after the backslash",
            "A backslash joins lines only in strings with \"\"\" around them.");
    }
    if (c == ' ' || c == '\t' || c == '\r')
    {
        return misplacedBackslash(
            backslash, end, "there is whitespace after the backslash",
            "A backslash that joins lines must be the last character of its line.");
    }
    std::string hint;
    if (c == 'x' || c == 'e')
    {
        hint = c == 'x' ? "Write \\u0041 instead of \\x41."
                        : "The escape character is written "
                          "\\u001B.";
        hint += " A backslash itself is written \\\\.";
    }
    else
    {
        hint = literalHint(error, text) +
               " The valid escapes are \\\" \\\\ \\b \\f \\n \\r \\t \\uXXXX \\UXXXXXXXX.";
    }
    return errorAt(backslash, end, codes::unknownEscape,
                   "unknown escape " + printable(text.substr(backslash, end - backslash)),
                   std::move(hint));
}

Mistake shortEscape(const LexicalError& error, std::string_view text)
{
    std::size_t backslash = text.rfind('\\', error.at);
    backslash =
        backslash == std::string_view::npos || backslash < error.begin ? error.at : backslash;
    const bool isLong = byteAt(text, backslash + 1) == 'U';
    return errorAt(backslash, error.at, codes::shortEscape,
                   std::string("the escape \\") + (isLong ? "U" : "u") + " has too few digits",
                   std::string(isLong ? "Eight hexadecimal digits follow \\U, as in \\U000000E9. "
                                      : "Four hexadecimal digits follow \\u, as in \\u00E9. ") +
                       literalHint(error, text));
}

Mistake inStringAlone(const LexicalError& error, std::string_view text)
{
    if (failedIn(error, Decision::escape))
    {
        return wrongEscape(error.at - 1, error, text);
    }
    if (failedIn(error, Decision::mlEscape))
    {
        return wrongEscape(error.at, error, text);
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

} // namespace

Mistake inString(const LexicalError& error, std::string_view text)
{
    Mistake mistake = inStringAlone(error, text);
    if (isInLongString(error, text) && !isAtEnd(error, text))
    {
        mistake.hint += " The rest is not checked until this string is fixed.";
    }
    return mistake;
}

} // namespace vorn::parsers::toml::diagnosis
