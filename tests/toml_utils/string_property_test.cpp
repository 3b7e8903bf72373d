// Generated texts of strings against a second computation of their values.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <vorn/parsers/toml.h>

#include "support/text_generator.h"

using namespace std::string_literals;
using namespace vorn::parsers::toml;
using test::TextGenerator;

namespace
{

constexpr int rounds = 100'000 / VORN_TEST_STEP;

// Less than this of a kind of text would not be worth the name of a test.
constexpr int many = rounds / 20;

bool beginsWith(const std::string& text, const std::string& start)
{
    return text.size() >= start.size() && text.substr(0, start.size()) == start;
}

bool endsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

std::string withoutDelimiter(const std::string& text, const std::string& delimiter)
{
    if (!beginsWith(text, delimiter) || !endsWith(text, delimiter))
    {
        return text;
    }
    const std::string start = text.substr(0, text.size() - delimiter.size());
    return start.size() < delimiter.size() ? "" : start.substr(delimiter.size());
}

std::string withoutQuotes(const std::string& text)
{
    if (beginsWith(text, "'"))
    {
        return withoutDelimiter(text, "'");
    }
    return beginsWith(text, "\"") ? withoutDelimiter(text, "\"") : text;
}

std::string withoutFirstLineFeed(const std::string& text)
{
    return beginsWith(text, "\n") ? text.substr(1) : text;
}

bool isBlank(char character)
{
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

// Removes in place, one character at a time, and searches again.
std::string basicContent(const std::string& token)
{
    std::string text = withoutFirstLineFeed(withoutDelimiter(token, "\"\"\""));
    for (std::size_t at = 0; at + 1 < text.size(); ++at)
    {
        if (text[at] == '\\' && text[at + 1] == '\n')
        {
            text.erase(at, 2);
            while (at < text.size() && isBlank(text[at]))
            {
                text.erase(at, 1);
            }
        }
    }
    return text;
}

const std::vector<std::string> pieces = {
    "'",  "'",  "\"",   "\"",   "'''",     "\"\"\"", "\\",  "\\",       "\\\n", "\\\n",
    "\n", "\n", "\r\n", " ",    " ",       "\t",     "a",   "b",        "\\\\", "\\n",
    "\v", "\f", "\0"s,  "\\\"", "\\u00e9", "\r",     "abc", "\xc3\xa9", "#",    "_"};

// Half of them as the lexer has them: enclosed in delimiters.
std::string stringText(TextGenerator& generator, const std::vector<std::string>& delimiters)
{
    const std::string content = generator.mixture(pieces, 10);
    if (generator.chance())
    {
        return content;
    }
    const std::string& delimiter = generator.oneOf(delimiters);
    return delimiter + content + delimiter;
}

// Compares for many texts; a part of them must be changed, and a part returned as it is.
template <typename Actual, typename Expected>
void expectSame(Actual actual, Expected expected, const std::vector<std::string>& delimiters)
{
    TextGenerator generator;
    int changed = 0;
    for (int round = 0; round < rounds; ++round)
    {
        const std::string text = stringText(generator, delimiters);
        const std::string value = expected(text);
        ASSERT_EQ(actual(text), value) << "of " << testing::PrintToString(text);
        changed += value != text;
    }
    EXPECT_GT(changed, many);
    EXPECT_LT(changed, rounds - many);
}

} // namespace

TEST(TomlStringProperty, unquote)
{
    expectSame([](const std::string& text) { return unquote(text); }, withoutQuotes,
               {"'", "\"", "'''"});
}

TEST(TomlStringProperty, multilineString)
{
    expectSame(processMultilineString, basicContent, {"\"\"\"", "\"\"\"", "\"", "'''"});
}

TEST(TomlStringProperty, multilineLiteralString)
{
    expectSame(processMultilineLiteralString,
               [](const std::string& text)
               { return withoutFirstLineFeed(withoutDelimiter(text, "'''")); },
               {"'''", "'''", "'", "\"\"\""});
}

TEST(TomlStringProperty, unquoteWithADelimiter)
{
    TextGenerator generator;
    int changed = 0;
    int overlapping = 0;
    for (int round = 0; round < rounds; ++round)
    {
        // Two letters, so that delimiters occur often and overlap.
        const std::string delimiter = generator.characters("ab", 0, 4);
        std::string text = generator.characters("ab", 0, 8);
        if (generator.below(4) == 0)
        {
            text = delimiter + generator.mixture(pieces, 10) + delimiter;
        }
        const std::string value = withoutDelimiter(text, delimiter);
        ASSERT_EQ(unquote(text, delimiter), value) << "of " << testing::PrintToString(text)
                                                   << " and " << testing::PrintToString(delimiter);
        changed += value != text;
        overlapping += value != text && text.size() < 2 * delimiter.size();
    }
    EXPECT_GT(changed, many);
    EXPECT_LT(changed, rounds - many);
    EXPECT_GT(overlapping, many / 5);
}

TEST(TomlStringProperty, enquote)
{
    TextGenerator generator;
    for (int round = 0; round < rounds; ++round)
    {
        const std::string text = generator.mixture(pieces, 10);
        const std::string delimiter = generator.mixture(pieces, 3);
        SCOPED_TRACE(testing::PrintToString(text) + " and " + testing::PrintToString(delimiter));
        const std::string value = enquote(text, delimiter);
        ASSERT_EQ(value.size(), delimiter.size() + text.size() + delimiter.size());
        ASSERT_EQ(value.substr(0, delimiter.size()), delimiter);
        ASSERT_EQ(value.substr(delimiter.size(), text.size()), text);
        ASSERT_EQ(value.substr(delimiter.size() + text.size()), delimiter);
        ASSERT_EQ(unquote(value, delimiter), text);
    }
}
