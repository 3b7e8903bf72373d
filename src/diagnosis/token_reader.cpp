#include "token_reader.h"

#include "lexing.h"

namespace vorn::parsers::toml::diagnosis
{

struct TokenReader::Running
{
    Lexing lexing;
};

TokenReader::TokenReader(std::string_view text, std::size_t begin, Errors errors)
    : running_(new Running{Lexing(text, begin, errors_, errors == Errors::independent)})
{
}

TokenReader::~TokenReader() = default;

DocumentToken TokenReader::next()
{
    Lexing& lexing = running_->lexing;
    const ANTLR3_RECOGNIZER_SHARED_STATE& state = *lexing.lexer->pLexer->rec->state;
    const pANTLR3_COMMON_TOKEN token = state.tokSource->nextToken(state.tokSource);
    lexing.collection.thrown.pass();
    if (token->type == ANTLR3_TOKEN_EOF)
    {
        const std::size_t end = lexing.place();
        return {TokenType::endOfInput, end, end};
    }
    const DocumentToken found = lexing.documentToken(*token);
    // The next token takes the same place.
    state.tokFactory->reset(state.tokFactory);
    return found;
}

} // namespace vorn::parsers::toml::diagnosis
