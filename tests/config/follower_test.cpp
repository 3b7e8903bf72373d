#include "config/follower.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

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

using Follow = std::string_view (Follower::*)(const char*) noexcept;
using Try = bool (Follower::*)(const char*) noexcept;

// How a token is taken: if it is plain to see where it ends, or else.
struct Way
{
    Follow any;
    Try plain;
};
constexpr Way bareKey = {&Follower::bareKey, &Follower::tryBareKey};
constexpr Way value = {&Follower::value, &Follower::tryValue};
constexpr Way dateTime = {&Follower::dateTime, &Follower::tryDateTime};
constexpr Way string = {&Follower::string, &Follower::tryString};

// On the heap, where a sanitizer sees whatever reads beyond it.
struct Text
{
    explicit Text(std::string_view text) : bytes(text.begin(), text.end())
    {
        bytes.push_back('\0');
    }
    std::vector<char> bytes;
};

// Expects a token between others, whose text is all of it.  Returns whether its end was plain to
// see.
bool expectTaken(Way way, const std::string& token, const std::string& after)
{
    const std::string document = "# c\n " + token + after;
    SCOPED_TRACE(testing::PrintToString(document));
    const Text text(token);
    Follower follower(document);
    EXPECT_EQ((follower.*way.any)(text.bytes.data()), token);
    EXPECT_EQ(follower.position(), 5U);
    const std::size_t next = follower.next();

    Follower other(document);
    other.next();
    const bool isPlain = (other.*way.plain)(text.bytes.data());
    EXPECT_EQ(other.position(), isPlain ? 5U : 0U);
    EXPECT_EQ(other.next(), isPlain ? next : 5U);
    return isPlain;
}

const std::string far = "\n" + std::string(32, 'x');

void expectPlain(Way way, const std::string& token, const std::string& after)
{
    EXPECT_TRUE(expectTaken(way, token, after + far)) << token << after;
    // Near the document's end it may be or not.
    expectTaken(way, token, after);
    expectTaken(way, token, "");
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

TEST(Follower, SeesWhereTokensEnd)
{
    for (const std::string after : {" ", "\t", ".", "=", "]"})
    {
        expectPlain(bareKey, "k", after);
        expectPlain(bareKey, "a_longer-KEY-0123456789-0123456789-0123456789", after);
    }
    for (const std::string after : {" ", "\t", "\n", "\r\n", ",", "]", "}", "#"})
    {
        for (const char* const token :
             {"1", "+1_000", "-0.5e+3", "true", "-inf", "0xDEAD_beef", "1979-05-27",
              "07:32:00.999999", "0.1234567890123456789e-9"})
        {
            expectPlain(value, token, after);
        }
        for (const char* const token :
             {"1979-05-27T07:32:00", "1979-05-27t07:32:00.5Z", "1979-05-27 07:32:00",
              "1979-05-27 07:32:00.123456789+01:00"})
        {
            expectPlain(dateTime, token, after);
        }
        for (const char* const token :
             {"''", "'a'", "'\\'", "' # \" '", "'0123456789 0123456789 0123456789'", "\"\"",
              "\"a\"", "\" ' = \"", "\"0123456789 0123456789 0123456789\""})
        {
            expectPlain(string, token, after);
        }
    }
}

TEST(Follower, TakesWhatDoesNotShowWhereItEnds)
{
    // A separator, and a part of a token.
    EXPECT_FALSE(expectTaken(bareKey, "longer_key", "\xC0\xAE" + far));
    EXPECT_FALSE(expectTaken(value, "12345678", "\xC2 " + far));
    EXPECT_FALSE(expectTaken(value, "12345678\xC0\xB0", far));
    EXPECT_FALSE(expectTaken(dateTime, "1979-05-2\xC1t 07:32:00", far));
    EXPECT_FALSE(expectTaken(dateTime, "1979-05-27 0\xC1t:32:00", far));
    EXPECT_FALSE(expectTaken(string, "\"\\\"\"", far));
    EXPECT_FALSE(expectTaken(string, "\"\xE2\"x\"", far));
    EXPECT_FALSE(expectTaken(string, "'\xC3\xA9'", far));
    EXPECT_FALSE(expectTaken(string, "\"\"\"\n\"\"\"", far));
    EXPECT_FALSE(expectTaken(string, "''''''", far));
}

// After mistakes.
TEST(Follower, DoesNotTakeOtherTokens)
{
    const std::string document = "abc 'abc' 12 \n" + std::string(32, 'x');
    for (const char* const other :
         {"", "a", "ab", "abd", "abcd", "xbc", "abc-", "abcdefghijklmnop"})
    {
        const Text text(other);
        Follower follower(document);
        EXPECT_FALSE(follower.tryBareKey(text.bytes.data())) << other;
        EXPECT_FALSE(follower.tryValue(text.bytes.data())) << other;
        EXPECT_FALSE(follower.tryDateTime(text.bytes.data())) << other;
        EXPECT_FALSE(follower.tryString(text.bytes.data())) << other;
        EXPECT_EQ(follower.position(), 0U);
        EXPECT_EQ(follower.next(), 0U);
    }
    for (const char* const other : {"", "'", "''", "'ab", "'ab'", "\"abc\"", "'abc", "'abcd'"})
    {
        const Text text(other);
        Follower follower(document);
        follower.token("abc");
        EXPECT_FALSE(follower.tryString(text.bytes.data())) << other;
    }
    const std::string nul = "\0\0'\0"s + document;
    EXPECT_FALSE(Follower(nul).tryString(Text("").bytes.data()));
    EXPECT_FALSE(Follower(nul).tryValue(Text("").bytes.data()));
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
