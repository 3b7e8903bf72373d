// Numbers.
#include "rules.h"

#include "matching.h"

namespace vorn::parsers::toml::rules
{
namespace
{

// Digits with single underscores between them.
bool matchDigits(pANTLR3_LEXER lexer, CharacterClass kind)
{
    do
    {
        if (!match(lexer, kind))
        {
            return false;
        }
        skip(lexer, kind);
    } while (peek(lexer) == '_' && match(lexer, '_'));
    return true;
}

void skipSign(pANTLR3_LEXER lexer)
{
    if (isSign(peek(lexer)))
    {
        consume(lexer);
    }
}

bool matchRadix(pANTLR3_LEXER lexer, const char* prefix, CharacterClass kind, TokenType type)
{
    return match(lexer, prefix) && matchDigits(lexer, kind) && store(lexer, type);
}

bool matchSpecial(pANTLR3_LEXER lexer, const char* text, TokenType type)
{
    skipSign(lexer);
    return match(lexer, text) && store(lexer, type);
}

} // namespace

// An integer, which stores its own type first, with an exponent or a fraction.
bool floating(pANTLR3_LEXER lexer)
{
    if (!decInt(lexer))
    {
        return false;
    }
    const ANTLR3_UCHAR c = peek(lexer);
    if (!isExponentMark(c) && c != '.')
    {
        return failChoice(lexer, Decision::floating);
    }
    if (c == '.' && !fraction(lexer))
    {
        return false;
    }
    return (!isExponentMark(peek(lexer)) || exponent(lexer)) && store(lexer, TokenType::floating);
}

bool fraction(pANTLR3_LEXER lexer)
{
    return match(lexer, '.') && zeroPrefixableInt(lexer);
}

bool exponent(pANTLR3_LEXER lexer)
{
    if (!matchSet(lexer, isExponentMark(peek(lexer))))
    {
        return false;
    }
    skipSign(lexer);
    return zeroPrefixableInt(lexer);
}

bool zeroPrefixableInt(pANTLR3_LEXER lexer)
{
    return matchDigits(lexer, digit);
}

bool inf(pANTLR3_LEXER lexer)
{
    return matchSpecial(lexer, "inf", TokenType::inf);
}
bool nan(pANTLR3_LEXER lexer)
{
    return matchSpecial(lexer, "nan", TokenType::nan);
}

// A leading zero stands alone.
bool decInt(pANTLR3_LEXER lexer)
{
    skipSign(lexer);
    const ANTLR3_UCHAR first = peek(lexer);
    if (!is(first, digit))
    {
        return failChoice(lexer, Decision::decInt);
    }
    if (first == '0')
    {
        consume(lexer);
    }
    else if (!matchDigits(lexer, digit))
    {
        return false;
    }
    return store(lexer, TokenType::decInt);
}

bool hexInt(pANTLR3_LEXER lexer)
{
    return matchRadix(lexer, "0x", hexDigit, TokenType::hexInt);
}
bool octInt(pANTLR3_LEXER lexer)
{
    return matchRadix(lexer, "0o", octalDigit, TokenType::octInt);
}
bool binInt(pANTLR3_LEXER lexer)
{
    return matchRadix(lexer, "0b", binaryDigit, TokenType::binInt);
}

bool anyDigit(pANTLR3_LEXER lexer)
{
    return match(lexer, digit);
}
bool hexadecimalDigit(pANTLR3_LEXER lexer)
{
    return match(lexer, hexDigit);
}
bool digitTo7(pANTLR3_LEXER lexer)
{
    return match(lexer, octalDigit);
}
bool digitTo1(pANTLR3_LEXER lexer)
{
    return match(lexer, binaryDigit);
}

bool digitFrom1(pANTLR3_LEXER lexer)
{
    const ANTLR3_UCHAR c = peek(lexer);
    return matchSet(lexer, is(c, digit) && c != '0');
}

} // namespace vorn::parsers::toml::rules
