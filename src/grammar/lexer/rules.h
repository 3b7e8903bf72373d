// The rules of the lexer, exactly as Toml.g has them.
//
// They match character by character, through the runtime, and fail as the grammar's rules
// fail: they are for text that is no whole, well-formed token.  Each returns whether it
// matched.
#pragma once

#include <antlr3.h>

namespace vorn::parsers::toml::rules
{

using Rule = bool (*)(pANTLR3_LEXER);

// Punctuation, blanks, keys
bool comma(pANTLR3_LEXER lexer);
bool dot(pANTLR3_LEXER lexer);
bool equals(pANTLR3_LEXER lexer);
bool openBracket(pANTLR3_LEXER lexer);
bool closeBracket(pANTLR3_LEXER lexer);
bool openBrace(pANTLR3_LEXER lexer);
bool closeBrace(pANTLR3_LEXER lexer);
bool blanks(pANTLR3_LEXER lexer);
bool newline(pANTLR3_LEXER lexer);
bool comment(pANTLR3_LEXER lexer);
bool boolean(pANTLR3_LEXER lexer);
bool bareKey(pANTLR3_LEXER lexer);
bool letter(pANTLR3_LEXER lexer);

// Strings
bool basicString(pANTLR3_LEXER lexer);
bool mlBasicString(pANTLR3_LEXER lexer);
bool literalString(pANTLR3_LEXER lexer);
bool mlLiteralString(pANTLR3_LEXER lexer);
bool escape(pANTLR3_LEXER lexer);
bool mlEscape(pANTLR3_LEXER lexer);
bool fourHexDigits(pANTLR3_LEXER lexer);
bool eightHexDigits(pANTLR3_LEXER lexer);

// Numbers
bool floating(pANTLR3_LEXER lexer);
bool fraction(pANTLR3_LEXER lexer);
bool exponent(pANTLR3_LEXER lexer);
bool zeroPrefixableInt(pANTLR3_LEXER lexer);
bool inf(pANTLR3_LEXER lexer);
bool nan(pANTLR3_LEXER lexer);
bool decInt(pANTLR3_LEXER lexer);
bool hexInt(pANTLR3_LEXER lexer);
bool octInt(pANTLR3_LEXER lexer);
bool binInt(pANTLR3_LEXER lexer);
bool anyDigit(pANTLR3_LEXER lexer);
bool digitFrom1(pANTLR3_LEXER lexer);
bool hexadecimalDigit(pANTLR3_LEXER lexer);
bool digitTo7(pANTLR3_LEXER lexer);
bool digitTo1(pANTLR3_LEXER lexer);

// Dates and times
bool offsetDateTime(pANTLR3_LEXER lexer);
bool localDateTime(pANTLR3_LEXER lexer);
bool localDate(pANTLR3_LEXER lexer);
bool localTime(pANTLR3_LEXER lexer);
bool twoDigits(pANTLR3_LEXER lexer);
bool fourDigits(pANTLR3_LEXER lexer);
bool dateTimeDelimiter(pANTLR3_LEXER lexer);
bool secondFraction(pANTLR3_LEXER lexer);
bool numericOffset(pANTLR3_LEXER lexer);
bool offset(pANTLR3_LEXER lexer);
bool partialTime(pANTLR3_LEXER lexer);
bool fullDate(pANTLR3_LEXER lexer);
bool fullTime(pANTLR3_LEXER lexer);

} // namespace vorn::parsers::toml::rules
