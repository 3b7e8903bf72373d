// The lexer as the runtime's token source sees it: construction, state, end of life.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "support/lexer_run.h"
#include "support/stderr_capture.h"

#include "support/lexer.h"

using namespace test;

namespace
{

using LexerPointer = std::unique_ptr<TomlLexer, FreeRecogniser>;

} // namespace

TEST(LexerConstruction, fillsEveryMemberOfTheContext)
{
    const std::string text = "a";
    const Lexer lexer(text);
    std::vector<const void*> members(sizeof(TomlLexer) / sizeof(const void*));
    std::memcpy(members.data(), lexer.get(), sizeof(TomlLexer));
    for (std::size_t index = 0; index < members.size(); ++index)
    {
        EXPECT_NE(members[index], nullptr) << "member " << index;
    }
}

TEST(LexerConstruction, installsTheTokenRuleAndTheContext)
{
    const std::string text = "a";
    const Lexer lexer(text);
    const pANTLR3_LEXER runtime = lexer.get()->pLexer;
    EXPECT_EQ(runtime->ctx, lexer.get());
    EXPECT_EQ(reinterpret_cast<void*>(runtime->mTokens),
              reinterpret_cast<void*>(lexer.get()->mTokens));
    EXPECT_EQ(runtime->input, lexer.input());
    EXPECT_EQ(lexer.state()->sizeHint, 1025u);
    EXPECT_EQ(lexer.state()->errorCount, 0u);
}

TEST(LexerConstruction, leavesTheRuntimesErrorReporting)
{
    const std::string text = "a";
    const Lexer lexer(text);
    const InputStream input = openInput(text);
    const pANTLR3_LEXER plain = antlr3LexerNewStream(1025, input.get(), nullptr);
    EXPECT_EQ(lexer.recogniser()->displayRecognitionError, plain->rec->displayRecognitionError);
    EXPECT_EQ(lexer.recogniser()->reportError, plain->rec->reportError);
    EXPECT_EQ(lexer.get()->pLexer->recover, plain->recover);
    EXPECT_EQ(lexer.state()->tokSource->nextToken, plain->rec->state->tokSource->nextToken);
    plain->free(plain);
}

TEST(LexerConstruction, takesAStateToShare)
{
    const std::string text = "a b";
    const InputStream input = openInput(text);
    // The lexer that is given a state frees it.
    const auto state = static_cast<pANTLR3_RECOGNIZER_SHARED_STATE>(
        std::calloc(1, sizeof(ANTLR3_RECOGNIZER_SHARED_STATE)));
    const LexerPointer lexer(TomlLexerNewSSD(input.get(), state));
    ASSERT_NE(lexer, nullptr);
    ASSERT_EQ(lexer->pLexer->rec->state, state);
    const pANTLR3_COMMON_TOKEN token = state->tokSource->nextToken(state->tokSource);
    EXPECT_EQ(token->getType(token), static_cast<ANTLR3_UINT32>(BARE_KEY));
    EXPECT_EQ(state->type, static_cast<ANTLR3_UINT32>(BARE_KEY));
}

TEST(LexerConstruction, makesItsOwnStateOtherwise)
{
    const std::string text = "@";
    const InputStream first = openInput(text);
    const InputStream second = openInput(text);
    const LexerPointer lexer(TomlLexerNewSSD(first.get(), nullptr));
    const LexerPointer other(TomlLexerNew(second.get()));
    ASSERT_NE(lexer, nullptr);
    ASSERT_NE(other, nullptr);
    EXPECT_NE(lexer->pLexer->rec->state, nullptr);
    EXPECT_NE(lexer->pLexer->rec->state, other->pLexer->rec->state);
    EXPECT_EQ(lexer->mTokens, other->mTokens);
}

TEST(LexerConstruction, knowsTheGrammarFile)
{
    const std::string text;
    const Lexer lexer(text);
    const std::string name = lexer.get()->getGrammarFileName();
    EXPECT_EQ(name.rfind("src/grammar/Toml", 0), 0u) << name;
}

TEST(LexerReset, resetsTheState)
{
    const std::string text = "a";
    const Lexer lexer(text);
    lexer.next();
    lexer.get()->reset(lexer.get());
    EXPECT_EQ(lexer.state()->token, nullptr);
    EXPECT_EQ(lexer.state()->type, static_cast<ANTLR3_UINT32>(ANTLR3_TOKEN_INVALID));
    EXPECT_EQ(lexer.state()->tokenStartCharIndex, -1);
    EXPECT_EQ(lexer.state()->text, nullptr);
}

TEST(LexerReset, readiesForTheInputAnew)
{
    const std::string text = "key 1";
    const Lexer lexer(text);
    for (int pass = 0; pass < 2; ++pass)
    {
        SCOPED_TRACE(pass);
        pANTLR3_COMMON_TOKEN token = lexer.next();
        EXPECT_EQ(token->getType(token), static_cast<ANTLR3_UINT32>(BARE_KEY));
        token = lexer.next();
        EXPECT_EQ(token->getType(token), static_cast<ANTLR3_UINT32>(DEC_INT));
        token = lexer.next();
        EXPECT_EQ(token->getType(token), ANTLR3_TOKEN_EOF);
        lexer.input()->reset(lexer.input());
        lexer.get()->reset(lexer.get());
    }
}

TEST(LexerFree, freesTheRuntimesLexerByItsOwnOperation)
{
    const std::string text = "a";
    const InputStream input = openInput(text);
    const pTomlLexer lexer = TomlLexerNew(input.get());
    static void (*runtimeFree)(pANTLR3_LEXER) = nullptr;
    runtimeFree = lexer->pLexer->free;
    static pANTLR3_LEXER freed = nullptr;
    lexer->pLexer->free = [](pANTLR3_LEXER runtime)
    {
        freed = runtime;
        runtimeFree(runtime);
    };
    const pANTLR3_LEXER runtime = lexer->pLexer;
    lexer->free(lexer);
    EXPECT_EQ(freed, runtime);
}

TEST(TokenSource, endsAnEmptyInputAtOnce)
{
    const std::string text;
    const Lexer lexer(text);
    for (int time = 0; time < 3; ++time)
    {
        const pANTLR3_COMMON_TOKEN token = lexer.next();
        EXPECT_EQ(token->getType(token), ANTLR3_TOKEN_EOF) << time;
    }
    EXPECT_EQ(lexer.state()->errorCount, 0u);
}

TEST(TokenSource, placesTokens)
{
    const std::string text = "key = \"\u00E9\"\t1 # c\n\n  '''a\nb''' x\r\n@y";
    const Lexer lexer(text);
    const StderrCapture quiet;
    std::string places;
    for (auto token = lexer.next(); token->getType(token) != ANTLR3_TOKEN_EOF; token = lexer.next())
    {
        // The runtime counts the characters of the first line from -1, those of others from 0.
        const auto line = token->getLine(token);
        places += std::to_string(line) + ':' +
                  std::to_string(token->getCharPositionInLine(token) + (line == 1 ? 1 : 0)) + '@' +
                  std::to_string(lexer.offsetOf(token->getStartIndex(token))) + ' ';
    }
    EXPECT_EQ(places, "1:0@0 1:4@4 1:6@6 1:10@11 1:15@16 3:2@20 4:5@30 4:6@31 5:1@34 ");
    EXPECT_EQ(lexer.offset(), text.size());
}

TEST(TokenSource, refersToTheInput)
{
    const std::string text = "a \"b\\n\" ";
    const Lexer lexer(text);
    lexer.next();
    const pANTLR3_COMMON_TOKEN token = lexer.next();
    EXPECT_EQ(token->textState, static_cast<ANTLR3_UINT32>(ANTLR3_TEXT_NONE));
    EXPECT_EQ(lexer.offsetOf(token->getStartIndex(token)), 2u);
    EXPECT_EQ(lexer.offsetOf(token->getStopIndex(token)), 6u);
    EXPECT_EQ(lexer.offset(), 7u);
}

TEST(TokenSource, lexesTwoInputsByTurns)
{
    const std::string keys = "a b @ c";
    const std::string numbers = "1 2 3";
    const Lexer first(keys);
    const Lexer second(numbers);
    const StderrCapture quiet;
    for (int turn = 0; turn < 3; ++turn)
    {
        const pANTLR3_COMMON_TOKEN key = first.next();
        const pANTLR3_COMMON_TOKEN number = second.next();
        EXPECT_EQ(key->getType(key), static_cast<ANTLR3_UINT32>(BARE_KEY)) << turn;
        EXPECT_EQ(number->getType(number), static_cast<ANTLR3_UINT32>(DEC_INT)) << turn;
    }
    EXPECT_EQ(first.state()->errorCount, 1u);
    EXPECT_EQ(second.state()->errorCount, 0u);
}

TEST(LexerErrors, areCountedOneByOne)
{
    EXPECT_EQ(lex(std::string(1000, '@')).errors, 1000U);
}

TEST(LexerErrors, thatArePendingLetNoTokenBeMatched)
{
    const std::string text = "a";
    const Lexer lexer(text);
    lexer.state()->error = ANTLR3_TRUE;
    lexer.get()->mTokens(lexer.get());
    EXPECT_EQ(lexer.offset(), 0U);
}

TEST(LexerErrors, arePrintedByTheDisplayOnly)
{
    const std::string text = "@a 1. \"b\\q";
    const auto printedBy = [](const Lexer& lexer)
    {
        const StderrCapture capture;
        while (lexer.next()->type != ANTLR3_TOKEN_EOF)
        {
        }
        EXPECT_EQ(lexer.state()->errorCount, 3U);
        return capture.text();
    };
    const Lexer quiet(text);
    quiet.recogniser()->displayRecognitionError = [](pANTLR3_BASE_RECOGNIZER, pANTLR3_UINT8*) {};
    EXPECT_EQ(printedBy(quiet), "");
    const std::string printed = printedBy(Lexer(text));
    EXPECT_NE(printed.find("toml(1) : lexer error 3 :\n\t1:1: Tokens : ( T__69 |"),
              std::string::npos)
        << printed;
    EXPECT_NE(printed.find("lexer error 4 :\n\tUnexpected character"), std::string::npos)
        << printed;
}
