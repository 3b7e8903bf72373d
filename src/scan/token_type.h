// The types of the tokens, as the grammar numbers them.
#pragma once

namespace vorn::parsers::toml
{

enum class TokenType : int
{
    endOfInput = -1,
    none = 0, // no token
    bareKey = 5,
    basicString = 6,
    binInt = 7,
    boolean = 8,
    comment = 9,
    decInt = 11,
    floating = 20,
    hexInt = 27,
    inf = 29,
    literalString = 34,
    localDate = 35,
    localDateTime = 36,
    localTime = 37,
    mlBasicString = 39,
    mlLiteralString = 41,
    nan = 43,
    newline = 44,
    octInt = 46,
    offsetDateTime = 48,
    blanks = 66,
    comma = 69,
    dot = 70,
    equals = 71,
    openBracket = 72,
    closeBracket = 73,
    openBrace = 74,
    closeBrace = 75,
};

} // namespace vorn::parsers::toml
