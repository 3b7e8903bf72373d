#include "character_words.h"

#include <cstdio>
#include <string>

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
    case ';':
        return "Put each pair on its own line, with nothing after it. A comment starts with '#'.";
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
        return "Control characters other than tabs and line breaks may only appear in strings and "
               "comments.";
    }
    return std::string(bareKeyHint);
}

} // namespace

Mistake highCharacter(std::size_t at, const Character& character)
{
    char escape[16] = {};
    std::snprintf(escape, sizeof(escape), "\\U%08X", static_cast<unsigned>(character.code));
    return {Severity::error,
            at,
            at + character.length,
            "high-character",
            "the character " + codeName(character.code) + " is above U+FFFF",
            "Emoji and other characters above U+FFFF are not allowed, not even in comments. In a "
            "string with double quotes, write " +
                std::string(escape) + " instead."};
}

Mistake malformedBytes(std::string_view text, std::size_t at, Severity severity)
{
    char byte[8] = {};
    std::snprintf(byte, sizeof(byte), "%02X",
                  static_cast<unsigned>(static_cast<unsigned char>(text[at])));
    return {severity,
            at,
            at + 1,
            "not-utf8",
            "the byte " + std::string(byte) + " is not valid UTF-8",
            "It may be read as one character together with the bytes after it. Save the file as "
            "UTF-8."};
}

Mistake loneCarriageReturn(std::size_t at)
{
    return {Severity::error,
            at,
            at + 1,
            "lone-carriage-return",
            "a carriage return without a line feed after it",
            "Lines end with a line feed (LF), or with a carriage return and a line feed (CR LF)."};
}

Mistake strayCharacter(std::string_view text, std::size_t at)
{
    const Character character = characterAt(text, at);
    const std::string seen = shown(text, character, at).text;
    const bool isPlain = character.code > 0x20 && character.code < 0x7F;
    const std::string name = isPlain ? '\'' + seen + '\''
                             : seen.size() == character.length && character.code > 0xA0
                                 ? '\'' + seen + "' (" + codeName(character.code) + ')'
                                 : codeName(character.code);
    return {Severity::error,
            at,
            at + character.length,
            "stray-character",
            "the character " + name + " is not allowed here",
            hintFor(character.code)};
}

} // namespace vorn::parsers::toml::diagnosis
