// The reader of TOML 1.0 in `vorn-toml fix`: that it loses nothing, and where it sees mistakes.
#include "fix/toml_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace tool::fixing;
using Kind = PieceKind;

namespace
{

std::vector<Kind> kindsOf(const std::string& text)
{
    const Reading reading = readToml(text);
    EXPECT_FALSE(reading.mistake) << text << ": " << reading.mistake->message;
    std::vector<Kind> kinds;
    std::size_t at = 0;
    for (const Piece& piece : reading.pieces)
    {
        EXPECT_EQ(piece.begin, at);
        EXPECT_LT(piece.begin, piece.end);
        at = piece.end;
        kinds.push_back(piece.kind);
    }
    EXPECT_EQ(at, text.size());
    return kinds;
}

TEST(FixTomlReader, HasAPieceForEverything)
{
    EXPECT_EQ(kindsOf(""), std::vector<Kind>());
    EXPECT_EQ(kindsOf("\xef\xbb\xbf \t# c\r\n"),
              (std::vector<Kind>{Kind::mark, Kind::blanks, Kind::comment, Kind::newline}));
    EXPECT_EQ(kindsOf("[ a.'b'. \"c\"]\n[[d]]"),
              (std::vector<Kind>{Kind::headerBegin, Kind::blanks, Kind::bareKey, Kind::dot,
                                 Kind::literalKey, Kind::dot, Kind::blanks, Kind::basicKey,
                                 Kind::headerEnd, Kind::newline, Kind::arrayHeaderBegin,
                                 Kind::bareKey, Kind::arrayHeaderEnd}));
    EXPECT_EQ(
        kindsOf("3.14=[1,#c\n'x',]"),
        (std::vector<Kind>{Kind::bareKey, Kind::dot, Kind::bareKey, Kind::equals, Kind::arrayBegin,
                           Kind::integer, Kind::arrayComma, Kind::comment, Kind::newline,
                           Kind::literalString, Kind::arrayComma, Kind::arrayEnd}));
    EXPECT_EQ(kindsOf("a={b=[],c={}}"),
              (std::vector<Kind>{Kind::bareKey, Kind::equals, Kind::tableBegin, Kind::bareKey,
                                 Kind::equals, Kind::arrayBegin, Kind::arrayEnd, Kind::tableComma,
                                 Kind::bareKey, Kind::equals, Kind::tableBegin, Kind::tableEnd,
                                 Kind::tableEnd}));
}

TEST(FixTomlReader, TellsValuesApart)
{
    const auto kindOf = [](const std::string& value) { return kindsOf("a=" + value).back(); };
    EXPECT_EQ(kindOf("\"b\""), Kind::basicString);
    EXPECT_EQ(kindOf("\"\"\"b\n\"\"\"\"\""), Kind::multilineBasicString);
    EXPECT_EQ(kindOf("'b'"), Kind::literalString);
    EXPECT_EQ(kindOf("'''\n''b'''"), Kind::multilineLiteralString);
    EXPECT_EQ(kindOf("0xF"), Kind::integer);
    EXPECT_EQ(kindOf("-inf"), Kind::floatingPoint);
    EXPECT_EQ(kindOf("true"), Kind::boolean);
    EXPECT_EQ(kindOf("2024-01-31 07:32:00z"), Kind::offsetDateTime);
    EXPECT_EQ(kindOf("2024-01-31T07:32:00"), Kind::localDateTime);
    EXPECT_EQ(kindOf("2024-01-31"), Kind::localDate);
    EXPECT_EQ(kindOf("07:32:00.5"), Kind::localTime);
}

TEST(FixTomlReader, TakesAnyDepth)
{
    const std::size_t depth = 200000;
    const std::string text = "a=" + std::string(depth, '[') + '1' + std::string(depth, ']') + '\n';
    EXPECT_EQ(kindsOf(text).size(), 2 * depth + 4);
}

struct Wrong
{
    std::string text;
    std::size_t offset;
    std::string message;
};

void expectMistakes(const std::vector<Wrong>& cases)
{
    for (const auto& [text, offset, message] : cases)
    {
        SCOPED_TRACE(text);
        const Reading reading = readToml(text);
        ASSERT_TRUE(reading.mistake);
        EXPECT_EQ(reading.mistake->offset, offset);
        EXPECT_EQ(reading.mistake->message, message);
    }
}

TEST(FixTomlReader, SeesMistakesInLines)
{
    expectMistakes({
        {"a = 1 b = 2", 6, "expected the end of the line"},
        {"a = 1\rb = 2", 5, "expected the end of the line"},
        {"[a] b = 1", 4, "expected the end of the line"},
        {"a\n", 1, "expected '=' after the key"},
        {"a b = 1\n", 2, "expected '=' after the key"},
        {"= 1\n", 0, "expected a key"},
        {"a. = 1\n", 3, "expected a key"},
        {"\xc3\xa9 = 1\n", 0, "expected a key"},
        {"\"\"\"a\"\"\" = 1\n", 0, "expected a key, which is on one line"},
        {"[]\n", 1, "expected a key"},
        {"[a\n", 2, "expected ']'"},
        {"[[a]\n", 3, "expected ']]'"},
        {"[[a] ]\n", 3, "expected ']]'"},
        {"[ [a]]\n", 2, "expected a key"},
        {"# \x01\n", 2, "a control character in a comment"},
        {"# \x7f\n", 2, "a control character in a comment"},
        {"# a\rb\n", 3, "a control character in a comment"},
        {"a = '\xff'\n", 5, "bytes that are not UTF-8"},
        {"a = 1 # \xed\xa0\x80\n", 8, "bytes that are not UTF-8"},
    });
}

TEST(FixTomlReader, SeesMistakesInValues)
{
    expectMistakes({
        {"a =\n", 3, "expected a value"},
        {"a = hello\n", 4, "expected a value"},
        {"a = 01\n", 4, "expected a value"},
        {"a = [1 2]\n", 7, "expected ',' or ']'"},
        {"a = [1,,2]\n", 7, "expected a value"},
        {"a = [1", 6, "expected ',' or ']'"},
        {"a = [,]\n", 5, "expected a value"},
        {"a = {b = 1,}\n", 11, "expected a key"},
        {"a = {b = 1,\nc = 2}\n", 11, "expected a key"},
        {"a = {b = 1 # c\n}\n", 11, "expected ',' or '}'"},
        {"a = {,}\n", 5, "expected a key"},
        {"a = [1} \n", 6, "expected ',' or ']'"},
    });
}

TEST(FixTomlReader, SeesMistakesInStrings)
{
    expectMistakes({
        {"a = \"b", 4, "the string has no closing quote"},
        {"a = 'b\n'", 4, "the string has no closing quote on its line"},
        {"a = \"\"\"b\"\"\n", 4, "the string has no closing quote"},
        {"a = \"b\\q\"", 6, "an unknown escape"},
        {"a = \"\\'\"", 5, "an unknown escape"},
        {"a = \"\\u12\"", 5, "an unknown escape"},
        {"a = \"\\uD800\"", 5, "an unknown escape"},
        {"a = \"\\U00110000\"", 5, "an unknown escape"},
        {"a = \"\"\"\\ b\"\"\"", 7, "an unknown escape"},
        {"a = \"b\\", 6, "an unknown escape"},
        {"a = \"b\\\nc\"", 6, "an unknown escape"},
        {"a = '\x01'", 5, "a control character in a string"},
        {"a = \"\"\"\r\"\"\"", 7, "a control character in a string"},
        {"a = \"\"\"b\"\"\"\"\"\"", 13, "expected the end of the line"},
    });
}

} // namespace
