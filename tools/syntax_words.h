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

    // The token at an index; that of the end behind the last one.
    DocumentToken at(std::size_t index) const
    {
        return index < tokens.size() ? tokens[index]
                                     : DocumentToken{TokenType::endOfInput, end, end};
    }
    std::string_view textOf(const DocumentToken& token) const
    {
        return text.substr(token.begin, token.end - token.begin);
    }
};

Finding findingOf(const SyntaxError& error, const TokenizedText& document);

} // namespace tool
