#pragma once

#include <string_view>

#include "direct/token_cursor.h"
#include "token_reader.h"

namespace vorn::parsers::toml::diagnosis
{

// The lexer's tokens, as the direct reader asks for tokens.  What the scanner leaves to the
// lexer, and the place where the reader stops, are known here.
class LexerCursor
{
public:
    LexerCursor(std::string_view text, std::size_t begin)
        : text_(text), reader_(text, begin, TokenReader::Errors::independent)
    {
        next_ = reader_.next();
    }

    bool atEnd() const { return next_.type == TokenType::endOfInput; }

    bool isNext(char c) const { return next_.type == typeOf(c); }

    bool take(char c)
    {
        hasJudged_ = true;
        if (!isNext(c))
        {
            return false;
        }
        next_ = reader_.next();
        return true;
    }

    bool takeNewline()
    {
        hasJudged_ = true;
        if (next_.type != TokenType::newline)
        {
            return false;
        }
        next_ = reader_.next();
        return true;
    }

    TakenToken take()
    {
        taken_ = next_;
        hasJudged_ = atEnd();
        if (!atEnd())
        {
            next_ = reader_.next();
        }
        return {taken_.type, text_.substr(taken_.begin, taken_.end - taken_.begin)};
    }

    const char* position() const { return text_.data() + next_.begin; }

    // After a refusal, the token that does not fit: the one that has been taken, unless the
    // reader has asked for the next one since, for which that one must have fitted.
    const DocumentToken& refused() const { return hasJudged_ ? next_ : taken_; }

    const std::vector<LexicalError>& errors() const { return reader_.errors(); }

private:
    // The lexer reads some bytes that are not UTF-8 as one of these characters, too.
    static TokenType typeOf(char c)
    {
        switch (c)
        {
        case ',':
            return TokenType::comma;
        case '.':
            return TokenType::dot;
        case '=':
            return TokenType::equals;
        case '[':
            return TokenType::openBracket;
        case ']':
            return TokenType::closeBracket;
        case '{':
            return TokenType::openBrace;
        case '}':
            return TokenType::closeBrace;
        default:
            return TokenType::none;
        }
    }

    std::string_view text_;
    TokenReader reader_;
    DocumentToken next_ = {};
    DocumentToken taken_ = {};
    bool hasJudged_ = true;
};

} // namespace vorn::parsers::toml::diagnosis
