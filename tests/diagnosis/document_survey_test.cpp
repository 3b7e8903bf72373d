// What is counted of a document before it is read.
#include <gtest/gtest.h>

#include "diagnosis/document_survey.h"

#include <malloc.h>

#include <string>
#include <tuple>
#include <vector>

#include "support/large_documents.h"
#include "support/recognition_errors.h"
#include "support/refused_documents.h"
#include "support/stderr_capture.h"

#include "support/parser_pipeline.h"

using namespace std::string_literals;
using vorn::parsers::toml::diagnosis::DocumentSurvey;
using vorn::parsers::toml::diagnosis::survey;

namespace
{

// Type, place in the text, line, place in the line, text.
using Token = std::tuple<ANTLR3_UINT32, std::size_t, ANTLR3_UINT32, int, std::string>;

struct Lexed
{
    std::vector<Token> tokens;
    test::ErrorKinds errors;
    unsigned errorCount = 0;
};

// Everything that the lexer makes of its text from where it is.
Lexed lexed(const test::Lexer& lexer)
{
    Lexed result;
    test::collectErrors(lexer.recogniser(), result.errors);
    for (auto* token = lexer.next(); token->getType(token) != ANTLR3_TOKEN_EOF;
         token = lexer.next())
    {
        const pANTLR3_STRING text = token->getText(token);
        result.tokens.emplace_back(token->getType(token),
                                   lexer.offsetOf(token->getStartIndex(token)),
                                   token->getLine(token), token->getCharPositionInLine(token),
                                   std::string(reinterpret_cast<char*>(text->chars), text->len));
    }
    result.errorCount = lexer.recogniser()->getNumberOfSyntaxErrors(lexer.recogniser());
    return result;
}

std::size_t bracketsIn(const std::vector<Token>& tokens)
{
    std::size_t count = 0;
    for (const Token& token : tokens)
    {
        const std::string& text = std::get<std::string>(token);
        count += text == "[" || text == "{" ? 1 : 0;
    }
    return count;
}

// Documents of all kinds, and such as the lexer finds errors in.
std::vector<std::string> documents()
{
    std::vector<std::string> texts = {"",
                                      " \t# c",
                                      "a",
                                      "\xef\xbb\xbf",
                                      "\xef\xbb\xbf"
                                      "a = [1]\n",
                                      "[[a]]\nb = [{c = '[{'}] # [{\n",
                                      "@",
                                      "@\na = @\n@",
                                      "a = \"x\0[\"\n"s,
                                      "a = '\xd0\xba'\n\xd0\xba = '\n",
                                      "a = \"\"\"[\n{",
                                      test::mixedDocument(3000),
                                      test::repeated("[{@\n", 500)};
    for (const test::RefusedDocuments& refused : test::refusedDocuments)
    {
        texts.insert(texts.end(), refused.texts.begin(), refused.texts.end());
    }
    texts.insert(texts.end(), test::unusualDocuments.begin(), test::unusualDocuments.end());
    return texts;
}

// How much memory in use a survey leaves behind.
std::size_t keptBySurvey(const std::string& text)
{
    const test::Lexer lexer(text);
    const auto inUse = []
    {
        const struct mallinfo2 info = mallinfo2();
        return info.uordblks + info.hblkhd;
    };
    const std::size_t before = inUse();
    survey(lexer.get()->pLexer);
    return inUse() - before;
}

} // namespace

TEST(DocumentSurvey, countsTokensAndOpeningBrackets)
{
    struct Case
    {
        std::string text;
        std::size_t tokens;
        std::size_t brackets;
    };
    for (const auto& [text, tokens, brackets] : std::vector<Case>{{"", 0, 0},
                                                                  {"a = 1 # c\n", 4, 0},
                                                                  {"a = [1, 2]\n", 8, 1},
                                                                  {"a = {b = [1]}\n", 10, 2},
                                                                  {"[[a]]\n", 6, 2},
                                                                  {"]}", 2, 0},
                                                                  {"'[{' \"[{\" '''\n[{'''", 3, 0},
                                                                  {"@a@[@", 2, 1}})
    {
        SCOPED_TRACE(text);
        const test::Lexer lexer(text);
        const DocumentSurvey seen = survey(lexer.get()->pLexer);
        EXPECT_EQ(seen.tokens, tokens);
        EXPECT_EQ(seen.brackets, brackets);
    }
}

TEST(DocumentSurvey, leavesTheLexerAsItWas)
{
    for (const std::string& text : documents())
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 100)));
        const Lexed expected = lexed(test::Lexer(text));
        const test::Lexer lexer(text);
        const std::size_t start = lexer.offset();
        const DocumentSurvey first = survey(lexer.get()->pLexer);
        EXPECT_EQ(lexer.offset(), start);
        EXPECT_EQ(lexer.state()->token, nullptr);
        const DocumentSurvey second = survey(lexer.get()->pLexer);
        const Lexed afterwards = lexed(lexer);
        EXPECT_EQ(afterwards.tokens, expected.tokens);
        EXPECT_EQ(afterwards.errors, expected.errors);
        EXPECT_EQ(afterwards.errorCount, expected.errorCount);

        EXPECT_EQ(first.tokens, expected.tokens.size());
        EXPECT_EQ(first.brackets, bracketsIn(expected.tokens));
        EXPECT_EQ(second.tokens, first.tokens);
        EXPECT_EQ(second.brackets, first.brackets);
    }
}

TEST(DocumentSurvey, countsTheTokensOfTheParser)
{
    for (const std::string& text : documents())
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 100)));
        const test::StderrCapture quiet;
        const test::ParserPipeline pipeline(text);
        const DocumentSurvey seen = survey(pipeline.lexer().get()->pLexer);
        const pANTLR3_TOKEN_STREAM stream = pipeline.tokens()->tstream;
        stream->_LT(stream, 1); // fills the stream
        EXPECT_EQ(seen.tokens, stream->istream->size(stream->istream));
    }
}

TEST(DocumentSurvey, saysNothingAboutErrors)
{
    std::size_t withErrors = 0;
    for (const std::string& text : documents())
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 100)));
        const test::StderrCapture standardError;
        const test::Lexer lexer(text);
        test::ErrorKinds errors;
        test::collectErrors(lexer.recogniser(), errors);
        const auto reportError = lexer.recogniser()->reportError;
        survey(lexer.get()->pLexer);
        EXPECT_EQ(errors, test::ErrorKinds());
        EXPECT_EQ(lexer.recogniser()->getNumberOfSyntaxErrors(lexer.recogniser()), 0u);
        EXPECT_EQ(lexer.recogniser()->reportError, reportError);
        EXPECT_EQ(lexer.state()->exception, nullptr);
        EXPECT_EQ(standardError.text(), "");
        withErrors += lexed(lexer).errorCount > 0 ? 1 : 0;
    }
    EXPECT_GT(withErrors, 10u);
}

TEST(DocumentSurvey, keepsNoMemoryForTokensAndErrors)
{
    for (const std::string part : {"a = 1\n", "[{", "@", "'\n", "@ b\n", "a = \"\\q\"\n"})
    {
        SCOPED_TRACE(testing::PrintToString(part));
        const std::size_t one = keptBySurvey(part);
        const std::size_t many = keptBySurvey(test::repeated(part, 20'000));
        EXPECT_LE(many, one + 1024);
    }
}
