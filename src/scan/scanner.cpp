#include "scanner.h"

#include "character_class.h"
#include "string_scanner.h"
#include "word_scanner.h"

namespace vorn::parsers::toml
{
namespace
{

// A run of line breaks, each a line feed with or without a carriage return before it.
Token scanNewlines(const char* begin, const char* end) noexcept
{
    const char* at = begin;
    for (;;)
    {
        if (at != end && *at == '\n')
        {
            ++at;
        }
        else if (end - at >= 2 && at[0] == '\r' && at[1] == '\n')
        {
            at += 2;
        }
        else
        {
            break;
        }
    }
    // The lexer takes a carriage return without a line feed for a line break that fails.
    const bool broken = at == begin || (at != end && *at == '\r');
    return broken ? Token{TokenType::none, nullptr} : Token{TokenType::newline, at};
}

} // namespace

Token scanMark(const char* begin, const char* end) noexcept
{
    switch (*begin)
    {
    case ',':
        return {TokenType::comma, begin + 1};
    case '.':
        return {TokenType::dot, begin + 1};
    case '=':
        return {TokenType::equals, begin + 1};
    case '[':
        return {TokenType::openBracket, begin + 1};
    case ']':
        return {TokenType::closeBracket, begin + 1};
    case '{':
        return {TokenType::openBrace, begin + 1};
    case '}':
        return {TokenType::closeBrace, begin + 1};
    case ' ':
    case '\t':
        return {TokenType::blanks, skip(begin, end, blank)};
    case '\n':
    case '\r':
        return scanNewlines(begin, end);
    case '#':
    {
        const char* const stop = commentEnd(begin, end);
        return {stop != nullptr ? TokenType::comment : TokenType::none, stop};
    }
    case '"':
        return scanBasic(begin, end);
    case '\'':
        return scanLiteral(begin, end);
    case '+':
        return scanPlus(begin, end);
    default:
        return {TokenType::none, nullptr};
    }
}

} // namespace vorn::parsers::toml
