#include "diagnosis/choice.h"
#include "diagnosis/location.h"
#include "diagnosis/long_statement.h"

#include "differential/document_generator.h"
#include "differential/escaped.h"
#include "support/reading.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace diagnosis = vorn::parsers::toml::diagnosis;

namespace
{

using diagnosis::DamagedPart;
using diagnosis::Mistake;

std::optional<Mistake> firstMistake(const std::string& text, bool closesBrackets = false)
{
    DamagedPart part;
    part.part = diagnosis::wholeOf(text);
    part.isLast = true;
    part.closesBrackets = closesBrackets;
    return diagnosis::firstMistake(text, part);
}

struct Expected
{
    std::string text;
    std::size_t begin;
    std::string code;
};

} // namespace

TEST(LongStatement, hasNoMistakeIfItIsValid)
{
    EXPECT_FALSE(firstMistake("a = [1, [2]]\n"));
    // Read by the lexer, not by the scanner.
    EXPECT_FALSE(firstMistake("a = \"\xed\xa0\x80\"\n"));
    EXPECT_FALSE(firstMistake("a = [1\xf0\x80\x82]\n")); // an overlong ']'
    EXPECT_FALSE(firstMistake(""));
}

TEST(LongStatement, hasTheMistakeAtWhichTheReaderStops)
{
    const std::vector<Expected> documents = {
        {"a = [1, [2, ]\n", 14, "unclosed-array"},
        {"a = [1, [], []]\n", 9, "empty-array"},
        {"a = [1 2]\n", 7, "missing-comma"},
        {"a = {b = {}}\n", 10, "empty-inline-table"},
        {"a = 1 b = 2\n", 6, "extra-text"},
        {"a = x\n", 4, "unquoted-string"},
        {"1 = 2\n", 0, "unquoted-key"},
        {"[a.]\n", 3, "missing-key"},
        {"[a\n", 2, "unclosed-header"},
        {"a.b.1 = 2\n", 4, "unquoted-key"},
        {"a = [1\n\n,\n \n2]\n", 10, "blank-line-in-array"},
        {"a = 1", 5, "missing-last-line-break"},
        {"a = 1\xc3", 5, "not-utf8"},
        {"a = [\"\\q\"]\n", 6, "unknown-escape"},
    };
    for (const Expected& expected : documents)
    {
        SCOPED_TRACE(expected.text);
        const auto mistake = firstMistake(expected.text);
        ASSERT_TRUE(mistake);
        EXPECT_EQ(mistake->begin, expected.begin) << mistake->message;
        EXPECT_EQ(mistake->code, expected.code) << mistake->message;
    }
}

TEST(LongStatement, isFollowedByTheStatementAfterIt)
{
    const std::string text = "a = [1\nb = 2\n";
    DamagedPart part;
    part.part = {0, 7, {vorn::parsers::toml::TokenType::bareKey, 7, 8}};
    const auto mistake = diagnosis::firstMistake(text, part);
    ASSERT_TRUE(mistake);
    EXPECT_STREQ(mistake->code, "unclosed-array");
    EXPECT_EQ(mistake->begin, 7U);
    EXPECT_EQ(mistake->end, 8U);
    EXPECT_EQ(diagnosis::located(text, {*mistake})[0].message,
              "the array opened on line 1 is not closed before the word 'b'");
}

// The reader over the lexer's tokens and the parser find the first mistake in the same place.
TEST(LongStatement, hasTheFirstMistakeOfTheParser)
{
    test::DocumentGenerator generator(11);
    std::size_t rejected = 0;
    for (std::size_t number = 0; number < 4000 / VORN_TEST_STEP && !HasFailure(); ++number)
    {
        const std::string text = generator.next().substr(0, 2000);
        SCOPED_TRACE(test::escaped(text));
        std::vector<Mistake> mistakes;
        diagnosis::addMistakes(text, diagnosis::recognise(text, diagnosis::wholeOf(text)),
                               mistakes);
        const auto first = firstMistake(text);
        ASSERT_EQ(first.has_value(), !mistakes.empty());
        if (first)
        {
            ++rejected;
            // (The parser's words depend on whether a bracket is closed.)
            const auto isFirst = [&](const Mistake& one)
            { return one.begin == mistakes[0].begin && one.code == mistakes[0].code; };
            EXPECT_TRUE(isFirst(*first) || isFirst(*firstMistake(text, true)))
                << first->message << " at " << first->begin << ", not " << mistakes[0].message
                << " at " << mistakes[0].begin;
        }
    }
    EXPECT_GT(rejected, 1000U / VORN_TEST_STEP);
}
