// Dates and times.
#include "rules.h"

#include "matching.h"

namespace vorn::parsers::toml::rules
{
namespace
{

bool matchDateTime(pANTLR3_LEXER lexer)
{
    return fullDate(lexer) && dateTimeDelimiter(lexer) && partialTime(lexer);
}

} // namespace

bool offsetDateTime(pANTLR3_LEXER lexer)
{
    return matchDateTime(lexer) && offset(lexer) && store(lexer, TokenType::offsetDateTime);
}

bool localDateTime(pANTLR3_LEXER lexer)
{
    return matchDateTime(lexer) && store(lexer, TokenType::localDateTime);
}

bool localDate(pANTLR3_LEXER lexer)
{
    return fullDate(lexer) && store(lexer, TokenType::localDate);
}

bool localTime(pANTLR3_LEXER lexer)
{
    return partialTime(lexer) && store(lexer, TokenType::localTime);
}

bool twoDigits(pANTLR3_LEXER lexer)
{
    return match(lexer, digit, 2);
}
bool fourDigits(pANTLR3_LEXER lexer)
{
    return match(lexer, digit, 4);
}

bool dateTimeDelimiter(pANTLR3_LEXER lexer)
{
    const ANTLR3_UCHAR c = peek(lexer);
    return matchSet(lexer, c == ' ' || c == 'T' || c == 't');
}

bool secondFraction(pANTLR3_LEXER lexer)
{
    return match(lexer, '.') && (skip(lexer, digit) || failEarly(lexer));
}

bool numericOffset(pANTLR3_LEXER lexer)
{
    return matchSet(lexer, isSign(peek(lexer))) && twoDigits(lexer) && match(lexer, ':') &&
           twoDigits(lexer);
}

bool offset(pANTLR3_LEXER lexer)
{
    const ANTLR3_UCHAR c = peek(lexer);
    if (c == 'Z')
    {
        return match(lexer, 'Z');
    }
    return isSign(c) ? numericOffset(lexer) : failChoice(lexer, Decision::offset);
}

bool partialTime(pANTLR3_LEXER lexer)
{
    return twoDigits(lexer) && match(lexer, ':') && twoDigits(lexer) && match(lexer, ':') &&
           twoDigits(lexer) && (peek(lexer) != '.' || secondFraction(lexer));
}

bool fullDate(pANTLR3_LEXER lexer)
{
    return fourDigits(lexer) && match(lexer, '-') && twoDigits(lexer) && match(lexer, '-') &&
           twoDigits(lexer);
}

bool fullTime(pANTLR3_LEXER lexer)
{
    return partialTime(lexer) && offset(lexer);
}

} // namespace vorn::parsers::toml::rules
