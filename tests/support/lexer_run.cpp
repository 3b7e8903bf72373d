#include "lexer_run.h"

#include "lexer.h"

namespace test
{
namespace
{

const char* const tokensDescription =
    "1:1: Tokens : ( T__69 | T__70 | T__71 | T__72 | T__73 | T__74 | T__75 | WS | NL | COMMENT | "
    "BOOLEAN | BASIC_STRING | ML_BASIC_STRING | LITERAL_STRING | ML_LITERAL_STRING | FLOAT | INF "
    "| NAN | DEC_INT | HEX_INT | OCT_INT | BIN_INT | OFFSET_DATE_TIME | LOCAL_DATE_TIME | "
    "LOCAL_DATE | LOCAL_TIME | BARE_KEY );";

std::string nameOf(ANTLR3_UINT32 type)
{
    return type < std::size(TomlParserTokenNames)
               ? reinterpret_cast<const char*>(TomlParserTokenNames[type])
               : "type " + std::to_string(type);
}

// The kind of an error, if it is in all else what such an error is.
std::string kindOf(const ANTLR3_EXCEPTION& exception)
{
    const std::string name = static_cast<const char*>(exception.name);
    const std::string message = static_cast<const char*>(exception.message);
    const bool unexpected = message == "Unexpected character"; // the runtime's
    const auto is = [&](ANTLR3_UINT32 type, const char* itsName)
    { return exception.type == type && unexpected && name == itsName; };
    if (exception.type == ANTLR3_NO_VIABLE_ALT_EXCEPTION)
    {
        if (exception.decisionNum == 36 && message == tokensDescription)
        {
            return "no token";
        }
        if (message.empty())
        {
            return "no escape " + std::to_string(exception.decisionNum);
        }
    }
    return is(ANTLR3_RECOGNITION_EXCEPTION, "org.antlr.runtime.RecognitionException")
               ? "mismatched character"
           : is(ANTLR3_MISMATCHED_SET_EXCEPTION, "org.antlr.runtime.MismatchedSetException")
               ? "mismatched set"
           : is(ANTLR3_EARLY_EXIT_EXCEPTION, "org.antlr.runtime.EarlyExitException")
               ? "early exit"
               : "type " + std::to_string(exception.type) + ", " + name + ", " + message;
}

// With its place.  The runtime counts the characters of the first line from -1, those of
// others from 0.
std::string summary(const ANTLR3_EXCEPTION& exception)
{
    const auto position = exception.charPositionInLine + (exception.line == 1 ? 1 : 0);
    return kindOf(exception) + ' ' + std::to_string(exception.line) + ':' +
           std::to_string(position);
}

// Notes what each call of the token rule makes; the runtime calls it for every part of the
// text, also for tokens that are skipped.
class Recorder
{
public:
    Recorder(const Lexer& lexer, const std::string& text, Row& pieces)
        : lexer_(lexer), text_(text), pieces_(pieces)
    {
        lexer.state()->userp = this;
        lexer.recogniser()->displayRecognitionError = [](pANTLR3_BASE_RECOGNIZER, auto) {};
        lexer.get()->pLexer->mTokens = [](void* context)
        {
            const auto called = static_cast<pTomlLexer>(context);
            static_cast<Recorder*>(called->pLexer->rec->state->userp)->matchToken(called);
        };
    }

    // The part that was begun last ends before an offset; that of `kind` begins there.
    void begin(std::size_t offset, const std::string& kind)
    {
        if (offset != begun_)
        {
            pieces_.push_back({kind_, text_.substr(begun_, offset - begun_)});
        }
        begun_ = offset;
        kind_ = kind;
    }

private:
    void matchToken(pTomlLexer called)
    {
        const pANTLR3_RECOGNIZER_SHARED_STATE state = lexer_.state();
        const std::size_t offset = lexer_.offsetOf(state->tokenStartCharIndex);
        called->mTokens(called);
        begin(offset,
              state->error == ANTLR3_TRUE ? summary(*state->exception) : nameOf(state->type));
    }

    const Lexer& lexer_;
    const std::string& text_;
    Row& pieces_;
    std::size_t begun_ = 0;
    std::string kind_ = "unread";
};

} // namespace

LexerRun lex(const std::string& text)
{
    LexerRun run;
    const Lexer lexer(text);
    Recorder recorder(lexer, text, run.pieces);
    pANTLR3_COMMON_TOKEN token = lexer.next();
    for (; token->getType(token) != ANTLR3_TOKEN_EOF; token = lexer.next())
    {
        const pANTLR3_STRING matched = token->getText(token);
        run.tokens.push_back({nameOf(token->getType(token)),
                              {reinterpret_cast<const char*>(matched->chars), matched->len}});
        run.channels |= token->getChannel(token);
    }
    recorder.begin(lexer.offsetOf(token->getStartIndex(token)), "unread");
    recorder.begin(text.size(), "");
    run.errors = lexer.recogniser()->getNumberOfSyntaxErrors(lexer.recogniser());
    return run;
}

} // namespace test
