#include "document_survey.h"

#include "grammar/lexer/input_position.h"
#include "grammar/lexer/matching.h"
#include "pipeline/unreported_errors.h"

namespace vorn::parsers::toml::diagnosis
{

DocumentSurvey survey(pANTLR3_LEXER lexer)
{
    const ANTLR3_RECOGNIZER_SHARED_STATE& state = *lexer->rec->state;
    const UnreportedErrors unreported(lexer->rec);
    const InputPosition start(lexer->input);
    DocumentSurvey seen;
    for (;;)
    {
        const pANTLR3_COMMON_TOKEN token = state.tokSource->nextToken(state.tokSource);
        if (token->type == ANTLR3_TOKEN_EOF)
        {
            break;
        }
        ++seen.tokens;
        seen.brackets += opensLevel(token->type) ? 1 : 0;
        // The next token takes the same place.
        state.tokFactory->reset(state.tokFactory);
    }
    start.goBack();
    lexer->rec->reset(lexer->rec);
    return seen;
}

} // namespace vorn::parsers::toml::diagnosis
