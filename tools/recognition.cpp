#include "recognition.h"

#include <new>

#include "error_collection.h"
#include "pipeline/buffer_hints.h"
#include "pipeline/document_survey.h"
#include "pipeline/follow_stack.h"
#include "pipeline/input_stream.h"
#include "pipeline/memory_need.h"
#include "pipeline/owned.h"
#include "statements.h"

#include "pipeline/recognisers.h"

namespace tool
{
namespace
{

namespace toml = vorn::parsers::toml;

// What is kept here for a token, in vectors that grow by copying.
constexpr std::size_t needOfToken = 3 * (sizeof(DocumentToken) + 2 * sizeof(std::size_t));

using toml::Owned;

// What the runtime has made; it says by null that there is no memory.
template <typename Object>
Owned<Object> owned(Object* made)
{
    if (made == nullptr)
    {
        throw std::bad_alloc();
    }
    return Owned<Object>(made);
}

DocumentToken documentToken(const ANTLR3_COMMON_TOKEN& token, const Collection& collection)
{
    return {static_cast<TokenType>(token.type), collection.offset(token.start),
            collection.offset(token.stop) + 1};
}

// The lexer of a document, whose errors are collected.
struct Lexing
{
    Lexing(const std::string& text, Recognition& found)
        : input(owned(toml::openStream(text))),
          lexer(owned(TomlLexerNew(input.get()))), collection{found, *input, {}, {}}
    {
        collectLexicalErrors(lexer->pLexer->rec, collection);
    }

    std::size_t place() const
    {
        return collection.offset(reinterpret_cast<ANTLR3_MARKER>(input->nextChar));
    }

    const Owned<ANTLR3_INPUT_STREAM> input;
    const Owned<TomlLexer> lexer;
    Collection collection;
};

bool hasMemoryFor(const std::string& text, pANTLR3_LEXER lexer)
{
    const toml::DocumentSurvey seen = toml::survey(lexer);
    return toml::isMemoryLeft(toml::memoryForReading(text.size(), seen) +
                              seen.tokens * needOfToken);
}

// Parses the document, and again from the next statement on wherever the parser is lost.
void parse(TomlParser& parser, ANTLR3_COMMON_TOKEN_STREAM& stream, Collection& collection)
{
    Recognition& found = collection.found;
    parser.document(&parser);
    const pANTLR3_VECTOR lexed = stream.tokens;
    found.tokens.reserve(lexed->count);
    for (ANTLR3_UINT32 index = 0; index < lexed->count; ++index)
    {
        found.tokens.push_back(documentToken(
            *static_cast<pANTLR3_COMMON_TOKEN>(lexed->get(lexed, index)), collection));
    }
    found.syntaxErrorsOfLibrary = found.syntaxErrors.size();
    const Statements statements(found.tokens);
    const pANTLR3_INT_STREAM tokens = stream.tstream->istream;
    while (collection.lostAt)
    {
        const std::size_t next = statements.nextAfter(*collection.lostAt);
        collection.lostAt.reset();
        if (next >= found.tokens.size())
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

Recognition findTokens(const std::string& text)
{
    Recognition found;
    if (!toml::isStreamable(text) || !toml::isMemoryLeft(toml::memoryForSurvey(text.size())))
    {
        found.refusal = Refusal::tooLarge;
        return found;
    }
    Lexing lexing(text, found);
    const ANTLR3_RECOGNIZER_SHARED_STATE& state = *lexing.lexer->pLexer->rec->state;
    for (;;)
    {
        const pANTLR3_COMMON_TOKEN token = state.tokSource->nextToken(state.tokSource);
        lexing.collection.thrown.pass();
        if (token->type == ANTLR3_TOKEN_EOF)
        {
            found.end = lexing.place();
            return found;
        }
        found.tokens.push_back(documentToken(*token, lexing.collection));
        // The next token takes the same place.
        state.tokFactory->reset(state.tokFactory);
    }
}

Recognition recognise(const std::string& text)
{
    Recognition found;
    found.refusal = toml::isStreamable(text) ? toml::refusalOf(text).reason : Refusal::tooLarge;
    if (found.refusal != Refusal::none)
    {
        return found;
    }
    Lexing lexing(text, found);
    if (!hasMemoryFor(text, lexing.lexer->pLexer))
    {
        found.refusal = Refusal::tooLarge;
        return found;
    }
    const auto tokens = owned(antlr3CommonTokenStreamSourceNew(
        toml::tokenBufferHint, lexing.lexer->pLexer->rec->state->tokSource));
    const auto parser = owned(TomlParserNew(tokens.get()));
    collectSyntaxErrors(parser->pParser->rec, lexing.collection);
    const toml::FollowStack follows(parser->pParser);
    parse(*parser, *tokens, lexing.collection);
    lexing.collection.thrown.pass();
    found.end = lexing.place();
    if (follows.levelsWithoutRoom() > 0)
    {
        found.refusal = Refusal::tooDeep;
    }
    return found;
}

} // namespace tool
