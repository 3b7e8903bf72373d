#include "character_words.h"

#include <cstdio>
#include <string>

namespace tool
{
namespace
{

constexpr std::string_view bareKeyHint =
    "Bare keys are made of A-Z a-z 0-9 _ and -. Other keys, and all strings, have quotes.";

std::string hintFor(char32_t code)
{
    switch (code)
    {
    case ':':
        return "Between a key and its value stands '='.";
    case ';':
        return "Each pair has a line of its own, with nothing at its end. A comment begins with "
               "'#'.";
    case '/':
    case '!':
    case '%':
        return "A comment begins with '#'. Strings have quotes.";
    case '\\':
        return "A backslash stands in strings only.";
    case '(':
    case ')':
        return "Arrays are written [1, 2], inline tables {a = 1}. Strings have quotes.";
    case 0xA0:
        return "It looks like a blank. Write a blank or a tab.";
    case 0xFEFF:
        return "A byte order mark may stand at the begin of the file only.";
    case 0x2018:
    case 0x2019:
    case 0x201A:
    case 0x201C:
    case 0x201D:
    case 0x201E:
        return "It looks like a quote. Strings have \" or ' around them.";
    default:
        break;
    }
    if (code < 0x20 || code == 0x7F)
    {
        return "Control characters other than tabs and line breaks stand in strings and comments "
               "only.";
    }
    return std::string(bareKeyHint);
}

} // namespace

Finding highCharacter(std::size_t at, const Character& character)
{
    char escape[16] = {};
    std::snprintf(escape, sizeof(escape), "\\U%08X", static_cast<unsigned>(character.code));
    return {Severity::error, at, at + character.length,
            "the character " + codeName(character.code) + " is above U+FFFF",
            "Emoji and other characters above U+FFFF can stand nowhere, not even in comments. In a "
            "string with double quotes write " +
                std::string(escape) + " instead."};
}

Finding malformedBytes(std::string_view text, std::size_t at, Severity severity)
{
    char byte[8] = {};
    std::snprintf(byte, sizeof(byte), "%02X",
                  static_cast<unsigned>(static_cast<unsigned char>(text[at])));
    return {
        severity, at, at + 1, "the byte " + std::string(byte) + " is not UTF-8",
        "It may be read as one character together with what follows it. Save the file as UTF-8."};
}

Finding loneCarriageReturn(std::size_t at)
{
    return {Severity::error, at, at + 1, "a carriage return without a line feed after it",
            "Lines end with a line feed (LF), or with a carriage return and a line feed (CR LF)."};
}

Finding strayCharacter(std::string_view text, std::size_t at)
{
    const Character character = characterAt(text, at);
    const std::string seen = shown(text, character, at).text;
    const bool isPlain = character.code > 0x20 && character.code < 0x7F;
    const std::string name = isPlain ? '\'' + seen + '\''
                             : seen.size() == character.length && character.code > 0xA0
                                 ? '\'' + seen + "' (" + codeName(character.code) + ')'
                                 : codeName(character.code);
    return {Severity::error, at, at + character.length,
            "the character " + name + " cannot stand here", hintFor(character.code)};
}

} // namespace tool
