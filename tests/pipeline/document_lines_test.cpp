// The lines of a document, read by the direct reader and the lexer by turns.
#include <gtest/gtest.h>

#include "pipeline/document_lines.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "direct/visitor_calls.h"
#include "pipeline/runtime_text.h"
#include "support/event_recorder.h"
#include "support/line_mixtures.h"
#include "support/text_generator.h"

#include "support/window_pipeline.h"

using namespace vorn::parsers::toml;

namespace
{

// All that an input knows of its place.
using Place = std::tuple<std::size_t, ANTLR3_UINT32, ANTLR3_INT32, std::size_t>;

Place placeOf(const test::Lexer& lexer)
{
    const ANTLR3_INPUT_STREAM& input = *lexer.input();
    const auto offset = [&](const void* at)
    {
        return static_cast<std::size_t>(static_cast<const char*>(at) -
                                        static_cast<const char*>(input.data));
    };
    return {offset(input.nextChar), input.line, input.charPositionInLine,
            offset(input.currentLine)};
}

// Type, text, offsets of the first and last bytes, line, column.
using Token =
    std::tuple<ANTLR3_UINT32, std::string, std::size_t, std::size_t, ANTLR3_UINT32, ANTLR3_INT32>;

Token seen(const test::Lexer& lexer, const ANTLR3_COMMON_TOKEN& token)
{
    return {token.type,
            std::string(lexeme(token)),
            lexer.offsetOf(token.start),
            lexer.offsetOf(token.stop),
            token.line,
            token.charPosition};
}

std::size_t offsetOf(const Token& token)
{
    return std::get<2>(token);
}

// The tokens and the errors of a lexer, and where it was at the end.
struct Lexed
{
    std::vector<Token> tokens;
    std::vector<std::string> errors;
    Place end;
};

// Notes an error with its place, and what the lexer has read.
void noteErrors(const test::Lexer& lexer, std::vector<std::string>& errors)
{
    lexer.state()->userp = &errors;
    lexer.recogniser()->displayRecognitionError = [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*)
    {
        const ANTLR3_EXCEPTION& error = *failed->state->exception;
        const auto erring = static_cast<pANTLR3_LEXER>(failed->super);
        static_cast<std::vector<std::string>*>(failed->state->userp)
            ->push_back(std::to_string(error.type) + " at " + std::to_string(error.line) + ":" +
                        std::to_string(error.charPositionInLine) + ", " + std::to_string(error.c) +
                        ": " + orEmpty(matchedText(erring)));
    };
}

// What the lexer finds alone.
Lexed lexAlone(const std::string& text)
{
    const test::Lexer lexer(text);
    Lexed lexed;
    noteErrors(lexer, lexed.errors);
    for (auto* token = lexer.next(); token->type != ANTLR3_TOKEN_EOF; token = lexer.next())
    {
        lexed.tokens.push_back(seen(lexer, *token));
    }
    lexed.end = placeOf(lexer);
    return lexed;
}

// What is found by both.
struct Found
{
    std::vector<std::pair<std::size_t, std::size_t>> valid; // where it starts and ends
    Lexed lexed;
};

Found findByTurns(const std::string& text)
{
    test::LinesPipeline pipeline(text);
    Found found;
    noteErrors(pipeline.lexer(), found.lexed.errors);
    pipeline.lines().forEach(
        [&](std::string_view valid)
        {
            const auto start = static_cast<std::size_t>(valid.data() - text.data());
            found.valid.emplace_back(start, start + valid.size());
        },
        [&](const ANTLR3_COMMON_TOKEN& token)
        { found.lexed.tokens.push_back(seen(pipeline.lexer(), token)); });
    found.lexed.end = placeOf(pipeline.lexer());
    return found;
}

// Mostly lines, so that many are passed.
std::string randomText(test::TextGenerator& texts)
{
    return texts.chance()
               ? texts.mixture(test::linePieces, 16)
               : "a = 1\n" + texts.mixture(test::linePieces, 3) + "\nb = 2\n# \xc3\xa9\n\n" +
                     texts.mixture(test::linePieces, 3) + "\nc = 3\n";
}

} // namespace

// The characters that are left are those of the last line: the lexer reads the blanks and the
// comment before its next token once more.
TEST(DocumentLines, placeTheLexerAtTheStartOfTheLastLine)
{
    for (const auto& [text, end, start] :
         std::vector<std::tuple<std::string, std::size_t, std::size_t>>{
             {"", 0, 0},
             {"a\n", 0, 0},
             {"# c\n", 4, 4},
             {"\n \n # c\n @", 9, 8},
             {"a = 1\n", 6, 6},
             {"a = 1\nb", 6, 6},
             {"a = '\xc3\xa9'\n[t]\n  b", 15, 13},
             {"a = 1\r\n\r\n# c\r\n@", 14, 14},
             {"a = 1 # \xe2\x82\xac\n\t# d", 16, 12},
             {"\n# c\na = '''\n\n'''\n = 1", 19, 18},
         })
    {
        SCOPED_TRACE(testing::PrintToString(text));
        test::LinesPipeline pipeline(text);
        const test::Lexer consumed(text);
        const std::string_view passed = pipeline.lines().passValid();
        EXPECT_EQ(passed.size(), end);
        EXPECT_EQ(passed.data(), passed.empty() ? nullptr : text.data());
        while (consumed.offset() < start)
        {
            consumed.input()->istream->consume(consumed.input()->istream);
        }
        EXPECT_EQ(placeOf(pipeline.lexer()), placeOf(consumed));
    }
}

TEST(DocumentLines, placeTheLexerAsIfItHadReadThem)
{
    test::TextGenerator texts;
    std::size_t passedLines = 0;
    for (int count = 0; count < 3000 && !HasFailure(); ++count)
    {
        const std::string text = randomText(texts);
        SCOPED_TRACE(testing::PrintToString(text));
        test::LinesPipeline pipeline(text);
        const test::Lexer consumed(text);
        test::silence(pipeline.lexer());
        for (bool atLineStart = true;;)
        {
            // The other one consumes character by character.
            const std::string_view valid =
                atLineStart ? pipeline.lines().passValid() : std::string_view();
            passedLines += valid.empty() ? 0 : 1;
            if (!valid.empty())
            {
                const auto end =
                    static_cast<std::size_t>(valid.data() - text.data()) + valid.rfind('\n') + 1;
                while (consumed.offset() < end)
                {
                    consumed.input()->istream->consume(consumed.input()->istream);
                }
            }
            ASSERT_EQ(placeOf(pipeline.lexer()), placeOf(consumed));
            const pANTLR3_COMMON_TOKEN token = pipeline.lexer().next();
            if (token->type == ANTLR3_TOKEN_EOF)
            {
                break;
            }
            atLineStart = isNewline(token->type);
            while (consumed.offset() < pipeline.lexer().offset())
            {
                consumed.input()->istream->consume(consumed.input()->istream);
            }
        }
    }
    EXPECT_GT(passedLines, 3000u);
}

// Whatever is passed, the other tokens are the same, at the same places.
TEST(DocumentLines, haveTheTokensOfTheLexerAlone)
{
    test::TextGenerator texts;
    std::size_t passed = 0;
    for (int count = 0; count < 5000 && !HasFailure(); ++count)
    {
        const std::string text = randomText(texts);
        SCOPED_TRACE(testing::PrintToString(text));
        const Lexed alone = lexAlone(text);
        const Found found = findByTurns(text);
        std::vector<Token> others;
        for (const Token& token : alone.tokens)
        {
            bool isPassed = false;
            for (const auto& [start, end] : found.valid)
            {
                const bool isWithin = offsetOf(token) >= start && offsetOf(token) < end;
                isPassed = isPassed || isWithin;
                // No token is cut in two.
                ASSERT_TRUE(!isWithin || std::get<3>(token) < end);
            }
            if (isPassed)
            {
                ++passed;
            }
            else
            {
                others.push_back(token);
            }
        }
        EXPECT_EQ(found.lexed.tokens, others);
        EXPECT_EQ(found.lexed.errors, alone.errors);
        EXPECT_EQ(found.lexed.end, alone.end);
    }
    EXPECT_GT(passed, 5000u);
}

TEST(DocumentLines, arePassedOnlyAfterLineBreaks)
{
    using Places = std::vector<std::pair<std::size_t, std::size_t>>;
    for (const auto& [text, valid] : std::vector<std::pair<std::string, Places>>{
             {"", {}},
             {"a = 1\n", {{0, 6}}},
             {"@ a = 1\n", {}},
             {"a = [\n@ b = 2\n", {}},
             {"a\nb = 2\n c\nd = 3\n\n[e]\n", {{2, 9}, {11, 22}}},
             // To the lexer line breaks in an array are like any other.
             {"a = [\nb = 2\n@", {{6, 12}}},
             // Line breaks after a comment, or after a blank, belong to what comes next.
             {"a\n# c\n \nb = 2\n", {{2, 14}}},
             // These are no line breaks, or more of them.
             {"a \xc0\x8a = 1\nb = 2\n\xc0\x8a", {}},
         })
    {
        EXPECT_EQ(findByTurns(text).valid, valid) << testing::PrintToString(text);
    }
}

TEST(DocumentLines, reportTheErrorsOfTheLexerAlone)
{
    test::TextGenerator texts;
    std::size_t errors = 0;
    for (int count = 0; count < 3000 && !HasFailure(); ++count)
    {
        const std::string text = randomText(texts);
        SCOPED_TRACE(testing::PrintToString(text));
        const Lexed alone = lexAlone(text);
        test::LinesPipeline pipeline(text);
        const Place start = placeOf(pipeline.lexer());
        std::vector<std::string> reported;
        noteErrors(pipeline.lexer(), reported);
        pipeline.lines().reportErrors();
        EXPECT_EQ(reported, alone.errors);
        const pANTLR3_BASE_RECOGNIZER recogniser = pipeline.lexer().recogniser();
        EXPECT_EQ(recogniser->getNumberOfSyntaxErrors(recogniser), alone.errors.size());
        // It goes back to the start.
        EXPECT_EQ(placeOf(pipeline.lexer()), start);
        errors += reported.size();
    }
    EXPECT_GT(errors, 1000u);
}

TEST(DocumentLines, countTheBracketsThatOpenLevelsOutsideOfValidLines)
{
    for (const auto& [text, brackets] : std::vector<std::pair<std::string, std::size_t>>{
             {"", 0},
             {"a = [[1]]\n", 0},
             {"a = [[1]]", 2},
             {"a = [[1]]\nb = [{[\n", 3},
             {"a = [\n[t]\n{\n", 2},
             {"]}\n@[\n", 1},
             {"a = '[[[\n", 0},
         })
    {
        test::LinesPipeline pipeline(text);
        test::silence(pipeline.lexer());
        EXPECT_EQ(pipeline.lines().reportErrors().brackets, brackets)
            << testing::PrintToString(text);
        // The same once more.
        EXPECT_EQ(pipeline.lines().reportErrors().brackets, brackets)
            << testing::PrintToString(text);
    }
}

// The text may be long, and its tokens many.
TEST(DocumentLines, keepNoTokens)
{
    std::string text;
    for (int count = 0; count < 2000; ++count)
    {
        text += "a = = 1\n";
    }
    test::LinesPipeline pipeline(text);
    const ANTLR3_TOKEN_FACTORY& factory = *pipeline.lexer().state()->tokFactory;
    const auto pool = factory.thisPool;
    const auto next = factory.nextToken;
    std::size_t tokens = 0;
    pipeline.lines().forEach([](std::string_view) {},
                             [&](const ANTLR3_COMMON_TOKEN&) { ++tokens; });
    EXPECT_EQ(tokens, 10000u);
    EXPECT_EQ(factory.thisPool, pool);
    EXPECT_EQ(factory.nextToken, next);
}

TEST(DocumentLines, thatWerePassedLastGoToTheVisitor)
{
    const std::string text = "a = '" + std::string(300, 'x') + "'\nb\nc = 1\nd\n";
    test::LinesPipeline pipeline(text);
    const auto handed = [&]
    {
        test::EventRecorder visitor;
        std::vector<char> buffer(VisitorCalls::bytesFor(pipeline.lines().longestText()));
        pipeline.lines().handTo(visitor, buffer.data());
        return visitor.events();
    };
    EXPECT_EQ(pipeline.lines().passValid().size(), 307u);
    EXPECT_EQ(pipeline.lines().longestText(), 302u);
    EXPECT_EQ(handed(), test::Events({"beginKeyValue", "visitBareKey a",
                                      "visitLiteralString " + text.substr(4, 302), "endKeyValue"}));
    while (!isNewline(pipeline.lexer().next()->type))
    {
    }
    EXPECT_EQ(pipeline.lines().passValid(), "c = 1\n");
    EXPECT_EQ(handed(),
              test::Events({"beginKeyValue", "visitBareKey c", "visitInteger 1", "endKeyValue"}));
    EXPECT_EQ(pipeline.lines().passValid(), "");
    // From the start again.
    pipeline.lines().restart();
    EXPECT_EQ(pipeline.lines().passValid().size(), 307u);
}
