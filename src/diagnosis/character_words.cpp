#include "character_words.h"

#include <cstdio>
#include <string>
#include <vector>

#include "codes.h"
#include "encoding_words.h"
#include "token_reader.h"
#include "unquoted.h"
#include "value_words.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

constexpr std::string_view bareKeyHint =
    "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys, and all strings, need quotes.";

std::string hintFor(char32_t code)
{
    switch (code)
    {
    case ':':
        return "Write '=' between a key and its value.";
    case '>':
        return "A pair is written key = value.";
    case '/':
    case '!':
    case '%':
        return "A comment starts with '#'. Strings need quotes.";
    case '\\':
        return "A backslash may only appear in strings and comments.";
    case '(':
    case ')':
        return "Arrays are written [1, 2], inline tables {a = 1}. Strings need quotes.";
    case 0xA0:
        return "It looks like a space. Write a space or a tab.";
    case 0xFEFF:
        return "A byte order mark may only appear at the start of the file.";
    case 0x2018:
    case 0x2019:
    case 0x201A:
    case 0x201C:
    case 0x201D:
    case 0x201E:
        return "It looks like a quote. Write \" or ' instead.";
    default:
        break;
    }
    if (code < 0x20 || code == 0x7F)
    {
        return "Of control characters only tabs and line breaks may appear outside of strings and "
               "comments.";
    }
    return std::string(bareKeyHint);
}

bool isCurly(char32_t code)
{
    return code >= 0x2018 && code <= 0x201E && code != 0x201B;
}

// A string in quotes of a word processor, with its own; empty if it is not closed.
std::string straightened(std::string_view text, std::size_t at)
{
    constexpr std::size_t size = 3; // of such a quote
    const std::string_view rest = restOfLine(text, at);
    for (std::size_t end = size; end + size <= rest.size(); end += characterAt(rest, end).length)
    {
        if (isCurly(characterAt(rest, end).code))
        {
            return inQuotes(rest.substr(size, end - size));
        }
    }
    return {};
}

// The part of a key that a character is in, in quotes; empty if it is in no key.
std::string quotedKeyAround(std::string_view text, std::size_t at)
{
    constexpr std::string_view ends = "\n=\"'#,{}[]";
    const std::size_t begin = at == 0 ? 0 : text.find_last_of(ends, at - 1) + 1;
    const std::size_t end = text.find_first_of(ends, at);
    const std::size_t bracket =
        begin == 0 ? std::string_view::npos : text.find_last_not_of('[', begin - 1);
    const bool isHeader = begin > 0 && text[begin - 1] == '[' &&
                          (bracket == std::string_view::npos || text[bracket] == '\n');
    const bool isPair = begin == 0 || text[begin - 1] == '\n' || text[begin - 1] == '{';
    if (end == std::string_view::npos ||
        !(isHeader ? text[end] == ']' : isPair && text[end] == '='))
    {
        return {};
    }
    const std::string_view key = restOfLine(text.substr(0, end), begin);
    return key.find('.') == std::string_view::npos ? inQuotes(key) : std::string();
}

// Whether the innermost bracket that is open on the line is that of an inline table.
bool isInTable(std::string_view text, std::size_t at)
{
    const std::size_t lineBegin = text.substr(0, at).rfind('\n') + 1;
    TokenReader reader(text.substr(0, at), lineBegin, TokenReader::Errors::independent);
    std::vector<TokenType> open;
    for (DocumentToken token = reader.next(); token.type != TokenType::endOfInput;
         token = reader.next())
    {
        const TokenType type = token.type;
        if (type == TokenType::openBrace || type == TokenType::openBracket)
        {
            open.push_back(type);
        }
        else if ((type == TokenType::closeBrace || type == TokenType::closeBracket) &&
                 !open.empty())
        {
            open.pop_back();
        }
    }
    return !open.empty() && open.back() == TokenType::openBrace;
}

std::string hintAt(std::string_view text, std::size_t at, char32_t code)
{
    const std::string straight = isCurly(code) ? straightened(text, at) : "";
    if (!straight.empty())
    {
        return "It looks like a quote. Write " + straight + " instead.";
    }
    if (code == ';')
    {
        const std::string_view rest = restOfLine(text, at);
        return isInTable(text, at)
                   ? "Pairs in an inline table are separated by commas, with none before its '}'."
               : rest.size() == 1 ? "Pairs and headers end without a semicolon."
               : rest.find('=') != std::string_view::npos
                   ? "Put each pair on its own line."
                   : "Elements are separated by commas. A comment starts with '#'.";
    }
    const std::string key = isOnlyMistyped(text, at) ? "" : quotedKeyAround(text, at);
    if (!key.empty())
    {
        return "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys need quotes: " + key + '.';
    }
    return hintFor(code);
}

} // namespace

Mistake highCharacter(std::size_t at, const Character& character)
{
    char escape[16] = {};
    std::snprintf(escape, sizeof(escape), "\\U%08X", static_cast<unsigned>(character.code));
    return {Severity::error,
            at,
            at + character.length,
            codes::highCharacter,
            "the character " + codeName(character.code) + " is above U+FFFF",
            "Emoji and other characters above U+FFFF are not allowed, not even in comments. In a "
            "string with double quotes, write " +
                std::string(escape) + " instead."};
}

Mistake loneCarriageReturn(std::size_t at)
{
    return {Severity::error,
            at,
            at + 1,
            codes::loneCarriageReturn,
            "a carriage return without a line feed after it",
            "Lines end with a line feed (LF), or with a carriage return and a line feed (CR LF)."};
}

Mistake strayCharacter(std::string_view text, std::size_t at)
{
    const Character character = characterAt(text, at);
    if (character.code == 0 && isUtf16(text))
    {
        return otherEncoding(at, Severity::error);
    }
    const std::string seen = shown(text, character, at).text;
    const bool isPlain = character.code > 0x20 && character.code < 0x7F;
    const std::string name = isPlain ? '\'' + seen + '\''
                             : seen.size() == character.length && character.code > 0xA0
                                 ? '\'' + seen + "' (" + codeName(character.code) + ')'
                                 : codeName(character.code);
    return {Severity::error,
            at,
            at + character.length,
            codes::strayCharacter,
            "the character " + name + " is not allowed here",
            hintAt(text, at, character.code)};
}

} // namespace vorn::parsers::toml::diagnosis
