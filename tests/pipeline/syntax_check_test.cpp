// The first of a parser's two ways through a document.
#include <gtest/gtest.h>

#include "pipeline/syntax_check.h"

#include <string>
#include <vector>

#include "pipeline/error_display.h"
#include "pipeline/memory_need.h"

#include "support/large_documents.h"
#include "support/memory_in_use.h"
#include "support/memory_limit.h"
#include "support/mistaken_samples.h"
#include "support/parsing.h"
#include "support/recognition_errors.h"
#include "support/small_stack.h"
#include "support/tree_text.h"
#include "support/types_of_set.h"

#include "support/window_pipeline.h"

using vorn::parsers::toml::checkSyntax;
using vorn::parsers::toml::forgetEarlierErrors;
using vorn::parsers::toml::hasMemory;
using vorn::parsers::toml::memoryForChecking;
using vorn::parsers::toml::startOver;
using vorn::parsers::toml::Syntax;

namespace
{

constexpr std::size_t kilobyte = 1024;

// A document that is checked.
struct Checked
{
    explicit Checked(const std::string& text) : pipeline(text)
    {
        test::collectErrors(pipeline.lexer().recogniser(), lexerErrors);
        test::collectErrors(pipeline.recogniser(), errors);
        pipeline.lines().reportErrors();
        pipeline.lexer().recogniser()->displayRecognitionError = [](pANTLR3_BASE_RECOGNIZER,
                                                                    pANTLR3_UINT8*) {};
        syntax = checkSyntax(*pipeline.parser(), pipeline.window());
    }

    ANTLR3_UINT32 errorCount() const
    {
        return pipeline.recogniser()->getNumberOfSyntaxErrors(pipeline.recogniser());
    }

    test::WindowPipeline pipeline;
    test::ErrorKinds lexerErrors;
    test::ErrorKinds errors;
    Syntax syntax = {};
};

std::vector<std::string> samples()
{
    std::vector<std::string> texts = test::mistakenSamples();
    texts.insert(texts.end(), {"", "# c", "\n\n", "a = 1\n", test::mixedDocument(3000)});
    return texts;
}

// The texts of the tokens that errors are about.
using Texts = std::vector<std::string>;

void collectTexts(pANTLR3_BASE_RECOGNIZER recogniser, Texts& texts)
{
    recogniser->state->userp = &texts;
    recogniser->displayRecognitionError = [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*)
    {
        auto* const token = static_cast<pANTLR3_COMMON_TOKEN>(failed->state->exception->token);
        static_cast<Texts*>(failed->state->userp)
            ->push_back(vorn::parsers::toml::characters(token->getText(token)));
    };
}

// What a check on a small stack finds.
Syntax checkedOnSmallStack(const std::string& text, test::ErrorKinds& errors)
{
    Syntax syntax = {};
    test::onThread(64 * kilobyte,
                   [&]
                   {
                       test::WindowPipeline pipeline(text);
                       test::collectErrors(pipeline.recogniser(), errors);
                       syntax = checkSyntax(*pipeline.parser(), pipeline.window());
                   });
    return syntax;
}

// How much more memory the heap holds for a parser after a check than before.
std::size_t heldByCheck(const std::string& text)
{
    test::WindowPipeline pipeline(text);
    pipeline.recogniser()->displayRecognitionError =
        [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*) { forgetEarlierErrors(failed); };
    const std::size_t before = test::memoryInUse();
    checkSyntax(*pipeline.parser(), pipeline.window());
    startOver(*pipeline.parser(), pipeline.window());
    return test::memoryInUse() - before;
}

// Whether there is the memory for a document where only so much is left.  Either way, the errors
// are still to be reported, and nothing has been said of them.
bool hasMemoryWith(std::size_t left, const std::string& text)
{
    SCOPED_TRACE(std::to_string(left) + " bytes for " + testing::PrintToString(text.substr(0, 12)));
    const test::ParsedDocument expected = test::parseDocument(text);
    test::WindowPipeline pipeline(text);
    test::ErrorKinds lexerErrors;
    test::ErrorKinds errors;
    test::collectErrors(pipeline.lexer().recogniser(), lexerErrors);
    test::collectErrors(pipeline.recogniser(), errors);
    bool found = false;
    {
        const test::MemoryLimit limit(left);
        found = hasMemory(*pipeline.parser(), pipeline.lines(), pipeline.window());
    }
    EXPECT_TRUE(lexerErrors.empty());
    EXPECT_TRUE(errors.empty());
    if (found)
    {
        pipeline.lines().reportErrors();
        EXPECT_EQ(lexerErrors, expected.lexerErrors);
        checkSyntax(*pipeline.parser(), pipeline.window());
        EXPECT_EQ(errors, expected.errors);
    }
    return found;
}

} // namespace

// The lines that are valid, and passed over, have none.
TEST(SyntaxCheck, reportsTheErrorsOfTheWholeDocument)
{
    for (const std::string& text : samples())
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 100)));
        const test::ParsedDocument expected = test::parseDocument(text);
        const Checked checked(text);
        EXPECT_EQ(checked.errors, expected.errors);
        EXPECT_EQ(checked.errorCount(), expected.errorCount);
        EXPECT_EQ(checked.lexerErrors, expected.lexerErrors);
        EXPECT_EQ(checked.syntax.hasFailed, expected.trees == R"(<invalid> "Tree Error Node")");
        EXPECT_EQ(checked.syntax.levelsWithoutRoom, 0u);
    }
}

TEST(SyntaxCheck, isFollowedByTheSameTreesWithoutAnotherReport)
{
    for (const std::string& text : samples())
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 100)));
        const test::ParsedDocument expected = test::parseDocument(text);
        Checked checked(text);
        const test::ErrorKinds errors = checked.errors;
        const ANTLR3_UINT32 errorCount = checked.errorCount();

        startOver(*checked.pipeline.parser(), checked.pipeline.window());
        const test::WindowPipeline& pipeline = checked.pipeline;
        EXPECT_EQ(checked.errorCount(), errorCount);
        EXPECT_EQ(pipeline.recogniser()->state->error, ANTLR3_FALSE);
        EXPECT_EQ(pipeline.lexer().offset(), test::Lexer(text).offset());
        EXPECT_EQ(test::treeText(pipeline.parser()->document(pipeline.parser()).tree),
                  expected.trees);
        EXPECT_EQ(checked.errors, errors);
        EXPECT_EQ(checked.errorCount(), errorCount);
        EXPECT_EQ(errors, expected.errors);
    }
}

// The runtime takes the error of the first line for that of the second.
TEST(SyntaxCheck, hasTheTextOfAMissingTokenThatIsReportedAgain)
{
    for (const std::string text : {"a.b 1\nc = [1 2]\n", "[[t]\nc = [1 2]\nd.e 3\nc = [1 2]\n",
                                   "a.b 1\nd = 4\n# c\nc = {e.f 1, g = [1 2]}\n"})
    {
        SCOPED_TRACE(testing::PrintToString(text));
        Texts expected;
        {
            const test::ParserPipeline pipeline(text);
            collectTexts(pipeline.recogniser(), expected);
            pipeline.parser()->document(pipeline.parser());
        }
        Texts texts;
        test::WindowPipeline pipeline(text);
        collectTexts(pipeline.recogniser(), texts);
        checkSyntax(*pipeline.parser(), pipeline.window());
        EXPECT_EQ(texts, expected);
        ASSERT_GT(texts.size(), 1u);
        EXPECT_EQ(texts[1], texts[0]);
        EXPECT_EQ(texts[0].substr(0, 9), "<missing ");
    }
}

TEST(SyntaxCheck, passesOverValidLines)
{
    const std::string valid = test::repeated("b = [1, 2, 3]\n[t]\n", 50);
    const std::string text = valid + "a 1\n" + valid + "a = 1 2\n";
    Checked checked(text);
    EXPECT_EQ(checked.errors.size(), 2u);
    // No longer than one of the lines that are not valid.
    EXPECT_GE(checked.pipeline.window().longestStatement(), 3u);
    EXPECT_LE(checked.pipeline.window().longestStatement(), 5u);
}

TEST(SyntaxCheck, tellsWhatFollowsALine)
{
    for (const std::string& text : samples())
    {
        const Checked checked(text);
        const pANTLR3_BITSET_LIST follow = checked.syntax.followOfLine;
        ASSERT_NE(follow, nullptr);
        EXPECT_EQ(test::typesOf(antlr3BitsetLoad(follow)), test::Types({NL}));
    }
}

TEST(SyntaxCheck, tellsAtHowManyLevelsTheStackEnded)
{
    for (const std::string opening : {"[", "{a=", "[{a="})
    {
        SCOPED_TRACE(opening);
        test::ErrorKinds errors;
        const Syntax deep =
            checkedOnSmallStack("b = 1\nc 2\n" + test::enclosed("a=", opening, 10'000, ""), errors);
        EXPECT_GE(deep.levelsWithoutRoom, 10u);
        EXPECT_LT(deep.levelsWithoutRoom, 250u);
        ASSERT_FALSE(errors.empty());
        EXPECT_EQ(errors.front(), test::noAlternative);
        const Syntax shallow =
            checkedOnSmallStack("c 2\n" + test::enclosed("a=", opening, 5, ""), errors);
        EXPECT_EQ(shallow.levelsWithoutRoom, 0u);
    }
}

TEST(SyntaxCheck, holdsNoMemoryThatGrowsWithTheDocument)
{
    for (const std::string line : {"a = 1\n", "a 1\n", "a = {}\n", "]\n", "a == [1, 2, 3]\n"})
    {
        SCOPED_TRACE(testing::PrintToString(line));
        EXPECT_LE(heldByCheck(test::repeated(line, 10'000)),
                  heldByCheck(test::repeated(line, 100)) + 4096);
    }
    const auto statement = [](std::size_t elements)
    { return test::enclosed("a = [", "1, ", elements, "}\n"); };
    // Of a statement there are the lists of the runtime, not the tokens.
    const std::string many = statement(10'000);
    const std::size_t lists =
        memoryForChecking(many.size(), 0, 0, 2 * 10'000) - memoryForChecking(0, 0, 0, 0);
    EXPECT_LE(heldByCheck(many), heldByCheck(statement(100)) + lists);
}

// What any document of the size may need is not there.
TEST(SyntaxCheckWithLimits, takesWhatTheStatementsThatAreNotValidNeed)
{
    constexpr std::size_t left = 40'000 * kilobyte;
    const std::string valid = test::repeated("a = [1, 2, 3]\n", 5'000);
    for (const std::string mistake : {"b 1\n", "c = [1 2]\n", "@", "[t\n"})
    {
        EXPECT_TRUE(hasMemoryWith(left, valid + mistake + valid));
    }
    EXPECT_FALSE(hasMemoryWith(left, test::enclosed("a = [", "1, ", 20'000, "1 2]\n")));
    EXPECT_FALSE(hasMemoryWith(left, test::enclosed("", "[", 100'000, "")));
    EXPECT_FALSE(hasMemoryWith(kilobyte, valid + "b 1\n"));
}
