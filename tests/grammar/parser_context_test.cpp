// The parser's context: how it is made, what it installs, and its operations.
#include <gtest/gtest.h>

#include <string>

#include "support/parsing.h"
#include "support/recognition_errors.h"
#include "support/tree_text.h"

#include "support/parser_pipeline.h"

namespace
{

using namespace test;

unsigned errorCount(const ParserPipeline& pipeline)
{
    return pipeline.recogniser()->getNumberOfSyntaxErrors(pipeline.recogniser());
}

// The names that the display is given.
pANTLR3_UINT8* displayedNames = nullptr;

} // namespace

TEST(ParserContext, readsTheTokenStreamThatItIsMadeFor)
{
    const std::string text = "a = 1\n";
    const ParserPipeline pipeline(text);
    const pANTLR3_PARSER parser = pipeline.parser()->pParser;
    EXPECT_EQ(parser->getTokenStream(parser), pipeline.tokens()->tstream);
    EXPECT_NE(pipeline.parser()->adaptor, nullptr);
    EXPECT_NE(pipeline.parser()->vectors, nullptr);
    EXPECT_EQ(pipeline.parser()->adaptor->strFactory,
              pipeline.tokens()->tstream->tokenSource->strFactory);
}

TEST(ParserContext, namesTokensByItsOwnTable)
{
    const std::string text = "true";
    const ParserPipeline pipeline(text);
    EXPECT_EQ(pipeline.recogniser()->state->tokenNames, TomlParserTokenNames);
    displayedNames = nullptr;
    pipeline.recogniser()->displayRecognitionError =
        [](pANTLR3_BASE_RECOGNIZER, pANTLR3_UINT8* names) { displayedNames = names; };
    pipeline.parser()->document(pipeline.parser());
    EXPECT_EQ(displayedNames, TomlParserTokenNames);
}

TEST(ParserContext, namesItsGrammarFile)
{
    const std::string text;
    const ParserPipeline pipeline(text);
    EXPECT_STREQ(pipeline.parser()->getGrammarFileName(), "src/grammar/Toml.g");
}

TEST(ParserContext, returnsTheFirstAndTheLastTokenBeforeTheEndOfInput)
{
    const std::string text = "a = 1\n";
    const ParserPipeline pipeline(text);
    const auto result = pipeline.parser()->document(pipeline.parser());
    EXPECT_EQ(result.start->getType(result.start), ANTLR3_UINT32{BARE_KEY});
    EXPECT_EQ(result.stop->getType(result.stop), ANTLR3_UINT32{NL});
}

TEST(ParserContext, sharesTheStateThatItIsMadeWith)
{
    const std::string text = "true\n";
    const ParserPipeline first(text);
    const pANTLR3_RECOGNIZER_SHARED_STATE state = first.recogniser()->state;
    const pTomlParser second = TomlParserNewSSD(first.tokens(), state);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->pParser->rec->state, state);
    ErrorKinds errors;
    collectErrors(second->pParser->rec, errors);
    second->document(second);
    EXPECT_EQ(errors, ErrorKinds{noAlternative});
    EXPECT_EQ(errorCount(first), 1u);

    // The state stays with the first.
    second->pParser->rec->state = nullptr;
    second->free(second);
}

TEST(ParserContext, aParserMadeWithoutAStateHasItsOwn)
{
    const std::string text = "a = 1";
    const ParserPipeline first(text);
    const pTomlParser second = TomlParserNewSSD(first.tokens(), nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(second->pParser->rec->state, nullptr);
    EXPECT_NE(second->pParser->rec->state, first.recogniser()->state);
    EXPECT_EQ(treeText(second->document(second).tree),
              R"(KEYVAL(KEY_BARE(BARE_KEY "a"), VAL_INTEGER(DEC_INT "1")) EOF)");
    second->free(second);
}

TEST(ParserContext, resetForgetsTheErrors)
{
    const std::string text = "true\n[]\n";
    const ParserPipeline pipeline(text);
    ErrorKinds errors;
    collectErrors(pipeline.recogniser(), errors);
    pipeline.parser()->document(pipeline.parser());
    EXPECT_EQ(errorCount(pipeline), 2u);

    pipeline.parser()->reset(pipeline.parser());
    EXPECT_EQ(errorCount(pipeline), 0u);
    EXPECT_EQ(errors.size(), 2u);
    EXPECT_EQ(pipeline.recogniser()->state->errorRecovery, ANTLR3_FALSE);
}
