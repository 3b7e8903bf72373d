// Texts of the runtime's objects.
#include <gtest/gtest.h>

#include "pipeline/runtime_text.h"

#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "grammar/runtime_string.h"
#include "support/stderr_capture.h"
#include "support/tree_text.h"

#include "support/parser_pipeline.h"

using namespace std::string_literals;
using namespace vorn::parsers::toml;

namespace
{

struct BothTexts
{
    std::string own;
    std::string runtimes;
};

std::string textOrNull(const OwnedText& text)
{
    return text != nullptr ? text.get() : "(null)";
}

// The text of the tree of `text`, as the runtime makes it and as textOf() does.
BothTexts textOfTree(const std::string& text)
{
    const test::StderrCapture quiet;
    const test::ParserPipeline pipeline(text);
    const pANTLR3_BASE_TREE tree = pipeline.parser()->document(pipeline.parser()).tree;
    return {textOrNull(textOf(tree)), characters(tree->toStringTree(tree))};
}

// What the lexer had read at each of its errors.
using MatchedTexts = std::vector<BothTexts>;

MatchedTexts textsMatched(const std::string& text)
{
    MatchedTexts texts;
    const test::Lexer lexer(text);
    lexer.state()->userp = &texts;
    lexer.recogniser()->displayRecognitionError = [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*)
    {
        const auto erring = static_cast<pANTLR3_LEXER>(failed->super);
        static_cast<MatchedTexts*>(failed->state->userp)
            ->push_back({textOrNull(matchedText(erring)), characters(erring->getText(erring))});
    };
    while (lexer.next()->type != ANTLR3_TOKEN_EOF)
    {
    }
    return texts;
}

} // namespace

TEST(RuntimeText, ofNothingIsEmpty)
{
    EXPECT_STREQ(orEmpty(nullptr), "");
    const OwnedText text(strdup("a"));
    EXPECT_EQ(orEmpty(text), text.get());
}

TEST(RuntimeText, ofALexedTokenIsWhatStandsInTheInput)
{
    const std::string text = " a='b\0c' # d\n"s;
    const test::Lexer lexer(text);
    for (const std::string expected : {"a", "=", "'b", "\n"})
    {
        const pANTLR3_COMMON_TOKEN token = lexer.next();
        EXPECT_EQ(lexeme(*token), expected);
        EXPECT_TRUE(isLexed(*token));
    }
    EXPECT_EQ(lexeme(*lexer.next()).data(), text.data() + text.size());
}

TEST(RuntimeText, isInTheInputForLexedTokensOnly)
{
    const std::string text = "a";
    const test::Lexer lexer(text);
    EXPECT_TRUE(isLexed(*lexer.next()));
    const pANTLR3_COMMON_TOKEN endOfInput = lexer.next();
    EXPECT_EQ(endOfInput->type, ANTLR3_TOKEN_EOF);
    EXPECT_FALSE(isLexed(*endOfInput));

    test::TreeBuilder builder;
    const pANTLR3_BASE_TREE nodes = builder.build(R"(KEYVAL BARE_KEY "a")");
    for (ANTLR3_UINT32 index = 0; index < 2; ++index)
    {
        const auto node = static_cast<pANTLR3_BASE_TREE>(nodes->getChild(nodes, index));
        EXPECT_FALSE(isLexed(*node->getToken(node)));
        // A string is what it becomes when it is asked for.
        EXPECT_NE(node->getText(node), nullptr);
        EXPECT_EQ(node->getToken(node)->textState, ANTLR3_UINT32{ANTLR3_TEXT_STRING});
        EXPECT_FALSE(isLexed(*node->getToken(node)));
    }
}

TEST(RuntimeText, ofAnErrorIsWhatTheLexerHasReadOfTheToken)
{
    for (const auto& [text, expected] :
         std::vector<std::pair<std::string, std::vector<std::string>>>{
             {"", {}},
             {"a = 1\n", {}},
             {"@", {"@"}},
             {"a@b", {"@"}},
             {"'x\n", {"'x\n"}},
             {"a = 1979-05-27 x", {"1"}},
             {"\xd0\xba", {"\xd0"}},
             {"'x", {"'x"}},
             {"\"\\q\"\n", {"\"\\q", "\""}},
             {"@'\0\n"s, {"@", "'"}},
         })
    {
        SCOPED_TRACE(testing::PrintToString(text));
        std::vector<std::string> own;
        for (const BothTexts& matched : textsMatched(text))
        {
            own.push_back(matched.own);
            EXPECT_EQ(matched.own, matched.runtimes);
        }
        EXPECT_EQ(own, expected);
    }
}

TEST(RuntimeText, ofATreeHasItsNodesInParentheses)
{
    for (const auto& [text, expected] : std::vector<std::pair<std::string, std::string>>{
             {"a = 1\n", "(KEYVAL (KEY_BARE a) (VAL_INTEGER 1)) \n <EOF>"},
             {"", "<EOF>"},
             {"[a.'b']\n", ""},
             {"a = [1, {b = \"x\"}]\n[[c]]\n", ""},
             {"a = []\n", ""},
             {"a = '\0x'\n"s, ""},
             {"@\n[\na = = 1\nb\n", ""},
         })
    {
        SCOPED_TRACE(testing::PrintToString(text));
        const BothTexts both = textOfTree(text);
        EXPECT_EQ(both.own, both.runtimes);
        if (!expected.empty())
        {
            EXPECT_EQ(both.own, expected);
        }
    }
}

TEST(RuntimeText, ofATreeOfNothingHasAName)
{
    test::TreeBuilder builder;
    const pANTLR3_BASE_TREE nothing = builder.build("");
    EXPECT_STREQ(orEmpty(textOf(nothing)), "nil");
    EXPECT_STREQ(characters(nothing->toStringTree(nothing)), "nil");
}

TEST(RuntimeText, becomesAStringOfAFactory)
{
    const std::string nothing;
    const test::ParserPipeline pipeline(nothing);
    const pANTLR3_STRING_FACTORY factory = pipeline.tokens()->tstream->tokenSource->strFactory;
    for (const std::string expected : {"", "a", "<missing '='>"})
    {
        const ANTLR3_UINT32 strings = factory->index;
        OwnedText text(strdup(expected.c_str()));
        const char* const bytes = text.get();
        const pANTLR3_STRING string = newString(factory, std::move(text));
        EXPECT_EQ(factory->index, strings + 1);
        // It takes the text, and is one that can grow.
        EXPECT_EQ(characters(string), bytes);
        EXPECT_EQ(string->len, expected.size());
        EXPECT_EQ(string->size, expected.size() + 1);
        string->append8(string, "more");
        EXPECT_EQ(characters(string), expected + "more");
        factory->destroy(factory, string);
        EXPECT_EQ(factory->index, strings);
    }
    const pANTLR3_STRING none = newString(factory, nullptr);
    EXPECT_EQ(none->chars, nullptr);
    EXPECT_EQ(none->len, 0u);
}

TEST(RuntimeText, ofATreeIsThatOfTheRuntimeForAnyShape)
{
    for (const std::string trees :
         {"KEYVAL", R"(KEYVAL(BARE_KEY "a"))", "EOF", R"(VAL_ARRAY(EOF, KEYVAL(EOF)) EOF)",
          R"(KEYVAL(KEY_BARE(BARE_KEY "a"), VAL_ARRAY(VAL_INTEGER(DEC_INT "1"))) NL "\n")",
          R"(<invalid> "Tree Error Node")"})
    {
        SCOPED_TRACE(trees);
        test::TreeBuilder builder;
        const pANTLR3_BASE_TREE tree = builder.build(trees);
        EXPECT_EQ(textOrNull(textOf(tree)), characters(tree->toStringTree(tree)));
    }
}
