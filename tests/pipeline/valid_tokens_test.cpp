// The tokens of valid lines, found without the lexer.
#include <gtest/gtest.h>

#include "pipeline/valid_tokens.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "pipeline/runtime_text.h"
#include "support/guarded_memory.h"
#include "support/text_generator.h"

#include "support/window_pipeline.h"

using namespace std::string_literals;
using namespace vorn::parsers::toml;

namespace
{

struct Tokens
{
    std::string text; // of all, joined
    std::size_t count = 0;
};

bool operator==(const Tokens& one, const Tokens& other)
{
    return one.text == other.text && one.count == other.count;
}

// Appends the tokens of the first bytes of a text.  There is room for as many bytes, and no more.
Tokens tokensOf(const std::string& text, std::size_t size)
{
    test::GuardedMemory memory(text.size() + 1);
    const std::string_view lines(memory.holdTerminated(text), size);
    test::GuardedMemory room(size + 1);
    char* const begin = const_cast<char*>(room.end()) - size;
    Tokens tokens;
    char* const end = appendTokens(lines, begin, tokens.count);
    tokens.text = std::string(begin, end);
    return tokens;
}

Tokens tokensOf(const std::string& text)
{
    return tokensOf(text, text.size());
}

// The same with the lexer.
Tokens lexed(const std::string& text)
{
    const test::Lexer lexer(text);
    Tokens tokens;
    for (auto* token = lexer.next(); token->type != ANTLR3_TOKEN_EOF; token = lexer.next())
    {
        tokens.text += lexeme(*token);
        ++tokens.count;
    }
    EXPECT_EQ(lexer.recogniser()->getNumberOfSyntaxErrors(lexer.recogniser()), 0u);
    return tokens;
}

const std::vector<std::string> validLines = {
    "a = 1\n",
    "a=1\n",
    " a.b . \"c\" = 'd' # e\r\n",
    "key-of-more-than-a-block = 0x1234567890abcdef # \xc3\xa9\n\n",
    "x = \"caf\xc3\xa9 \\u00e9 and some more text\"\n# c\n \n",
    "[t]\n",
    "[[ t . 'u' ]]\n\r\n",
    "a = [1,[2.5,\n{b = true, c = [inf]}]\n] # c\n",
    "m = '''\n\xe2\x82\xac\n'''\n",
    "m = \"\"\"a\\\n  b\"\"\"\n",
    "d = 1979-05-27T07:32:00.999-07:00\n",
    "n = '\0'\n"s,
    "n = 'a\0b' # c\0d\n"s,
    "n = \"0123456789\0abcdefghijklmnopqrstuvwxyz\"\n"s,
    "m = '''\n\0\n\0'''\n"s,
};

} // namespace

TEST(ValidTokens, areJoinedWithoutWhatIsBetweenThem)
{
    for (const auto& [text, expected] : std::vector<std::pair<std::string, Tokens>>{
             {"", {"", 0}},
             {"a = 1\n", {"a=1\n", 4}},
             {"a = 1 # c\n\n", {"a=1\n\n", 4}},
             {"a = 1\n# c\n\n", {"a=1\n\n\n", 5}},
             {"# c\na = 1\n", {"\na=1\n", 5}},
             {" [ a . \"b c\" ]\r\n  ", {"[a.\"b c\"]\r\n", 6}},
             {"a = [1,\n2]\n", {"a=[1,\n2]\n", 9}},
             {"a = '\xc3\xa9\xe2\x82\xac'\n", {"a='\xc3\xa9\xe2\x82\xac'\n", 4}},
         })
    {
        SCOPED_TRACE(testing::PrintToString(text));
        EXPECT_EQ(tokensOf(text), expected);
        EXPECT_EQ(countTokens(text), expected.count);
    }
}

// The runtime's texts end there, too.  What comes after that is not lost.
TEST(ValidTokens, endAtTheirFirstNulByte)
{
    for (const auto& [text, expected] : std::vector<std::pair<std::string, std::string>>{
             {"a = 'b\0c'\nd = 1\n"s, "a='b\nd=1\n"},
             {"a = '\0'\n"s, "a='\n"},
             {"a = '\0\0' # \0\nb = 'c'\n"s, "a='\nb='c'\n"},
             {"a = \"\"\"\nb\0\n\"\"\"\n"s, "a=\"\"\"\nb\n"},
         })
    {
        SCOPED_TRACE(testing::PrintToString(text));
        EXPECT_EQ(tokensOf(text).text, expected);
        EXPECT_EQ(tokensOf(text), lexed(text));
    }
}

TEST(ValidTokens, endBeforeWhatFollowsTheLines)
{
    const std::string lines = "a = 1\n# c";
    for (const std::string follower : {"", "\n", "\n\nb = 2\n", "\r\nb"})
    {
        EXPECT_EQ(tokensOf(lines + follower, lines.size()), (Tokens{"a=1\n", 4}));
    }
    for (const std::string follower : {"", "@", "b = 2\n", "=", "'c", "\"", "]", "1"})
    {
        EXPECT_EQ(tokensOf("a = 1\n" + follower, 6), (Tokens{"a=1\n", 4}));
        EXPECT_EQ(tokensOf("a = 1\n  " + follower, 8), (Tokens{"a=1\n", 4}));
    }
}

TEST(ValidTokens, areAddedToThoseBefore)
{
    std::string text = "????????";
    std::size_t count = 7;
    char* const end = appendTokens("a=1\n", text.data() + 2, count);
    EXPECT_EQ(end, text.data() + 6);
    EXPECT_EQ(text, "\?\?a=1\n\?\?");
    EXPECT_EQ(count, 11u);
}

// As many bytes as the lines have are room enough, also where a block of them is copied.
TEST(ValidTokens, areThoseOfTheLexerInAnyLines)
{
    for (const std::string& line : validLines)
    {
        SCOPED_TRACE(testing::PrintToString(line));
        EXPECT_EQ(tokensOf(line), lexed(line));
    }
    test::TextGenerator texts;
    for (int count = 0; count < 3000 && !HasFailure(); ++count)
    {
        std::string text;
        for (std::size_t left = texts.below(8); left > 0; --left)
        {
            text += texts.oneOf(validLines);
        }
        SCOPED_TRACE(testing::PrintToString(text));
        EXPECT_EQ(tokensOf(text), lexed(text));
        EXPECT_EQ(countTokens(text), tokensOf(text).count);
    }
}
