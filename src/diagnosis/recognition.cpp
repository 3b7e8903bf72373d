#include "recognition.h"

#include <new>

#include "document_survey.h"
#include "error_collection.h"
#include "lexing.h"
#include "pipeline/buffer_hints.h"
#include "pipeline/follow_stack.h"
#include "pipeline/memory_need.h"
#include "scan/utf8.h"
#include "statements.h"

#include "pipeline/recognisers.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

// What is kept here for a token, in vectors that grow by copying.
constexpr std::size_t needOfToken = 3 * (sizeof(DocumentToken) + 2 * sizeof(std::size_t));

void requireMemoryFor(const Part& part, pANTLR3_LEXER lexer)
{
    const DocumentSurvey seen = survey(lexer);
    requireMemory(memoryForReading(part.end - part.begin, seen.tokens, seen.brackets) +
                  seen.tokens * needOfToken);
}

// The tokens that the parser's stream has read.
std::vector<DocumentToken> tokensOf(const ANTLR3_COMMON_TOKEN_STREAM& stream, const Lexing& lexing)
{
    const pANTLR3_VECTOR lexed = stream.tokens;
    std::vector<DocumentToken> tokens;
    tokens.reserve(lexed->count);
    for (ANTLR3_UINT32 index = 0; index < lexed->count; ++index)
    {
        tokens.push_back(
            lexing.documentToken(*static_cast<pANTLR3_COMMON_TOKEN>(lexed->get(lexed, index))));
    }
    return tokens;
}

// Parses again, from the next statement on, wherever the parser is lost.
void parseOn(TomlParser& parser, const ANTLR3_COMMON_TOKEN_STREAM& stream,
             const std::vector<DocumentToken>& lexed, SyntaxErrors& collection)
{
    const Statements statements(lexed);
    const pANTLR3_INT_STREAM tokens = stream.tstream->istream;
    while (collection.lostAt)
    {
        const std::size_t next = statements.nextAfter(*collection.lostAt);
        collection.lostAt.reset();
        if (next >= lexed.size())
        {
            return;
        }
        tokens->seek(tokens, static_cast<ANTLR3_MARKER>(next));
        ANTLR3_RECOGNIZER_SHARED_STATE& state = *parser.pParser->rec->state;
        state.error = ANTLR3_FALSE;
        state.failed = ANTLR3_FALSE;
        state.errorRecovery = ANTLR3_FALSE;
        state.lastErrorIndex = -1;
        parser.document(&parser);
    }
}

} // namespace

Recognition recognise(std::string_view text, const Part& part)
{
    Recognition found;
    found.part = part;
    Lexing lexing(text.substr(0, part.end), part.begin, found.lexicalErrors, false);
    requireMemoryFor(part, lexing.lexer->pLexer);
    const auto tokens = owned(antlr3CommonTokenStreamSourceNew(
        tokenBufferHint, lexing.lexer->pLexer->rec->state->tokSource));
    const auto parser = owned(TomlParserNew(tokens.get()));
    SyntaxErrors syntax{found.syntaxErrors, {}, {}};
    collectErrors(parser->pParser->rec, syntax);
    const FollowStack follows(parser->pParser);
    parser->document(parser.get());
    found.tokens = tokensOf(*tokens, lexing);
    found.syntaxErrorsOfLibrary = found.syntaxErrors.size();
    parseOn(*parser, *tokens, found.tokens, syntax);
    lexing.collection.thrown.pass();
    syntax.thrown.pass();
    found.end = lexing.place();
    found.isTooDeep = follows.levelsWithoutRoom() > 0;
    return found;
}

Part wholeOf(std::string_view text)
{
    return {0, text.size(), {TokenType::endOfInput, text.size(), text.size()}};
}

} // namespace vorn::parsers::toml::diagnosis
