// What surrounds the runtime's displays of errors.
#include <gtest/gtest.h>

#include "pipeline/error_display.h"

#include <cctype>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "support/event_recorder.h"
#include "support/recognition_errors.h"
#include "support/tree_samples.h"
#include "support/tree_text.h"

#include "support/parser_pipeline.h"
#include "support/tree_pipeline.h"

using namespace vorn::parsers::toml;

namespace
{

struct CloseFactory
{
    void operator()(pANTLR3_STRING_FACTORY factory) const { factory->close(factory); }
};

using Factory = std::unique_ptr<ANTLR3_STRING_FACTORY, CloseFactory>;

std::string characters(pANTLR3_STRING string)
{
    return {reinterpret_cast<const char*>(string->chars), string->len};
}

pANTLR3_STRING makeString(const Factory& factory, std::string text)
{
    return factory->newStr(factory.get(), reinterpret_cast<pANTLR3_UINT8>(text.data()));
}

ANTLR3_UINT32 errorsKept(pANTLR3_BASE_RECOGNIZER recogniser)
{
    ANTLR3_UINT32 count = 0;
    for (auto* error = recogniser->state->exception; error != nullptr; error = error->nextException)
    {
        ++count;
    }
    return count;
}

using Display = void (*)(pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*);

// Calls `display` for each error of the parser in `text`; how many there are.
ANTLR3_UINT32 parse(const std::string& text, Display display)
{
    const test::ParserPipeline pipeline(text);
    test::ErrorKinds lexerErrors;
    test::collectErrors(pipeline.lexer().recogniser(), lexerErrors);
    pipeline.recogniser()->displayRecognitionError = display;
    pipeline.parser()->document(pipeline.parser());
    return pipeline.recogniser()->getNumberOfSyntaxErrors(pipeline.recogniser());
}

} // namespace

// A low byte alone may be that of a printable character: U+015B would be shown as "[".
TEST(PrintableCharacter, isTheFirstByteOfASequenceBeyondTheDomainOfIsprint)
{
    for (const auto& [character, printable] :
         std::vector<std::pair<ANTLR3_UCHAR, ANTLR3_UCHAR>>{{0, 0},
                                                            {'@', '@'},
                                                            {0xFF, 0xFF},
                                                            {0x100, 0xC4},
                                                            {0x15B, 0xC5},
                                                            {0x7FF, 0xDF},
                                                            {0x800, 0xE0},
                                                            {0x20AC, 0xE2},
                                                            {0xFFFF, 0xEF},
                                                            {0x10000, 0xF0},
                                                            {0x1F63A, 0xF0},
                                                            {0x10FFFF, 0xF4},
                                                            {0x3FFFFFF, 0xFB},
                                                            {0x7FFFFFFF, 0xFD},
                                                            {0xFFFFFFFE, 0xFF}})
    {
        SCOPED_TRACE(character);
        ANTLR3_EXCEPTION exception = {};
        exception.c = character;
        {
            const PrintableCharacter during(&exception);
            EXPECT_EQ(exception.c, printable);
            EXPECT_TRUE(character <= 0xFF || std::isprint(static_cast<int>(exception.c)) == 0);
        }
        EXPECT_EQ(exception.c, character);
    }
}

TEST(PrintableCharacter, leavesTheEndOfTheInput)
{
    ANTLR3_EXCEPTION exception = {};
    exception.c = ANTLR3_CHARSTREAM_EOF;
    {
        const PrintableCharacter during(&exception);
        EXPECT_EQ(exception.c, ANTLR3_CHARSTREAM_EOF);
    }
    EXPECT_EQ(exception.c, ANTLR3_CHARSTREAM_EOF);
}

TEST(TemporaryStrings, areFreedAndThoseBeforeThemAreNot)
{
    const Factory factory(antlr3StringFactoryNew(ANTLR3_ENC_UTF8));
    for (int round = 0; round < 3; ++round)
    {
        const pANTLR3_STRING kept = makeString(factory, "kept");
        const ANTLR3_UINT32 count = factory->index;
        {
            const TemporaryStrings temporary(factory.get());
            for (ANTLR3_UINT32 made = 1; made <= 100; ++made)
            {
                makeString(factory, "temporary");
                ASSERT_EQ(factory->index, count + made);
            }
        }
        EXPECT_EQ(factory->index, count);
        EXPECT_EQ(characters(kept), "kept");
        EXPECT_EQ(factory->strings->count, count);
    }
}

TEST(TemporaryStrings, mayBeNone)
{
    const Factory factory(antlr3StringFactoryNew(ANTLR3_ENC_UTF8));
    {
        const TemporaryStrings temporary(factory.get());
    }
    EXPECT_EQ(factory->index, 0u);
    const pANTLR3_STRING string = makeString(factory, "later");
    EXPECT_EQ(characters(string), "later");
}

TEST(ForgottenStrings, areAllButTheFirstFew)
{
    const Factory factory(antlr3StringFactoryNew(ANTLR3_ENC_UTF8));
    std::vector<pANTLR3_STRING> strings;
    for (int number = 0; number < 5; ++number)
    {
        strings.push_back(makeString(factory, std::to_string(number)));
    }
    forgetStrings(factory.get(), 7);
    EXPECT_EQ(factory->index, 5u);
    forgetStrings(factory.get(), 5);
    EXPECT_EQ(factory->index, 5u);
    forgetStrings(factory.get(), 3);
    EXPECT_EQ(factory->index, 3u);
    EXPECT_EQ(factory->strings->count, 3u);
    for (std::size_t number = 0; number < 3; ++number)
    {
        EXPECT_EQ(characters(strings[number]), std::to_string(number));
    }
    EXPECT_EQ(makeString(factory, "3 again")->index, 3u);
    forgetStrings(factory.get(), 0);
    EXPECT_EQ(factory->index, 0u);
    EXPECT_EQ(factory->strings->count, 0u);
}

TEST(EarlierErrors, areKeptByTheRuntimeAndForgotten)
{
    static std::vector<ANTLR3_UINT32> kept;
    const std::string text = "a\nb\nc\nd\n";
    kept.clear();
    const Display keep = [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*)
    { kept.push_back(errorsKept(failed)); };
    EXPECT_EQ(parse(text, keep), 4u);
    EXPECT_EQ(kept, std::vector<ANTLR3_UINT32>({1, 2, 3, 4}));

    kept.clear();
    const Display forget = [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*)
    {
        const pANTLR3_EXCEPTION last = failed->state->exception;
        forgetEarlierErrors(failed);
        EXPECT_EQ(failed->state->exception, last);
        EXPECT_EQ(test::errorKind(failed), "no viable alternative");
        kept.push_back(errorsKept(failed));
    };
    EXPECT_EQ(parse(text, forget), 4u);
    EXPECT_EQ(kept, std::vector<ANTLR3_UINT32>({1, 1, 1, 1}));
}

// Of a parser that takes the tokens' text as its own; each is in the place of the one before.
TEST(ConjuredTokens, haveTheirOwnTextsAfterOthersWereForgotten)
{
    static std::vector<std::string> texts;
    static std::vector<pANTLR3_COMMON_TOKEN> tokens;
    texts.clear();
    tokens.clear();
    const Display display = [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*)
    {
        auto* const token = static_cast<pANTLR3_COMMON_TOKEN>(failed->state->exception->token);
        tokens.push_back(token);
        texts.push_back(characters(token->getText(token)));
        forgetConjured(failed);
    };
    EXPECT_EQ(parse("a.b 1\nc = {d.e 2}\n[[t]\nf.g 3\n", display), 4u);
    EXPECT_EQ(texts, std::vector<std::string>(
                         {"<missing '='>", "<missing '='>", "<missing ']'>", "<missing '='>"}));
    EXPECT_EQ(tokens, std::vector<pANTLR3_COMMON_TOKEN>(4, tokens.front()));
}

TEST(ConjuredTokens, areForgottenInAllPools)
{
    const std::string text = "a";
    const test::ParserPipeline pipeline(text);
    const pANTLR3_BASE_RECOGNIZER parser = pipeline.recogniser();
    // Before there is any.
    EXPECT_EQ(parser->state->tokFactory, nullptr);
    forgetConjured(parser);
    EXPECT_EQ(parser->state->tokFactory, nullptr);

    const pANTLR3_INT_STREAM stream = pipeline.tokens()->tstream->istream;
    const auto conjure = [&](ANTLR3_UINT32 type)
    {
        return static_cast<pANTLR3_COMMON_TOKEN>(
            parser->getMissingSymbol(parser, stream, nullptr, type, nullptr));
    };
    stream->_LA(stream, 1); // fills the stream
    const pANTLR3_COMMON_TOKEN first = conjure(NL);
    forgetConjured(parser);
    EXPECT_EQ(conjure(DEC_INT), first);
    EXPECT_EQ(characters(first->getText(first)), "<missing DEC_INT>");

    // More than one pool is freed.
    for (int number = 0; number <= ANTLR3_FACTORY_POOL_SIZE; ++number)
    {
        conjure(NL);
    }
    forgetConjured(parser);
    EXPECT_EQ(parser->state->tokFactory, nullptr);
    const pANTLR3_COMMON_TOKEN token = conjure(BARE_KEY);
    EXPECT_EQ(characters(token->getText(token)), "<missing BARE_KEY>");
}

TEST(ParserDisplay, makesStringsWithTheFactoryThatIsPrepared)
{
    const Display display = [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*)
    {
        const auto parser = static_cast<pANTLR3_PARSER>(failed->super);
        const auto token = static_cast<pANTLR3_COMMON_TOKEN>(failed->state->exception->token);
        const pANTLR3_STRING_FACTORY factory = parser->tstream->tokenSource->strFactory;
        const ANTLR3_UINT32 before = factory->index;
        EXPECT_EQ(prepareDisplay(parser), factory);

        // A token that keeps its string has it before the strings are temporary.
        const bool keeps = token->type == ANTLR3_TOKEN_EOF;
        EXPECT_EQ(token->textState == ANTLR3_TEXT_STRING, keeps);
        const ANTLR3_UINT32 count = factory->index;
        EXPECT_EQ(count == before, !keeps);
        const std::string text = characters(token->getText(token));
        EXPECT_EQ(factory->index, keeps ? count : count + 1);
        {
            const TemporaryStrings temporary(factory);
            EXPECT_EQ(characters(token->getText(token)), text);
        }
        EXPECT_EQ(characters(token->getText(token)), text);
    };
    EXPECT_EQ(parse("a\nb = 1\n[c d]\n", display), 2u);
    EXPECT_EQ(parse("a = []\n", display), 1u);
    EXPECT_EQ(parse("a", display), 1u);
    EXPECT_EQ(parse("a = [", display), 1u);
}

TEST(TreeDisplay, getsTheTextOfTheTreeFromAStringThatCanBeFreed)
{
    static std::string runtimes;
    static std::string own;
    const std::string pair = "KEYVAL(" + test::keyA + ", ";
    for (const auto& [trees, expected] : std::vector<std::pair<std::string, std::string>>{
             {pair + R"(VAL_INTEGER(BARE_KEY "b")) EOF)", "b"},
             {pair + "VAL_ARRAY(KEYVAL)) EOF", "KEYVAL"},
             {pair + "VAL_INTEGER(VAL_ARRAY(" + test::one + ", " + test::one + "))) EOF",
              "(VAL_ARRAY (VAL_INTEGER 1) (VAL_INTEGER 1))"},
             {R"(DEC_INT "1" EOF)", "1"},
         })
    {
        SCOPED_TRACE(trees);
        const test::TreePipeline pipeline(trees);
        own.clear();
        runtimes.clear();
        pipeline.recogniser()->displayRecognitionError =
            [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*)
        {
            const auto parser = static_cast<pANTLR3_TREE_PARSER>(failed->super);
            const auto tree = static_cast<pANTLR3_BASE_TREE>(failed->state->exception->token);
            runtimes = characters(tree->toStringTree(tree));
            const pANTLR3_STRING_FACTORY factory = prepareDisplay(parser);
            EXPECT_EQ(factory, parser->ctnstream->stringFactory);
            const ANTLR3_UINT32 count = factory->index;
            {
                const TemporaryStrings temporary(factory);
                const pANTLR3_STRING string = tree->toStringTree(tree);
                EXPECT_EQ(string->size, string->len + 1);
                own = characters(string);
                EXPECT_EQ(factory->index, count + 1);
            }
            EXPECT_EQ(factory->index, count);
        };
        test::EventRecorder visitor;
        pipeline.tree()->document(pipeline.tree(), visitor);
        EXPECT_EQ(own, expected);
        EXPECT_EQ(own, runtimes);
    }
}
