// Strings and their escapes.
#include "rules.h"

#include "matching.h"
#include "scan/escape.h"

namespace vorn::parsers::toml::rules
{
namespace
{

constexpr ANTLR3_UCHAR basicQuote = '"';
constexpr ANTLR3_UCHAR literalQuote = '\'';

// A string on one line.
bool matchLine(pANTLR3_LEXER lexer, ANTLR3_UCHAR quote)
{
    if (!match(lexer, static_cast<char>(quote)))
    {
        return false;
    }
    for (;;)
    {
        const ANTLR3_UCHAR c = peek(lexer);
        if (c == quote || c == '\n' || c > lastCharacter)
        {
            return match(lexer, static_cast<char>(quote));
        }
        if (c == '\\' && quote == basicQuote)
        {
            if (!escape(lexer))
            {
                return false;
            }
        }
        else
        {
            consume(lexer);
        }
    }
}

// How many of the next characters are quotes, up to a limit.
int quotesAhead(pANTLR3_LEXER lexer, ANTLR3_UCHAR quote, int limit)
{
    int count = 0;
    while (count < limit && peek(lexer, count + 1) == quote)
    {
        ++count;
    }
    return count;
}

// A string on several lines.  The content goes on after one or two quotes; of four at the
// end, the first belongs to it.
bool matchLines(pANTLR3_LEXER lexer, ANTLR3_UCHAR quote)
{
    const bool basic = quote == basicQuote;
    const char* const delimiter = basic ? "\"\"\"" : "'''";
    if (!match(lexer, delimiter))
    {
        return false;
    }
    for (;;)
    {
        int quotes = quotesAhead(lexer, quote, 3);
        if (quotes == 3 || peek(lexer, quotes + 1) > lastCharacter)
        {
            break;
        }
        for (; quotes > 0; --quotes)
        {
            consume(lexer);
        }
        if (basic && peek(lexer) == '\\')
        {
            if (!mlEscape(lexer))
            {
                return false;
            }
        }
        else
        {
            consume(lexer);
        }
    }
    if (quotesAhead(lexer, quote, 4) == 4)
    {
        consume(lexer);
    }
    return match(lexer, delimiter);
}

} // namespace

bool basicString(pANTLR3_LEXER lexer)
{
    return matchLine(lexer, basicQuote) && store(lexer, TokenType::basicString);
}

bool mlBasicString(pANTLR3_LEXER lexer)
{
    return matchLines(lexer, basicQuote) && store(lexer, TokenType::mlBasicString);
}

bool literalString(pANTLR3_LEXER lexer)
{
    return matchLine(lexer, literalQuote) && store(lexer, TokenType::literalString);
}

bool mlLiteralString(pANTLR3_LEXER lexer)
{
    return matchLines(lexer, literalQuote) && store(lexer, TokenType::mlLiteralString);
}

bool escape(pANTLR3_LEXER lexer)
{
    if (!match(lexer, '\\'))
    {
        return false;
    }
    const int digits = escapeDigits(peek(lexer));
    if (digits == unknownEscape)
    {
        return failChoice(lexer, Decision::escape);
    }
    consume(lexer);
    return match(lexer, hexDigit, digits);
}

bool mlEscape(pANTLR3_LEXER lexer)
{
    if (peek(lexer) != '\\')
    {
        return failChoice(lexer, Decision::mlEscape);
    }
    const ANTLR3_UCHAR c = peek(lexer, 2);
    if (escapeDigits(c) != unknownEscape)
    {
        return escape(lexer);
    }
    if (c != '\n' && c != '\r')
    {
        return failChoice(lexer, Decision::mlEscape, states::afterBackslash);
    }
    consume(lexer);
    return (c == '\n' || match(lexer, '\r')) && match(lexer, '\n');
}

bool fourHexDigits(pANTLR3_LEXER lexer)
{
    return match(lexer, hexDigit, 4);
}
bool eightHexDigits(pANTLR3_LEXER lexer)
{
    return match(lexer, hexDigit, 8);
}

} // namespace vorn::parsers::toml::rules
