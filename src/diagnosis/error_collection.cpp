#include "error_collection.h"

#include <algorithm>
#include <string_view>

#include "lexical_error.h"
#include "pipeline/error_display.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

template <typename Collection>
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
    case ANTLR3_UNWANTED_TOKEN_EXCEPTION:
        return ErrorKind::unwantedToken;
    case ANTLR3_MISSING_TOKEN_EXCEPTION:
        return ErrorKind::missingToken;
    default:
        return ErrorKind::other;
    }
}

// Whether an error follows from the last one, to which it is then added: one on the same line
// does, and everything after one in a string of several lines.
bool isCovered(const LexicalError& error, LexicalErrors& collection)
{
    if (collection.found.empty())
    {
        return false;
    }
    const std::string_view text(static_cast<const char*>(collection.input.data),
                                collection.input.sizeBuf);
    LexicalError& last = collection.found.back();
    if (isInLongString(last, text))
    {
        return true;
    }
    const std::size_t from = std::min(last.resumed, error.begin);
    if (text.substr(from, error.begin - from).find('\n') != std::string_view::npos ||
        isInLongString(error, text))
    {
        return false;
    }
    last.resumed = error.resumed;
    return true;
}

void addLexicalError(pANTLR3_BASE_RECOGNIZER recogniser, pANTLR3_UINT8*)
{
    auto& collection = collectionOf<LexicalErrors>(recogniser);
    collection.thrown.guard(
        [&]
        {
            const ANTLR3_EXCEPTION& error = *recogniser->state->exception;
            const auto next = reinterpret_cast<ANTLR3_MARKER>(collection.input.nextChar);
            // One more character is passed over after the display.
            const LexicalError found = {kindOf(error.type), error.decisionNum,
                                        collection.offset(recogniser->state->tokenStartCharIndex),
                                        collection.offset(error.index),
                                        collection.offset(next) + 1};
            if (!collection.onlyIndependent || !isCovered(found, collection))
            {
                collection.found.push_back(found);
            }
        });
    forgetEarlierErrors(recogniser);
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
    auto& collection = collectionOf<SyntaxErrors>(recogniser);
    const pANTLR3_EXCEPTION exception = recogniser->state->exception;
    const auto* const failed = static_cast<pANTLR3_PARSER>(recogniser->super);
    SyntaxError error = syntaxErrorOf(*exception, failed->tstream->istream);
    error.rules = recogniser->state->following->vector->count;
    exception->index = told;
    collection.thrown.guard([&] { collection.found.push_back(error); });
    forgetEarlierErrors(recogniser);
}

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
        collectionOf<SyntaxErrors>(recogniser).lostAt =
            static_cast<std::size_t>(tokens->index(tokens));
        recogniser->state->error = ANTLR3_FALSE;
    };
}

} // namespace

void collectErrors(pANTLR3_BASE_RECOGNIZER lexer, LexicalErrors& collection)
{
    lexer->state->userp = &collection;
    lexer->displayRecognitionError = addLexicalError;
}

void collectErrors(pANTLR3_BASE_RECOGNIZER parser, SyntaxErrors& collection)
{
    parser->state->userp = &collection;
    parser->displayRecognitionError = addSyntaxError;
    installRecovery(parser);
}

} // namespace vorn::parsers::toml::diagnosis
