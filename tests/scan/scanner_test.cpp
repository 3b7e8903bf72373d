// The tokens that the scanner finds: the simple ones, and how the others begin.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/scanning.h"

using namespace std::string_literals;
using namespace test;

TEST(Scanner, takesPunctuationOneByOne)
{
    const std::vector<std::pair<TokenType, std::string>> marks = {
        {TokenType::comma, ","},       {TokenType::dot, "."},          {TokenType::equals, "="},
        {TokenType::openBracket, "["}, {TokenType::closeBracket, "]"}, {TokenType::openBrace, "{"},
        {TokenType::closeBrace, "}"},
    };
    for (const auto& [type, mark] : marks)
    {
        expectScanned(type, {{mark},
                             {mark, mark},
                             {mark, " "},
                             {mark, "5"},
                             {mark, "a"},
                             {mark, "\n"},
                             {mark, "\""},
                             {mark, "@"},
                             {mark, "\xff"}});
    }
}

TEST(Scanner, takesBlanksInRuns)
{
    expectScanned(TokenType::blanks, {{" "},
                                      {"\t"},
                                      {" \t \t  "},
                                      {std::string(40, ' ')},
                                      {" ", "\n"},
                                      {"\t", "\r"},
                                      {" ", "\x0b"},
                                      {" ", "\xc2\xa0"},
                                      {"  ", "# c"},
                                      {"  ", "a"}});
}

TEST(Scanner, takesLineBreaksInRuns)
{
    expectScanned(TokenType::newline, {{"\n"},
                                       {"\r\n"},
                                       {"\n\n\n"},
                                       {"\r\n\r\n"},
                                       {"\n\r\n\n\r\n"},
                                       {"\n", " \n"},
                                       {"\r\n", "\t\r\n"},
                                       {"\n", "# c\n"},
                                       {"\n", "a"},
                                       {"\n", "\x0b"}});
    expectNotRecognised(
        {"\r", "\r\r\n", "\ra", "\r \n", "\n\r", "\n\ra", "\r\n\r", "\n\n\r\r\n", "\r\n\r\n\r "});
}

TEST(Scanner, takesCommentsWithoutTheirLineBreak)
{
    expectScanned(TokenType::comment, {{"#"},
                                       {"#", "\n"},
                                       {"# c"},
                                       {"# c", "\n# d\n"},
                                       {"# c\r", "\n"},
                                       {"# a\rb", "\n"},
                                       {"## # = [\"'", "\n"},
                                       {"#\t\0\x01\x7f\v"s, "\n"},
                                       {"# \xc3\xa9\xe2\x82\xac\xef\xbf\xbf", "\n"}});
}

TEST(Scanner, leavesCommentsToTheLexerWithBytesThatAreNoCharacterOfTheGrammar)
{
    for (const std::string& bytes :
         {"\xf0\x9f\x98\x80"s, "\xff"s, "\x80"s, "\xc0\x80"s, "\xed\xa0\x80"s, "\xe2\x82"s})
    {
        SCOPED_TRACE(testing::PrintToString(bytes));
        EXPECT_EQ(scan("# " + bytes), FoundToken());
        EXPECT_EQ(scan("# " + bytes + " c\n"), FoundToken());
        EXPECT_EQ(scan("# c\n" + bytes), (FoundToken{TokenType::comment, 3}));
    }
    expectLeftToLexer({"# \xf0\x9f\x98\x80", "# c \xf0\x9f\x98\x80 d\n"});
}

TEST(Scanner, findsTokensThatBeginWithTheirBytesOnly)
{
    const std::string alone = ",.=[]{} \t\n#-_0123456789"
                              "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    for (int value = 0; value < 256; ++value)
    {
        SCOPED_TRACE(value);
        const std::string byte(1, static_cast<char>(value));
        const bool isToken = alone.find(byte) != std::string::npos;
        EXPECT_EQ(scan(byte).length, isToken ? 1u : 0u);
        if (value < 0x80) // what the runtime makes of the others alone is its own matter
        {
            EXPECT_EQ(scan(byte), lexOnce(byte));
        }
    }
    expectNotRecognised({"@",
                         "$",
                         "!",
                         "%",
                         "&",
                         "(",
                         ")",
                         "*",
                         "/",
                         ":",
                         ";",
                         "<",
                         ">",
                         "?",
                         "\\",
                         "^",
                         "`",
                         "|",
                         "~",
                         "\x0b",
                         "\x0c",
                         "\x7f",
                         "\0"s,
                         "\xc3\xa9",
                         "\xd0\xba\xd0\xbb",
                         "\xe2\x82\xac",
                         "\xf0\x9f\x98\x80"});
}
