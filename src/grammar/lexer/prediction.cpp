#include "prediction.h"

#include <string_view>

#include "lookahead.h"

namespace vorn::parsers::toml
{
namespace
{

using rules::Rule;

Rule chooseString(Lookahead& ahead, Rule line, Rule lines, DecisionState state)
{
    const ANTLR3_UCHAR quote = ahead.next();
    ahead.advance();
    const ANTLR3_UCHAR c = ahead.next();
    if (c == quote)
    {
        ahead.advance();
        return ahead.next() == quote ? lines : line;
    }
    return c != '\n' && c <= lastCharacter ? line : ahead.fail(state);
}

Rule chooseKeyword(Lookahead& ahead, const char* word, Rule rule)
{
    for (; *word != '\0'; ++word)
    {
        if (!ahead.take(*word))
        {
            return rules::bareKey;
        }
    }
    return ahead.chooseOrKey(rule);
}

// Digits with underscores go on after the first: they make a token of the rule, or belong to
// a key.
Rule chooseDigits(Lookahead& ahead, CharacterClass kind, Rule rule)
{
    for (;;)
    {
        ahead.takeAll(kind);
        if (!ahead.take('_'))
        {
            return ahead.chooseOrKey(rule);
        }
        if (!ahead.take(kind))
        {
            return rules::bareKey;
        }
    }
}

// An integer has ended, with or without a minus sign.
Rule chooseAfterInteger(Lookahead& ahead)
{
    const ANTLR3_UCHAR c = ahead.next();
    if (c == '.')
    {
        return rules::floating;
    }
    if (!isExponentMark(c))
    {
        return ahead.chooseOrKey(rules::decInt);
    }
    ahead.advance();
    if (ahead.take('+'))
    {
        return rules::floating;
    }
    ahead.take('-');
    return ahead.take(digit) ? chooseDigits(ahead, digit, rules::floating) : rules::bareKey;
}

// The first digits of an integer that does not start with zero have ended.
Rule chooseInteger(Lookahead& ahead)
{
    while (ahead.take('_'))
    {
        if (!ahead.take(digit))
        {
            return rules::bareKey;
        }
        ahead.takeAll(digit);
    }
    return chooseAfterInteger(ahead);
}

Rule chooseAfterTime(const Lookahead& ahead)
{
    const ANTLR3_UCHAR c = ahead.next();
    return isSign(c) || c == 'Z' ? rules::offsetDateTime : rules::localDateTime;
}

// The time of a date-time, from the character with this index on.
Rule chooseDateTime(Lookahead& ahead, unsigned index)
{
    constexpr std::string_view shape = "00:00:00";
    static_assert(states::inTime.size() == shape.size());
    for (; index < shape.size(); ++index)
    {
        if (!(shape[index] == ':' ? ahead.take(':') : ahead.take(digit)))
        {
            return ahead.fail(states::inTime[index]);
        }
    }
    if (ahead.take('.'))
    {
        if (!ahead.take(digit))
        {
            return ahead.fail(states::afterPointOfTime);
        }
        ahead.takeAll(digit);
    }
    return chooseAfterTime(ahead);
}

// After a year and a hyphen.  A whole date before a blank, and one before an hour with a
// colon, leave the date-times only.
Rule chooseDate(Lookahead& ahead)
{
    const bool whole = ahead.take(digit) && ahead.take(digit) && ahead.take('-') &&
                       ahead.take(digit) && ahead.take(digit);
    if (!whole)
    {
        return rules::bareKey;
    }
    if (ahead.take(' '))
    {
        return chooseDateTime(ahead, 0);
    }
    if (ahead.take('T') || ahead.take('t'))
    {
        const bool hour = ahead.take(digit) && ahead.take(digit) && ahead.take(':');
        return hour ? chooseDateTime(ahead, 3) : rules::bareKey;
    }
    return ahead.chooseOrKey(rules::localDate);
}

Rule chooseRadix(Lookahead& ahead, CharacterClass kind, Rule rule)
{
    ahead.advance();
    return ahead.take(kind) ? chooseDigits(ahead, kind, rule) : rules::bareKey;
}

Rule chooseZero(Lookahead& ahead)
{
    ahead.advance();
    switch (ahead.next())
    {
    case 'x':
        return chooseRadix(ahead, hexDigit, rules::hexInt);
    case 'o':
        return chooseRadix(ahead, octalDigit, rules::octInt);
    case 'b':
        return chooseRadix(ahead, binaryDigit, rules::binInt);
    default:
        break;
    }
    if (!ahead.take(digit))
    {
        return chooseAfterInteger(ahead);
    }
    if (ahead.next() == ':')
    {
        return rules::localTime;
    }
    const bool year = ahead.take(digit) && ahead.take(digit) && ahead.take('-');
    return year ? chooseDate(ahead) : rules::bareKey;
}

Rule chooseNumber(Lookahead& ahead)
{
    unsigned digits = 0;
    while (ahead.take(digit))
    {
        ++digits;
    }
    if (digits == 2 && ahead.next() == ':')
    {
        return rules::localTime;
    }
    return digits == 4 && ahead.take('-') ? chooseDate(ahead) : chooseInteger(ahead);
}

Rule chooseMinus(Lookahead& ahead)
{
    ahead.advance();
    switch (ahead.next())
    {
    case '0':
        ahead.advance();
        return chooseAfterInteger(ahead);
    case 'i':
        return chooseKeyword(ahead, "inf", rules::inf);
    case 'n':
        return chooseKeyword(ahead, "nan", rules::nan);
    default:
        if (!ahead.take(digit))
        {
            return rules::bareKey;
        }
        ahead.takeAll(digit);
        return chooseInteger(ahead);
    }
}

// No key has a plus sign: only numbers are left.
Rule choosePlus(Lookahead& ahead)
{
    ahead.advance();
    if (ahead.next() == 'i')
    {
        return rules::inf;
    }
    if (ahead.next() == 'n')
    {
        return rules::nan;
    }
    if (!ahead.take('0'))
    {
        if (!ahead.take(digit))
        {
            return ahead.fail(states::afterPlus);
        }
        ahead.takeAll(digit);
        while (ahead.take('_'))
        {
            if (!ahead.take(digit))
            {
                return ahead.fail(states::afterUnderscoreOfPlus);
            }
            ahead.takeAll(digit);
        }
    }
    const ANTLR3_UCHAR c = ahead.next();
    return c == '.' || isExponentMark(c) ? rules::floating : rules::decInt;
}

Rule chooseWord(Lookahead& ahead)
{
    switch (ahead.next())
    {
    case '0':
        return chooseZero(ahead);
    case '-':
        return chooseMinus(ahead);
    case 't':
        return chooseKeyword(ahead, "true", rules::boolean);
    case 'f':
        return chooseKeyword(ahead, "false", rules::boolean);
    case 'i':
        return chooseKeyword(ahead, "inf", rules::inf);
    case 'n':
        return chooseKeyword(ahead, "nan", rules::nan);
    default:
        break;
    }
    if (is(ahead.next(), digit))
    {
        return chooseNumber(ahead);
    }
    return is(ahead.next(), keyCharacter) ? rules::bareKey : ahead.fail(states::start);
}

} // namespace

Rule predictToken(pANTLR3_LEXER lexer)
{
    Lookahead ahead(lexer);
    switch (ahead.next())
    {
    case ',':
        return rules::comma;
    case '.':
        return rules::dot;
    case '=':
        return rules::equals;
    case '[':
        return rules::openBracket;
    case ']':
        return rules::closeBracket;
    case '{':
        return rules::openBrace;
    case '}':
        return rules::closeBrace;
    case ' ':
    case '\t':
        return rules::blanks;
    case '\n':
    case '\r':
        return rules::newline;
    case '#':
        return rules::comment;
    case '"':
        return chooseString(ahead, rules::basicString, rules::mlBasicString,
                            states::afterQuotationMark);
    case '\'':
        return chooseString(ahead, rules::literalString, rules::mlLiteralString,
                            states::afterApostrophe);
    case '+':
        return choosePlus(ahead);
    default:
        return chooseWord(ahead);
    }
}

} // namespace vorn::parsers::toml
