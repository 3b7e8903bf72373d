#include "recognition.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <new>
#include <optional>

#include "document_depth.h"
#include "document_survey.h"
#include "error_display.h"
#include "follow_stack.h"
#include "held_exception.h"
#include "memory_need.h"
#include "stack_room.h"
#include "statements.h"

#include "grammar/recognisers.h"

namespace tool
{
namespace
{

namespace toml = vorn::parsers::toml;

constexpr ANTLR3_UINT32 tokenBufferHint = 1025;

// What is kept here for a token, in vectors that grow by copying.
constexpr std::size_t needOfToken = 3 * (sizeof(DocumentToken) + 2 * sizeof(std::size_t));

struct Free
{
    template <typename Object>
    void operator()(Object* object) const
    {
        object->free(object);
    }
    void operator()(pANTLR3_INPUT_STREAM input) const { input->close(input); }
};

template <typename Object>
using Owned = std::unique_ptr<Object, Free>;

// What the displays of errors add to.
struct Collection
{
    Recognition& found;
    const ANTLR3_INPUT_STREAM& input;
    toml::HeldException thrown;
    std::optional<std::size_t> lostAt; // the token at which the parser gave up

    std::size_t offset(ANTLR3_MARKER position) const
    {
        // The runtime's positions are addresses of the text.
        return static_cast<std::size_t>(position - reinterpret_cast<ANTLR3_MARKER>(input.data));
    }
};

Collection& collectionOf(pANTLR3_BASE_RECOGNIZER recogniser)
{
    return *static_cast<Collection*>(recogniser->state->userp);
}

ErrorKind kindOf(ANTLR3_UINT32 type)
{
    switch (type)
    {
    case ANTLR3_RECOGNITION_EXCEPTION:
        return ErrorKind::recognition;
    case ANTLR3_NO_VIABLE_ALT_EXCEPTION:
        return ErrorKind::noAlternative;
    case ANTLR3_MISMATCHED_SET_EXCEPTION:
        return ErrorKind::mismatchedSet;
    case ANTLR3_EARLY_EXIT_EXCEPTION:
        return ErrorKind::earlyExit;
    case ANTLR3_UNWANTED_TOKEN_EXCEPTION:
        return ErrorKind::unwantedToken;
    case ANTLR3_MISSING_TOKEN_EXCEPTION:
        return ErrorKind::missingToken;
    default:
        return ErrorKind::other;
    }
}

void addLexicalError(pANTLR3_BASE_RECOGNIZER recogniser, pANTLR3_UINT8*)
{
    Collection& collection = collectionOf(recogniser);
    collection.thrown.guard(
        [&]
        {
            const ANTLR3_EXCEPTION& error = *recogniser->state->exception;
            const auto next = reinterpret_cast<ANTLR3_MARKER>(collection.input.nextChar);
            // One more character is passed over behind the display.
            collection.found.lexicalErrors.push_back(
                {kindOf(error.type), error.decisionNum,
                 collection.offset(recogniser->state->tokenStartCharIndex),
                 collection.offset(error.index), collection.offset(next) + 1});
        });
    toml::forgetEarlierErrors(recogniser);
}

// Marks an exception that has been told.
constexpr ANTLR3_MARKER told = -1;

// Where the runtime cannot repair a mismatch it makes an exception only if it has none yet:
// one that has been told stands for that, and the parser is where the mismatch is.
SyntaxError syntaxErrorOf(const ANTLR3_EXCEPTION& error, pANTLR3_INT_STREAM tokens)
{
    if (error.index == told)
    {
        return {ErrorKind::recognition, static_cast<std::size_t>(tokens->index(tokens)), 0};
    }
    const ErrorKind kind = kindOf(error.type);
    // Of choices that look two tokens ahead, those with a state fail at the second.
    const bool isBehind = kind == ErrorKind::noAlternative && error.state != 0;
    return {kind, static_cast<std::size_t>(error.index) + (isBehind ? 1 : 0), 0};
}

void addSyntaxError(pANTLR3_BASE_RECOGNIZER recogniser, pANTLR3_UINT8*)
{
    Collection& collection = collectionOf(recogniser);
    const pANTLR3_EXCEPTION exception = recogniser->state->exception;
    const auto* const failed = static_cast<pANTLR3_PARSER>(recogniser->super);
    SyntaxError error = syntaxErrorOf(*exception, failed->tstream->istream);
    error.rules = recogniser->state->following->vector->count;
    exception->index = told;
    collection.thrown.guard([&] { collection.found.syntaxErrors.push_back(error); });
    toml::forgetEarlierErrors(recogniser);
}

// Where the rule of documents itself does not go on the parser would pass over all the
// rest.  It stays, to go on with the next statement.
void installRecovery(pANTLR3_BASE_RECOGNIZER parser)
{
    static const auto runtimeRecover = parser->recover;
    parser->recover = [](pANTLR3_BASE_RECOGNIZER recogniser)
    {
        if (recogniser->state->following->vector->count > 0)
        {
            runtimeRecover(recogniser);
            return;
        }
        auto* const failed = static_cast<pANTLR3_PARSER>(recogniser->super);
        const pANTLR3_INT_STREAM tokens = failed->tstream->istream;
        collectionOf(recogniser).lostAt = static_cast<std::size_t>(tokens->index(tokens));
        recogniser->state->error = ANTLR3_FALSE;
    };
}

void collect(pANTLR3_BASE_RECOGNIZER recogniser, Collection& collection,
             decltype(ANTLR3_BASE_RECOGNIZER::displayRecognitionError) display)
{
    recogniser->state->userp = &collection;
    recogniser->displayRecognitionError = display;
}

DocumentToken documentToken(const ANTLR3_COMMON_TOKEN& token, const Collection& collection)
{
    return {static_cast<TokenType>(token.type), collection.offset(token.start),
            collection.offset(token.stop) + 1};
}

// The runtime takes its input as mutable bytes, but only reads them.
pANTLR3_UINT8 runtimeBytes(const char* text)
{
    return reinterpret_cast<pANTLR3_UINT8>(const_cast<char*>(text));
}

Owned<ANTLR3_INPUT_STREAM> openInput(const std::string& text)
{
    return Owned<ANTLR3_INPUT_STREAM>(
        antlr3StringStreamNew(runtimeBytes(text.data()), ANTLR3_ENC_UTF8,
                              static_cast<ANTLR3_UINT32>(text.size()), runtimeBytes("toml")));
}

bool isCountable(const std::string& text)
{
    return std::uint64_t{text.size()} <= std::numeric_limits<ANTLR3_UINT32>::max();
}

// What the library asks before it begins.
Refusal refusalOf(const std::string& text)
{
    if (!isCountable(text) || !toml::isMemoryLeft(toml::memoryForSurvey(text.size())))
    {
        return Refusal::tooLarge;
    }
    return toml::mayHaveRoomForLevels(toml::documentDepth(text)) ? Refusal::none : Refusal::tooDeep;
}

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
    if (!isCountable(text) || !toml::isMemoryLeft(toml::memoryForSurvey(text.size())))
    {
        found.refusal = Refusal::tooLarge;
        return found;
    }
    const Owned<ANTLR3_INPUT_STREAM> input = openInput(text);
    const Owned<TomlLexer> lexer(input != nullptr ? TomlLexerNew(input.get()) : nullptr);
    if (lexer == nullptr)
    {
        throw std::bad_alloc();
    }
    Collection collection{found, *input, {}, {}};
    collect(lexer->pLexer->rec, collection, addLexicalError);
    const ANTLR3_RECOGNIZER_SHARED_STATE& state = *lexer->pLexer->rec->state;
    for (;;)
    {
        const pANTLR3_COMMON_TOKEN token = state.tokSource->nextToken(state.tokSource);
        collection.thrown.pass();
        if (token->type == ANTLR3_TOKEN_EOF)
        {
            found.end = collection.offset(reinterpret_cast<ANTLR3_MARKER>(input->nextChar));
            return found;
        }
        found.tokens.push_back(documentToken(*token, collection));
        // The next token takes the same place.
        state.tokFactory->reset(state.tokFactory);
    }
}

Recognition recognise(const std::string& text)
{
    Recognition found;
    found.refusal = refusalOf(text);
    if (found.refusal != Refusal::none)
    {
        return found;
    }
    const Owned<ANTLR3_INPUT_STREAM> input = openInput(text);
    const Owned<TomlLexer> lexer(input != nullptr ? TomlLexerNew(input.get()) : nullptr);
    if (lexer == nullptr)
    {
        throw std::bad_alloc();
    }
    Collection collection{found, *input, {}, {}};
    collect(lexer->pLexer->rec, collection, addLexicalError);
    if (!hasMemoryFor(text, lexer->pLexer))
    {
        found.refusal = Refusal::tooLarge;
        return found;
    }
    const Owned<ANTLR3_COMMON_TOKEN_STREAM> tokens(
        antlr3CommonTokenStreamSourceNew(tokenBufferHint, lexer->pLexer->rec->state->tokSource));
    const Owned<TomlParser> parser(tokens != nullptr ? TomlParserNew(tokens.get()) : nullptr);
    if (parser == nullptr)
    {
        throw std::bad_alloc();
    }
    collect(parser->pParser->rec, collection, addSyntaxError);
    installRecovery(parser->pParser->rec);
    const toml::FollowStack follows(parser->pParser);
    parse(*parser, *tokens, collection);
    collection.thrown.pass();
    found.end = collection.offset(reinterpret_cast<ANTLR3_MARKER>(input->nextChar));
    if (follows.levelsWithoutRoom() > 0)
    {
        found.refusal = Refusal::tooDeep;
    }
    return found;
}

} // namespace tool
