// Multi-line strings: the content between the delimiters.
#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include <vorn/parsers/toml.h>

using namespace std::string_literals;
using vorn::parsers::toml::processMultilineLiteralString;
using vorn::parsers::toml::processMultilineString;

namespace
{

struct ContentCase
{
    std::string content; // between the delimiters
    std::string value;
};

// A text without delimiters gets the same treatment, apart from their removal.
void expectBasic(const std::vector<ContentCase>& cases)
{
    for (const ContentCase& string : cases)
    {
        SCOPED_TRACE(testing::PrintToString(string.content));
        EXPECT_EQ(processMultilineString("\"\"\"" + string.content + "\"\"\""), string.value);
        EXPECT_EQ(processMultilineString(string.content), string.value);
    }
}

void expectLiteral(const std::vector<ContentCase>& cases)
{
    for (const ContentCase& string : cases)
    {
        SCOPED_TRACE(testing::PrintToString(string.content));
        EXPECT_EQ(processMultilineLiteralString("'''" + string.content + "'''"), string.value);
        EXPECT_EQ(processMultilineLiteralString(string.content), string.value);
    }
}

// What both kinds make of a content without backslashes.
const std::vector<ContentCase> plainContents = {
    {"", ""},
    {"a", "a"},
    {" a ", " a "},
    {"\n", ""},
    {"\na", "a"},
    {"\n\n", "\n"},
    {"\n\na", "\na"},
    {" \na", " \na"},
    {"a\n", "a\n"},
    {"a\n\n  b\t\n", "a\n\n  b\t\n"},
    {"\r\na", "\r\na"},
    {"\r\n", "\r\n"},
    {"\n\r\na", "\r\na"},
    {"\ra", "\ra"},
    {"\va", "\va"},
    {"a\r\nb\rc", "a\r\nb\rc"},
    {"\0"s, "\0"s},
    {"\n\0\n"s, "\0\n"s},
    {"\xc3\xa9\n\xff", "\xc3\xa9\n\xff"},
    {"a'b''c\"d\"\"e", "a'b''c\"d\"\"e"},
};

// A row of quotes, as text of a string, and what is left of it.
void expectRow(std::string (*process)(std::string), char quote)
{
    const std::vector<std::size_t> left = {0, 1, 2, 0, 0, 0, 0, 1, 2, 3};
    for (std::size_t count = 0; count < left.size(); ++count)
    {
        const std::string row(count, quote);
        SCOPED_TRACE(row);
        EXPECT_EQ(process(row), std::string(left[count], quote));
    }
}

} // namespace

TEST(MultilineString, takesAndReturnsStringsByValue)
{
    using Process = std::string (*)(std::string);
    static_assert(std::is_same_v<decltype(&processMultilineString), Process>);
    static_assert(std::is_same_v<decltype(&processMultilineLiteralString), Process>);
    const std::string text = "\na\\\n b";
    EXPECT_EQ(processMultilineString(text), "ab");
    EXPECT_EQ(processMultilineLiteralString(text), "a\\\n b");
    EXPECT_EQ(text, "\na\\\n b");
}

TEST(MultilineString, losesItsDelimitersAndALineFeedBehindTheFirst)
{
    expectBasic(plainContents);
    expectLiteral(plainContents);
}

TEST(MultilineString, ofQuotesOnly)
{
    expectRow(processMultilineString, '"');
    expectRow(processMultilineLiteralString, '\'');
}

TEST(MultilineString, keepsQuotesBesideTheDelimiters)
{
    EXPECT_EQ(processMultilineString(R"(""""a"""")"), R"("a")");
    EXPECT_EQ(processMultilineString(R"("""""a"""")"), R"(""a")");
    EXPECT_EQ(processMultilineString(R"("""a""b"c""")"), R"(a""b"c)");
    EXPECT_EQ(processMultilineString(R"("""\"""""")"), R"(\""")");
    EXPECT_EQ(processMultilineLiteralString("''''a''''"), "'a'");
    EXPECT_EQ(processMultilineLiteralString("'''''a''''"), "''a'");
    EXPECT_EQ(processMultilineLiteralString("'''a''b'c'''"), "a''b'c");
}

TEST(MultilineString, withoutItsOwnDelimitersAtBothEndsKeepsThem)
{
    for (const std::string text : {"'''a'''", "\"\"\"a\"\"", "\"\"\"a", "a\"\"\"", "\"a\"", "\"",
                                   " \"\"\"a\"\"\"", "\"\"\"a\"\"\"\n", "'''\na'''"})
    {
        SCOPED_TRACE(testing::PrintToString(text));
        EXPECT_EQ(processMultilineString(text), text);
    }
    for (const std::string text : {"\"\"\"a\"\"\"", "'''a''", "'''a", "a'''", "'a'", "'",
                                   " '''a'''", "'''a'''\n", "\"\"\"\na\"\"\""})
    {
        SCOPED_TRACE(testing::PrintToString(text));
        EXPECT_EQ(processMultilineLiteralString(text), text);
    }
    EXPECT_EQ(processMultilineString("\n\"\"\"a\\\n b\"\"\""), "\"\"\"ab\"\"\"");
    EXPECT_EQ(processMultilineLiteralString("\n'''a'''"), "'''a'''");
}

TEST(MultilineBasicString, losesLineEndingBackslashesWithTheBlanksBehind)
{
    expectBasic({
        {"a \\\n    b", "a b"},
        {"a\\\nb", "ab"},
        {"\\\na", "a"},
        {"\n\\\n a", "a"},
        {"a\\\n\n\n  \n b", "ab"},
        {"a\\\n \t\r\n\tb", "ab"},
        {"a\\\n\r\nb", "ab"},
        {"a\\\n\rb", "ab"},
        {"a\\\n b\\\n c\nd \\\n\te", "abc\nd e"},
        {"\\\na\\\nb\\\nc", "abc"},
        {"a  \\\n  b  ", "a  b  "},
        {"a\\\n\"b\"", "a\"b\""},
    });
}

TEST(MultilineBasicString, endsWhereOnlyBlanksFollowALineEndingBackslash)
{
    expectBasic({
        {"a\\\n", "a"},
        {"a\\\n   ", "a"},
        {"a \\\n \t\r\n\n", "a "},
        {"\\\n", ""},
        {"\\\n \n ", ""},
        {"\n\\\n", ""},
        {"a\nb\\\n", "a\nb"},
    });
}

TEST(MultilineBasicString, takesOnlySpacesTabsAndLineBreaksForBlanks)
{
    expectBasic({
        {"a\\\n \v b", "a\v b"},
        {"a\\\n \f b", "a\f b"},
        {"a\\\n \0 b"s, "a\0 b"s},
        {"a\\\n\0"s, "a\0"s},
        {"a\\\n\b", "a\b"},
        {"a\\\n \xc2\xa0 b", "a\xc2\xa0 b"},
        {"a\\\n \x85 b", "a\x85 b"},
    });
}

TEST(MultilineBasicString, keepsABackslashThatNoLineFeedFollows)
{
    expectBasic({
        {"\\", "\\"},
        {"a\\", "a\\"},
        {"a\\\r\n  b", "a\\\r\n  b"},
        {"a\\\r\n", "a\\\r\n"},
        {"a\\ \n b", "a\\ \n b"},
        {"a\\\t\nb", "a\\\t\nb"},
        {"a\\\0\nb"s, "a\\\0\nb"s},
        {"a\\nb", "a\\nb"},
        {R"(a\tb\"\\\u00e9\U0001F600)", R"(a\tb\"\\\u00e9\U0001F600)"},
        {"\n\\\r\n", "\\\r\n"},
        {"a\\\\b\n", "a\\\\b\n"},
    });
}

TEST(MultilineBasicString, takesAnEscapedBackslashBeforeALineFeedForALineEndingOne)
{
    expectBasic({
        {"a\\\\\n  b", "a\\b"},
        {"a\\\\\\\n  b", "a\\\\b"},
        {"a\\\\\n", "a\\"},
        {"\\\\\n\\\\\n", "\\\\"},
        {"a\\\n\\\\\n b", "a\\b"}, // the second of the two is not first after the removal
        {"a\\\\\n\\n", "a\\\\n"},
    });
}

TEST(MultilineBasicString, keepsALineEndingBackslashThatBecomesFirstBehindAnother)
{
    expectBasic({
        {"a\\\n\\\nb", "a\\\nb"},
        {"a\\\n   \\\n   b", "a\\\n   b"},
        {"\\\n\\\n", "\\\n"},
        {"\n\\\n \t\r\n\\\n b", "\\\n b"},
        {"a\\\n \\\n \\\n b", "a\\\n b"}, // the third is found again
        {"a\\\n\\\n\\\n\\\nb", "a\\\n\\\nb"},
        {"a\\\n\\\n\\\n\\\n\\\nb", "a\\\n\\\nb"},
        {"a\\\nx\\\nb", "axb"},
    });
}

TEST(MultilineBasicString, ofManyLinesIsJoinedWhole)
{
    std::string content;
    std::string value;
    for (int index = 0; index < 5000; ++index)
    {
        const std::string line = "line " + std::to_string(index) + ' ';
        content += line + "\\\n\t";
        value += line;
    }
    EXPECT_TRUE(processMultilineString("\"\"\"\n" + content + "\"\"\"") == value);
}

TEST(MultilineLiteralString, takesBackslashesForOrdinaryCharacters)
{
    expectLiteral({
        {"\\", "\\"},
        {"\n\\\n", "\\\n"},
        {"\\\n", "\\\n"},
        {"a \\\n    b", "a \\\n    b"},
        {"a\\\r\n b", "a\\\r\n b"},
        {"\nC:\\temp\\\n", "C:\\temp\\\n"},
        {R"(\t\"\\)", R"(\t\"\\)"},
        {"\\\n\\\n\\\n", "\\\n\\\n\\\n"},
    });
}
