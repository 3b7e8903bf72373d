// The parser's errors in words.
#pragma once

#include <cstddef>
#include <string_view>

#include "finding.h"
#include "recognition.h"
#include "statements.h"

namespace tool
{

// A document with its tokens.
struct TokenizedText
{
    std::string_view text;
    const std::vector<DocumentToken>& tokens;
    const Statements& statements;
    std::size_t end; // where the lexer found the document's end

    // The token at an index; after the last one, that of the end.
    DocumentToken at(std::size_t index) const
    {
        return index < tokens.size() ? tokens[index]
                                     : DocumentToken{TokenType::endOfInput, end, end};
    }
    // The first token of the statement that the parser was in.
    std::size_t beginOf(const SyntaxError& error) const
    {
        // In an array that is not closed, the error is found where the next statement starts.
        constexpr std::size_t rulesOfKey = 3;
        const std::size_t begin = statements.beginOf(error.token);
        return error.token == begin && begin > 0 && error.rules > rulesOfKey
                   ? statements.beginOf(begin - 1)
                   : begin;
    }
    std::string_view textOf(const DocumentToken& token) const
    {
        return text.substr(token.begin, token.end - token.begin);
    }
};

Finding findingOf(const SyntaxError& error, const TokenizedText& document);

} // namespace tool
