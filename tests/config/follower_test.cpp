#include "config/follower.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

using vorn::parsers::toml::config::Follower;
using namespace std::string_literals;

namespace
{

constexpr std::size_t npos = std::string::npos;

// Expects a token after nothing but what is between tokens.
void expectNext(const std::string& between)
{
    const std::string document = between + "key = 1\n";
    Follower follower(document);
    EXPECT_EQ(follower.token("key"), "key") << document;
    EXPECT_EQ(follower.position(), between.size()) << testing::PrintToString(document);
    EXPECT_EQ(follower.token("1"), "1");
    EXPECT_EQ(follower.position(), between.size() + 6);
}

// Expects a string of a document, whose text a NUL byte cuts, before a key.
void expectWhole(const std::string& string)
{
    const std::string document = "a = " + string + "\n# c\nnext = 1\n";
    Follower follower(document);
    follower.token("a");
    EXPECT_EQ(follower.string(string.c_str()), string) << testing::PrintToString(document);
    EXPECT_EQ(follower.position(), 4U);
    EXPECT_EQ(follower.token("next"), "next");
    EXPECT_EQ(follower.position(), document.size() - 9);
}

} // namespace

TEST(Follower, SkipsWhatIsBetweenTokens)
{
    expectNext("");
    expectNext(" \t");
    expectNext("\n\n\r\n");
    expectNext("# x = 1\n");
    expectNext("  # key\r\n\t# key\n ");
    expectNext("# \xC3\xA9 key\n");
    expectNext("# a longer comment with key and \xE2\x82\xAC at its end \xE2\x82\xAC\n");
    expectNext("#\n#\n");
    expectNext("\xEF\xBB\xBF");
    expectNext("\xEF\xBB\xBF# x\n");
}

// Such bytes are read as one character together with those after them, or as ASCII.
TEST(Follower, ReadsMalformedBytesAsTheParserDoes)
{
    expectNext("# \xE2\n key \n"); // the line feed is taken along
    expectNext("# \xC3\n key\n");
    expectNext("# \xC0\x8A");     // U+000A
    expectNext("# \xC2\n");       // the same
    expectNext("\xC0\xA0");       // a blank
    expectNext("\xC0\xA3 key\n"); // '#'
    expectNext("# \xFF\n key\n xxx\n");
    expectNext("# \xF0\x9F\x98\x80\x80\n");
    Follower follower("\xC1\x9B a");
    follower.bracket('[');
    EXPECT_EQ(follower.position(), 0U);
    EXPECT_EQ(follower.token("a"), "a");
    EXPECT_EQ(follower.position(), 3U);
    expectWhole("\"\0\xE2\"x\""s); // the quote is taken along
    expectWhole("\"\0\xC0\xA2"s);  // it ends with U+0022
    expectWhole("'\0\xC3''"s);
}

TEST(Follower, FindsBrackets)
{
    const std::string document = "[ [ a ] ]\nb = [ # [\n [1], { c = ']' } ]\n";
    Follower follower(document);
    const auto expectBracket = [&](char c, std::size_t position)
    {
        follower.bracket(c);
        EXPECT_EQ(follower.position(), position);
    };
    expectBracket('[', 0);
    expectBracket('[', 2);
    follower.token("a");
    expectBracket(']', 6);
    expectBracket(']', 8);
    follower.token("b");
    expectBracket('[', 14);
    expectBracket('[', 21);
    follower.token("1");
    expectBracket(']', 23);
    EXPECT_EQ(follower.next(), 26U);
    EXPECT_EQ(follower.position(), 23U);
    expectBracket('{', 26);
    follower.token("c");
    EXPECT_EQ(follower.string("']'"), "']'");
    expectBracket('}', 36);
    expectBracket(']', 38);
}

TEST(Follower, TakesTokensWhole)
{
    const std::string document = "a.\"b\" = -1.5e+3\nc = 1979-05-27 07:32:00.5Z\nd=+inf,x";
    Follower follower(document);
    EXPECT_EQ(follower.token("a"), "a");
    EXPECT_EQ(follower.next(), 2U);
    EXPECT_EQ(follower.string("\"b\""), "\"b\"");
    EXPECT_EQ(follower.position(), 2U);
    EXPECT_EQ(follower.token("-1.5e+3"), "-1.5e+3");
    EXPECT_EQ(follower.token("c"), "c");
    EXPECT_EQ(follower.token("1979-05-27 07:32:00.5Z"), "1979-05-27 07:32:00.5Z");
    EXPECT_EQ(follower.token("d"), "d");
    const std::string_view last = follower.token("+inf");
    EXPECT_EQ(last, "+inf");
    EXPECT_EQ(last.data(), document.data() + document.find("+inf"));
}

TEST(Follower, TakesStringsWithNulBytesWhole)
{
    expectWhole("\"\0\""s);
    expectWhole("\"a\0b\0c\""s);
    expectWhole("'\0'"s);
    expectWhole("'\\\0\\'"s);
    expectWhole("\"\0\\\"\""s);
    expectWhole("\"\0\\\\\""s);
    expectWhole("'''\0'''"s);
    expectWhole("'''\0'a''b\n# '''"s);
    expectWhole("'''\0''''"s);
    expectWhole("\"\"\"\n\0\\\"\"\"\n\"\"\"\""s);
    expectWhole("\"\"\"\0\\\n\"\"\""s);
    expectWhole("\"\"\"\"\"\0\"\"\""s);
    expectWhole("\"\0\xC3\xA9\xE2\x82\xAC\""s);
}

// After mistakes.
TEST(Follower, LooksForWhatDoesNotComeNext)
{
    const std::string document = "a = ? 1 'b' # b\nb = ] \"\"\" c = 2 \"\"\"\nc = [3]\n";
    Follower follower(document);
    EXPECT_EQ(follower.token("a"), "a");
    EXPECT_EQ(follower.token("b"), "b");
    EXPECT_EQ(follower.position(), document.find("b = ]"));
    EXPECT_EQ(follower.token("c"), "c");
    EXPECT_EQ(follower.position(), document.find("c = [3]"));
    follower.bracket('[');
    EXPECT_EQ(follower.position(), document.find("[3]"));
}

TEST(Follower, StaysWhereThereIsNothing)
{
    const std::string document = "a = 1\nb = 2\n";
    Follower follower(document);
    follower.token("a");
    const char* const text = "<missing>";
    EXPECT_EQ(follower.token(text).data(), text);
    EXPECT_EQ(follower.string(text).data(), text);
    follower.bracket('[');
    EXPECT_EQ(follower.position(), 0U);
    EXPECT_EQ(follower.token("1"), "1");
    EXPECT_EQ(follower.token("b"), "b");
    EXPECT_EQ(follower.token("2"), "2");
    follower.bracket('}');
    EXPECT_EQ(follower.token(""), "");
    EXPECT_EQ(follower.position(), document.size());
    EXPECT_EQ(follower.next(), document.size());
}

// What is looked through in vain is bounded: otherwise this would take hours.
TEST(Follower, TakesLinearTimeAtWorst)
{
    std::string document;
    for (int line = 0; line < 300000; ++line)
    {
        document += "\"x = '\"\"\" # \\\n";
    }
    Follower follower(document);
    for (int index = 0; index < 300000; ++index)
    {
        follower.token("y");
        follower.string("'z'");
        follower.bracket('[');
    }
    EXPECT_LE(follower.position(), document.size());
}

TEST(Follower, LivesWithAnyDocument)
{
    for (const std::string& document :
         {""s, "\""s, "'''"s, "\"\\"s, "#"s, "# \xE2"s, "\xE2"s, "\xEF\xBB\xBF"s, "\"\0"s,
          "\"\"\"\0\\"s, "\xFF\xFF"s, "\0"s})
    {
        Follower follower(document);
        follower.bracket('[');
        EXPECT_EQ(follower.token("a"), "a");
        EXPECT_EQ(follower.string("\"").substr(0, 1), "\"");
        EXPECT_LE(follower.position(), document.size());
        EXPECT_NE(follower.next(), npos);
    }
}
