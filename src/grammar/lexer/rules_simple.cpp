// Punctuation, blanks, keys.
#include "rules.h"

#include "matching.h"

namespace vorn::parsers::toml::rules
{
namespace
{

bool punctuation(pANTLR3_LEXER lexer, char c, TokenType type)
{
    return match(lexer, c) && store(lexer, type);
}

} // namespace

bool comma(pANTLR3_LEXER lexer)
{
    return punctuation(lexer, ',', TokenType::comma);
}
bool dot(pANTLR3_LEXER lexer)
{
    return punctuation(lexer, '.', TokenType::dot);
}
bool equals(pANTLR3_LEXER lexer)
{
    return punctuation(lexer, '=', TokenType::equals);
}
bool openBracket(pANTLR3_LEXER lexer)
{
    return punctuation(lexer, '[', TokenType::openBracket);
}
bool closeBracket(pANTLR3_LEXER lexer)
{
    return punctuation(lexer, ']', TokenType::closeBracket);
}
bool openBrace(pANTLR3_LEXER lexer)
{
    return punctuation(lexer, '{', TokenType::openBrace);
}
bool closeBrace(pANTLR3_LEXER lexer)
{
    return punctuation(lexer, '}', TokenType::closeBrace);
}

bool blanks(pANTLR3_LEXER lexer)
{
    return skip(lexer, blank) ? storeSkipped(lexer, TokenType::blanks) : failEarly(lexer);
}

bool newline(pANTLR3_LEXER lexer)
{
    bool any = false;
    for (ANTLR3_UCHAR c = peek(lexer); c == '\n' || c == '\r'; c = peek(lexer))
    {
        if ((c == '\r' && !match(lexer, '\r')) || !match(lexer, '\n'))
        {
            return false;
        }
        any = true;
    }
    return any ? store(lexer, TokenType::newline) : failEarly(lexer);
}

bool comment(pANTLR3_LEXER lexer)
{
    if (!match(lexer, '#'))
    {
        return false;
    }
    for (ANTLR3_UCHAR c = peek(lexer); c != '\n' && c <= lastCharacter; c = peek(lexer))
    {
        consume(lexer);
    }
    return storeSkipped(lexer, TokenType::comment);
}

bool boolean(pANTLR3_LEXER lexer)
{
    const ANTLR3_UCHAR c = peek(lexer);
    if (c != 't' && c != 'f')
    {
        return failChoice(lexer, Decision::boolean);
    }
    return match(lexer, c == 't' ? "true" : "false") && store(lexer, TokenType::boolean);
}

bool bareKey(pANTLR3_LEXER lexer)
{
    return skip(lexer, keyCharacter) ? store(lexer, TokenType::bareKey) : failEarly(lexer);
}

bool letter(pANTLR3_LEXER lexer)
{
    return match(lexer, CharacterClass::letter);
}

} // namespace vorn::parsers::toml::rules
