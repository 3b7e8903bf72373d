// What the reports of a parser's errors say of the whole document, beside what they would say with
// the runtime's token stream.
#include <gtest/gtest.h>

#include "pipeline/document_text.h"

#include <cstddef>
#include <functional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "grammar/runtime_string.h"
#include "pipeline/syntax_check.h"
#include "pipeline/unreported_errors.h"
#include "support/line_mixtures.h"
#include "support/text_generator.h"

#include "support/window_pipeline.h"

using namespace std::string_literals;
using namespace vorn::parsers::toml;

namespace
{

// The text of a document, asked for at its first token, and as the runtime has it.
struct BothTexts
{
    std::string own;
    std::string runtimes;
};

std::string runtimesText(const std::string& text)
{
    const test::ParserPipeline pipeline(text);
    test::silence(pipeline.lexer());
    const pANTLR3_TOKEN_STREAM stream = pipeline.tokens()->tstream;
    stream->_LT(stream, 1); // fills the stream
    // Without a token the runtime would read before the first one.
    const bool isEmpty = stream->istream->size(stream->istream) == 0;
    return isEmpty ? "" : characters(stream->toString(stream));
}

BothTexts textOf(const std::string& text)
{
    test::WindowPipeline pipeline(text);
    const UnreportedErrors unreported(pipeline.lexer().recogniser());
    DocumentText document(pipeline.lines(), pipeline.window());
    EXPECT_STREQ(document.characters(), "");
    const pANTLR3_TOKEN_STREAM stream = pipeline.stream();
    document.indexOf(*stream->_LT(stream, 1));
    return {document.characters(), runtimesText(text)};
}

// An error of a parser's: its type, and its token's type, text, line, column and index.
using Error =
    std::tuple<ANTLR3_UINT32, ANTLR3_UINT32, std::string, ANTLR3_UINT32, ANTLR3_INT32, long>;
using Errors = std::vector<Error>;
using Display = std::function<void(pANTLR3_BASE_RECOGNIZER)>;

void install(pANTLR3_BASE_RECOGNIZER parser, Display& display)
{
    parser->state->userp = &display;
    parser->displayRecognitionError = [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*)
    { (*static_cast<Display*>(failed->state->userp))(failed); };
}

Error seen(const ANTLR3_EXCEPTION& error)
{
    auto* const token = static_cast<pANTLR3_COMMON_TOKEN>(error.token);
    return {error.type,  token->type,         characters(token->getText(token)),
            token->line, token->charPosition, static_cast<long>(token->index)};
}

// With the runtime's stream.
Errors runtimesErrors(const std::string& text)
{
    const test::ParserPipeline pipeline(text);
    test::silence(pipeline.lexer());
    Errors errors;
    Display display = [&](pANTLR3_BASE_RECOGNIZER failed)
    { errors.push_back(seen(*failed->state->exception)); };
    install(pipeline.recogniser(), display);
    pipeline.parser()->document(pipeline.parser());
    return errors;
}

// With lines that are passed, and tokens that are forgotten.
Errors errorsOf(const std::string& text)
{
    test::WindowPipeline pipeline(text);
    const UnreportedErrors unreported(pipeline.lexer().recogniser());
    DocumentText document(pipeline.lines(), pipeline.window());
    const std::string expected = runtimesText(text);
    Errors errors;
    Display display = [&](pANTLR3_BASE_RECOGNIZER failed)
    {
        auto* const token = static_cast<pANTLR3_COMMON_TOKEN>(failed->state->exception->token);
        const auto before = token->index;
        {
            const ShownIndex index(token, document);
            errors.push_back(seen(*failed->state->exception));
        }
        EXPECT_EQ(token->index, before);
        EXPECT_EQ(document.characters(), expected);
    };
    install(pipeline.recogniser(), display);
    checkSyntax(*pipeline.parser(), pipeline.window());
    return errors;
}

} // namespace

TEST(DocumentText, isThatOfAllTokensJoined)
{
    for (const auto& [text, expected] : std::vector<std::pair<std::string, std::string>>{
             {"", ""},
             {" \t # c", ""},
             {"\xef\xbb\xbf", ""},
             {"\xef\xbb\xbf"
              "a = 1\n",
              "a=1\n"},
             {"a", "a"},
             {" a = 1 # c\n", "a=1\n"},
             {"[ a . \"b c\" ]\r\n\r\n# c\n", "[a.\"b c\"]\r\n\r\n\n"},
             {"@a@ = @\n", "a=\n"},
             {"a = 1 # c\n@a@ = @\n\nb = 2 # c\n", "a=1\na=\n\nb=2\n"},
             {"'\xc3\xa9\xe2\x82\xac'\n", "'\xc3\xa9\xe2\x82\xac'\n"},
             {"\"x\0y\" 'z'\n"s, "\"x'z'\n"},
             {"'\0' '\0\0' b\n"s, "''b\n"},
             {"'''\n\0'''\n"s, "'''\n\n"},
             {"a = 'b\0'\nc '\0'\nd = '''\0'''"s, "a='b\nc'\nd='''"},
             {"1979-05-27T07:32:00Z,inf", "1979-05-27T07:32:00Z,inf"},
         })
    {
        SCOPED_TRACE(testing::PrintToString(text));
        const BothTexts joined = textOf(text);
        EXPECT_EQ(joined.own, expected);
        EXPECT_EQ(joined.runtimes, expected);
    }
}

TEST(DocumentText, ofManyTokensIsWhole)
{
    std::string text;
    std::string expected;
    for (int index = 0; index < 5000; ++index)
    {
        const std::string number = std::to_string(index);
        // Now and then a line that is not valid.
        const std::string mark = index % 7 == 3 ? "" : "=";
        text += "key-" + number + " " + mark + " '\xc3\xa9" + number + "' # " + number + "\n";
        expected += "key-" + number + mark + "'\xc3\xa9" + number + "'\n";
    }
    const BothTexts joined = textOf(text);
    EXPECT_TRUE(joined.own == expected);
    EXPECT_TRUE(joined.runtimes == expected);
}

TEST(DocumentText, isThatOfTheRuntimesStreamForAnyText)
{
    test::TextGenerator texts;
    for (int count = 0; count < 3000 && !HasFailure(); ++count)
    {
        const std::string text = texts.mixture(test::linePieces, 16);
        SCOPED_TRACE(testing::PrintToString(text));
        const BothTexts joined = textOf(text);
        EXPECT_EQ(joined.own, joined.runtimes);
    }
}

// It is made where the lexer and the window are in the middle of the document, and goes on.
TEST(DocumentText, leavesTheLexerAndTheWindowWhereTheyAre)
{
    const std::string text = "a = 1\nb c d e f\ng = 2\nh i\n";
    test::WindowPipeline pipeline(text);
    DocumentText document(pipeline.lines(), pipeline.window());
    const pANTLR3_TOKEN_STREAM stream = pipeline.stream();
    pipeline.window().enterLine();
    stream->istream->consume(stream->istream);
    const pANTLR3_COMMON_TOKEN token = stream->_LT(stream, 1);
    EXPECT_EQ(lexeme(*token), "c");
    const std::size_t offset = pipeline.lexer().offset();
    const ANTLR3_UINT32 line = pipeline.lexer().input()->line;
    const ANTLR3_INT32 column = pipeline.lexer().input()->charPositionInLine;
    EXPECT_EQ(document.indexOf(*token), 5u);
    EXPECT_EQ(pipeline.lexer().offset(), offset);
    EXPECT_EQ(pipeline.lexer().input()->line, line);
    EXPECT_EQ(pipeline.lexer().input()->charPositionInLine, column);
    EXPECT_STREQ(document.characters(), "a=1\nbcdef\ng=2\nhi\n");
    EXPECT_EQ(lexeme(*token), "c");
    for (const std::string expected : {"b", "d", "e"})
    {
        const ANTLR3_INT32 place = expected == "b" ? -1 : expected == "d" ? 2 : 3;
        EXPECT_EQ(lexeme(*stream->_LT(stream, place)), expected);
    }
    // Other tokens' indices follow from that, also without another reading.
    EXPECT_EQ(document.indexOf(*stream->_LT(stream, 2)), 6u);
    EXPECT_EQ(document.indexOf(*stream->_LT(stream, -1)), 4u);
}

TEST(DocumentText, hasTheIndicesOfTheRuntimesStream)
{
    for (const std::string& text :
         {"a = 1\nb = = 1\n"s, "= 1\na = 1\n= 2\n"s, "a = 1\n[b\nc = 1\n[d\ne = [\n"s,
          "a = [1,\n2\n3]\nb = 1\n= 2\n= 3\n"s, "a = 1\n\n# c\n\nb = 1\nc d\ne = 1\nf g"s,
          "a = 1\nb = 2\nc"s, "a = @\nb = 'x\nc = 3\nd d d = d\ne = 1"s})
    {
        SCOPED_TRACE(text);
        const Errors errors = errorsOf(text);
        EXPECT_FALSE(errors.empty());
        EXPECT_EQ(errors, runtimesErrors(text));
    }
}

// A window takes its tokens' memory again after 1,024 of one statement.  Where that happens while
// an error is looked at, its token is kept, and has its index before the first report.
TEST(DocumentText, hasTheIndicesWhereTokensAreTakenAgainWithinAStatement)
{
    for (std::size_t elements = 500; elements < 520; ++elements)
    {
        SCOPED_TRACE(elements);
        std::string text = "a = 1\nb = [\n";
        for (std::size_t count = 0; count < elements; ++count)
        {
            text += "1,";
        }
        text += "1 } ]\nc = {]\n\ne";
        const Errors errors = errorsOf(text);
        EXPECT_GT(errors.size(), 1u);
        EXPECT_EQ(errors, runtimesErrors(text));
    }
}

TEST(DocumentText, hasTheIndicesOfTheRuntimesStreamForAnyText)
{
    test::TextGenerator texts;
    std::size_t total = 0;
    for (int count = 0; count < 3000 && !HasFailure(); ++count)
    {
        const std::string text = texts.mixture(test::linePieces, 24);
        SCOPED_TRACE(testing::PrintToString(text));
        const Errors errors = errorsOf(text);
        EXPECT_EQ(errors, runtimesErrors(text));
        total += errors.size();
    }
    EXPECT_GT(total, 3000u);
}
