// A parser without trees.
#include <gtest/gtest.h>

#include "pipeline/no_tree.h"

#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "pipeline/error_display.h"

#include "support/large_documents.h"
#include "support/memory_in_use.h"
#include "support/mistaken_samples.h"
#include "support/recognition_errors.h"
#include "support/tree_text.h"

#include "support/parser_pipeline.h"

using vorn::parsers::toml::forgetEarlierErrors;
using vorn::parsers::toml::NoTree;

namespace
{

// Kind, type and place of its token, type of the token that is due.
using Error = std::tuple<std::string, ANTLR3_UINT32, ANTLR3_MARKER, ANTLR3_UINT32>;
using Errors = std::vector<Error>;

void collectErrors(pANTLR3_BASE_RECOGNIZER recogniser, Errors& errors)
{
    recogniser->state->userp = &errors;
    recogniser->displayRecognitionError = [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*)
    {
        const pANTLR3_EXCEPTION error = failed->state->exception;
        const auto* const token = static_cast<pANTLR3_COMMON_TOKEN>(error->token);
        static_cast<Errors*>(failed->state->userp)
            ->emplace_back(test::errorKind(failed), token->type, error->index, error->expecting);
    };
}

struct Parsing
{
    Errors errors;
    ANTLR3_UINT32 errorCount;
    bool hasFailed;
};

// What the parser returns where its first rule fails.
const std::string failure = R"(<invalid> "Tree Error Node")";

Parsing parse(const std::string& text, bool withTrees)
{
    const test::ParserPipeline pipeline(text);
    test::ErrorKinds lexerErrors;
    test::collectErrors(pipeline.lexer().recogniser(), lexerErrors);
    Parsing parsing = {};
    collectErrors(pipeline.recogniser(), parsing.errors);
    std::optional<NoTree> noTree;
    if (!withTrees)
    {
        noTree.emplace(pipeline.parser()->adaptor);
    }
    const pANTLR3_BASE_TREE tree = pipeline.parser()->document(pipeline.parser()).tree;
    parsing.errorCount = pipeline.recogniser()->getNumberOfSyntaxErrors(pipeline.recogniser());
    parsing.hasFailed = noTree ? noTree->isOfFailure(tree) : test::treeText(tree) == failure;
    return parsing;
}

std::vector<std::string> samples()
{
    std::vector<std::string> texts = test::mistakenSamples();
    texts.insert(texts.end(), test::unusualDocuments.begin(), test::unusualDocuments.end());
    texts.insert(texts.end(), {"", "# c", "\n\n", "a = 1\n", test::mixedDocument(3000)});
    return texts;
}

// How much more memory the heap holds for the parser after a text than before.
std::size_t heldByParser(const std::string& text, bool withTrees)
{
    const test::ParserPipeline pipeline(text);
    const pANTLR3_INT_STREAM tokens = pipeline.tokens()->tstream->istream;
    tokens->_LA(tokens, 1); // fills the stream
    pipeline.recogniser()->displayRecognitionError =
        [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*) { forgetEarlierErrors(failed); };
    const std::size_t before = test::memoryInUse();
    std::optional<NoTree> noTree;
    if (!withTrees)
    {
        noTree.emplace(pipeline.parser()->adaptor);
    }
    pipeline.parser()->document(pipeline.parser());
    return test::memoryInUse() - before;
}

} // namespace

TEST(NoTree, changesNoError)
{
    std::size_t errors = 0;
    for (const std::string& text : samples())
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 100)));
        const Parsing expected = parse(text, true);
        const Parsing parsing = parse(text, false);
        EXPECT_EQ(parsing.errors, expected.errors);
        EXPECT_EQ(parsing.errorCount, expected.errorCount);
        errors += expected.errors.size();
    }
    EXPECT_GT(errors, 700u);
}

TEST(NoTree, tellsWhetherTheDocumentsRuleHasFailed)
{
    std::size_t failed = 0;
    std::size_t goneOn = 0;
    for (const std::string& text : samples())
    {
        const Parsing expected = parse(text, true);
        EXPECT_EQ(parse(text, false).hasFailed, expected.hasFailed) << text;
        failed += expected.hasFailed ? 1 : 0;
        goneOn += !expected.hasFailed && !expected.errors.empty() ? 1 : 0;
    }
    EXPECT_GT(failed, 100u);
    EXPECT_GT(goneOn, 100u);
}

TEST(NoTree, hasNodesOfFailureAndOthers)
{
    const std::string text;
    const test::ParserPipeline pipeline(text);
    const pANTLR3_BASE_TREE_ADAPTOR adaptor = pipeline.parser()->adaptor;
    const auto tree = [](void* node) { return static_cast<pANTLR3_BASE_TREE>(node); };
    const NoTree noTree(adaptor);
    const pANTLR3_BASE_TREE error =
        tree(adaptor->errorNode(adaptor, nullptr, nullptr, nullptr, nullptr));
    const pANTLR3_BASE_TREE any = tree(adaptor->nilNode(adaptor));
    EXPECT_TRUE(noTree.isOfFailure(error));
    EXPECT_FALSE(noTree.isOfFailure(any));
    EXPECT_FALSE(noTree.isOfFailure(nullptr));
    // A rule that has got a failed one's node has not failed itself.
    adaptor->addChild(adaptor, any, error);
    EXPECT_EQ(any->getChildCount(any), 0u);
    EXPECT_EQ(adaptor->becomeRoot(adaptor, error, any), any);
    EXPECT_EQ(adaptor->rulePostProcessing(adaptor, error), any);
    EXPECT_EQ(adaptor->createTypeText(adaptor, KEYVAL, nullptr), any);
    EXPECT_EQ(adaptor->create(adaptor, nullptr), any);
}

TEST(NoTree, leavesTheAdaptorAsItWas)
{
    for (const std::string& text : samples())
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 100)));
        test::ErrorKinds errors;
        const test::ParserPipeline untouched(text);
        test::collectErrors(untouched.lexer().recogniser(), errors);
        test::collectErrors(untouched.recogniser(), errors);
        const std::string expected =
            test::treeText(untouched.parser()->document(untouched.parser()).tree);

        const test::ParserPipeline pipeline(text);
        const pANTLR3_BASE_RECOGNIZER recogniser = pipeline.recogniser();
        test::collectErrors(pipeline.lexer().recogniser(), errors);
        test::collectErrors(recogniser, errors);
        const auto debugger = pipeline.parser()->adaptor->debugger;
        {
            const NoTree noTree(pipeline.parser()->adaptor);
            pipeline.parser()->document(pipeline.parser());
        }
        EXPECT_EQ(pipeline.parser()->adaptor->debugger, debugger);
        recogniser->reset(recogniser);
        const pANTLR3_INT_STREAM tokens = pipeline.tokens()->tstream->istream;
        tokens->seek(tokens, 0);
        EXPECT_EQ(test::treeText(pipeline.parser()->document(pipeline.parser()).tree), expected);
    }
}

TEST(NoTree, takesNoMemoryThatGrowsWithTheDocument)
{
    for (const std::string line : {"a = 1\n", "[[t]]\n", "a.b = [1, {c = 'x'}]\n", "a == 1\n",
                                   "a = ]\n", "a = 1 2\n", "\n \n"})
    {
        SCOPED_TRACE(testing::PrintToString(line));
        const std::size_t few = heldByParser(test::repeated(line, 10), false);
        const std::size_t many = heldByParser(test::repeated(line, 5000), false);
        EXPECT_LE(many, few + 1024);
    }
    // With trees there is something to measure, where the heap can be measured at all.
    const std::string valid = test::repeated("a = 1\n", 5000);
    if (heldByParser(valid, true) != 0)
    {
        EXPECT_GT(heldByParser(valid, true), heldByParser(valid, false) + 1'000'000);
    }
}
