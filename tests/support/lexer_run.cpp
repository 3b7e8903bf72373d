#include "lexer_run.h"

#include <gtest/gtest.h>

#include <sstream>

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

const char* const unexpected = "Unexpected character"; // the runtime's message

constexpr ANTLR3_UINT32 tokensDecision = 36;

// The runtime counts the characters of the first line from -1, those of others from 0.
int positionIn(ANTLR3_UINT32 line, ANTLR3_INT32 runtimePosition)
{
    return line == 1 ? runtimePosition + 1 : runtimePosition;
}

// What the display of a run needs.
struct Recording
{
    const Lexer& lexer;
    std::vector<LexerError>& errors;
};

void recordError(pANTLR3_BASE_RECOGNIZER recogniser, pANTLR3_UINT8*)
{
    const auto recording = static_cast<const Recording*>(recogniser->state->userp);
    const ANTLR3_EXCEPTION& exception = *recogniser->state->exception;
    recording->errors.push_back({exception.type, static_cast<const char*>(exception.name),
                                 static_cast<const char*>(exception.message), exception.decisionNum,
                                 exception.line,
                                 positionIn(exception.line, exception.charPositionInLine),
                                 exception.c, recording->lexer.offset()});
}

std::string nameOf(ANTLR3_UINT32 type)
{
    return type < std::size(TomlParserTokenNames)
               ? reinterpret_cast<const char*>(TomlParserTokenNames[type])
               : "type " + std::to_string(type);
}

LexedToken lexedToken(const Lexer& lexer, pANTLR3_COMMON_TOKEN token)
{
    const pANTLR3_STRING text = token->getText(token);
    return {nameOf(token->getType(token)),
            {reinterpret_cast<const char*>(text->chars), text->len},
            token->getChannel(token),
            token->getLine(token),
            positionIn(token->getLine(token), token->getCharPositionInLine(token)),
            lexer.offsetOf(token->getStartIndex(token))};
}

std::string kindOf(const LexerError& error)
{
    const std::string& message = error.message;
    switch (error.type)
    {
    case ANTLR3_NO_VIABLE_ALT_EXCEPTION:
        if (error.decision == tokensDecision && message == tokensDescription)
        {
            return "no token";
        }
        return message.empty() ? "no escape " + std::to_string(error.decision) : "";
    case ANTLR3_RECOGNITION_EXCEPTION:
        return error.name == "org.antlr.runtime.RecognitionException" && message == unexpected
                   ? "mismatched character"
                   : "";
    case ANTLR3_MISMATCHED_SET_EXCEPTION:
        return error.name == "org.antlr.runtime.MismatchedSetException" && message == unexpected
                   ? "mismatched set"
                   : "";
    case ANTLR3_EARLY_EXIT_EXCEPTION:
        return error.name == "org.antlr.runtime.EarlyExitException" && message == unexpected
                   ? "early exit"
                   : "";
    default:
        return "";
    }
}

} // namespace

LexerRun lex(const std::string& text, ErrorDisplay display)
{
    LexerRun run;
    const Lexer lexer(text);
    Recording recording{lexer, run.errors};
    if (display == ErrorDisplay::recorded)
    {
        lexer.state()->userp = &recording;
        lexer.recogniser()->displayRecognitionError = recordError;
    }
    pANTLR3_COMMON_TOKEN token = lexer.next();
    while (token->getType(token) != ANTLR3_TOKEN_EOF)
    {
        run.tokens.push_back(lexedToken(lexer, token));
        token = lexer.next();
    }
    run.end = lexer.offsetOf(token->getStartIndex(token));
    run.errorCount = lexer.recogniser()->getNumberOfSyntaxErrors(lexer.recogniser());
    return run;
}

std::string summary(const LexerError& error)
{
    std::ostringstream text;
    const std::string kind = kindOf(error);
    if (kind.empty())
    {
        text << "type " << error.type << " (" << error.name << "), decision " << error.decision
             << ", \"" << error.message << '"';
    }
    text << kind << ' ' << error.line << ':' << error.position;
    return text.str();
}

Tokens typesAndTexts(const LexerRun& run)
{
    Tokens tokens;
    for (const LexedToken& token : run.tokens)
    {
        tokens.emplace_back(token.type, token.text);
    }
    return tokens;
}

Errors summaries(const LexerRun& run)
{
    Errors errors;
    for (const LexerError& error : run.errors)
    {
        errors.push_back(summary(error));
    }
    return errors;
}

void expectLexed(const LexerCase& expected)
{
    SCOPED_TRACE(testing::PrintToString(expected.text));
    const LexerRun run = lex(expected.text);
    EXPECT_EQ(typesAndTexts(run), expected.tokens);
    EXPECT_EQ(summaries(run), expected.errors);
    EXPECT_EQ(run.errorCount, expected.errors.size());
    for (const LexedToken& token : run.tokens)
    {
        EXPECT_EQ(token.channel, ANTLR3_TOKEN_DEFAULT_CHANNEL) << token.text;
        EXPECT_EQ(expected.text.compare(token.offset, token.text.size(), token.text), 0)
            << token.text << " at " << token.offset;
    }
}

void expectLexed(const std::vector<LexerCase>& cases)
{
    for (const LexerCase& expected : cases)
    {
        expectLexed(expected);
    }
}

void expectOneToken(const std::string& type, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        expectLexed({text, {{type, text}}});
    }
}

} // namespace test
