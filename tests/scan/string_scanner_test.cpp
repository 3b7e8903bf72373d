// Strings: their delimiters, escapes and characters.
#include <gtest/gtest.h>

#include "support/scanning.h"
#include "support/utf8.h"

#include <string>
#include <utility>
#include <vector>

using namespace std::string_literals;
using namespace test;

namespace
{

struct Quotes
{
    TokenType type;
    std::string mark;
    bool escapes;
    bool lines;
};

const Quotes kinds[] = {
    {TokenType::basicString, "\"", true, false},
    {TokenType::literalString, "'", false, false},
    {TokenType::mlBasicString, "\"\"\"", true, true},
    {TokenType::mlLiteralString, "'''", false, true},
};

// Checks a content between the quotes of every kind.
template <typename Check>
void forEveryKind(const std::string& content, Check check)
{
    for (const Quotes& kind : kinds)
    {
        const std::string text = kind.mark + content + kind.mark;
        SCOPED_TRACE(testing::PrintToString(text));
        check(kind, text);
    }
}

void expectInEveryKind(const std::vector<std::string>& contents)
{
    for (const std::string& content : contents)
    {
        forEveryKind(content,
                     [](const Quotes& kind, const std::string& text) {
                         expectScanned(kind.type, {{text}, {text, "\n"}, {text, "x"}});
                     });
    }
}

} // namespace

TEST(StringScanner, takesStringsWithPlainContent)
{
    expectInEveryKind({"a",
                       "a b",
                       "#",
                       "=[]{},.",
                       "\t",
                       "\r",
                       "\r\r",
                       "\x01\x1f\x7f",
                       "a\0b"s,
                       "\0"s,
                       "\xc2\x80",
                       "\xc3\xa9",
                       "\xdf\xbf",
                       "\xe0\xa0\x80",
                       "\xe2\x82\xac",
                       "\xed\x9f\xbf",
                       "\xee\x80\x80",
                       "\xef\xbb\xbf",
                       "\xef\xbf\xbf",
                       "a\xc3\xa9"
                       "b\xe2\x82\xac"
                       "c",
                       std::string(1000, 'x')});
}

TEST(StringScanner, takesEmptyStrings)
{
    for (const std::string& after : {""s, "\n"s, "a"s, " "s, "\x80"s})
    {
        expectScanned(TokenType::basicString, {{"\"\"", after}, {"\"\"", "'" + after}});
        expectScanned(TokenType::literalString, {{"''", after}, {"''", '"' + after}});
        expectScanned(TokenType::mlBasicString, {{"\"\"\"\"\"\"", after}});
        expectScanned(TokenType::mlLiteralString, {{"''''''", after}});
    }
}

TEST(StringScanner, takesTheOtherQuotesAsContent)
{
    expectScanned(TokenType::basicString, {{"\"'\""}, {"\"'''\""}, {"\"a'\"", "'"}});
    expectScanned(TokenType::literalString, {{"'\"'"}, {"'\"\"\"'"}, {"'a\"'", "\""}});
    expectScanned(TokenType::mlBasicString, {{"\"\"\"'\"\"\""}, {"\"\"\"'''\"\"\"", "'"}});
    expectScanned(TokenType::mlLiteralString, {{"'''\"'''"}, {"'''\"\"\"'''", "\""}});
}

TEST(StringScanner, takesTheEscapesInBasicStrings)
{
    for (const std::string escape :
         {"\\\"", "\\'", "\\\\", "\\b", "\\f", "\\n", "\\r", "\\t", "\\u00e9", "\\uD800", "\\uFFFF",
          "\\U0001F600", "\\UFFFFFFFF", "\\uabcdef", "\\\\\\\"", "\\\\n", "\\n\\t\\\\"})
    {
        expectScanned(TokenType::basicString,
                      {{'"' + escape + '"'}, {"\"a" + escape + "b\"", "\n"}});
        expectScanned(TokenType::mlBasicString,
                      {{"\"\"\"" + escape + "\"\"\""}, {"\"\"\"a\n" + escape + "b\"\"\"", "\n"}});
    }
}

TEST(StringScanner, doesNotTakeOtherEscapes)
{
    std::vector<std::string> escapes = {"\\u00e",     "\\u00eg",     "\\u",        "\\u\"000",
                                        "\\U0001F60", "\\U0001F60g", "\\u 00e9",   "\\U",
                                        "\\u00",      "\\u-123",     "\\\xc3\xa9", "\\\r"};
    for (int value = 0; value < 0x80; ++value)
    {
        const char letter = static_cast<char>(value);
        if ("\"'\\bfnrtuU\r\n"s.find(letter) == std::string::npos)
        {
            escapes.push_back('\\' + std::string(1, letter));
        }
    }
    std::vector<std::string> texts = {"\"\\\n\"",
                                      "\"\\\r\n\"",
                                      "\"\\",
                                      "\"\\\"",
                                      "\"\"\"\\",
                                      "\"\"\"\\\"\"\"",
                                      "\"\"\"\\\r\r\n\"\"\"",
                                      "\"\"\"\\ \n\"\"\"",
                                      "\"\"\"\\\t\n\"\"\""};
    for (const std::string& escape : escapes)
    {
        texts.push_back('"' + escape + '"');
        texts.push_back("\"\"\"a" + escape + "\"\"\"");
    }
    expectNotRecognised(texts);
}

TEST(StringScanner, takesBackslashesInLiteralStringsAsTheyAre)
{
    for (const std::string content : {"\\", "\\\\", "\\q", "\\u", "C:\\path\\", "\\\r", "\\\""})
    {
        expectScanned(TokenType::literalString, {{'\'' + content + '\'', "'"}});
        expectScanned(TokenType::mlLiteralString, {{"'''" + content + "'''", "\n"}});
    }
    expectScanned(TokenType::mlLiteralString, {{"'''\\\n'''"}, {"'''\\ \n'''"}});
}

TEST(StringScanner, takesLineBreaksInMultiLineStringsOnly)
{
    for (const std::string content : {"\n", "\r\n", "\n\n", "a\nb\r\nc\n", "\n a", "\r\n\r\r\n"})
    {
        forEveryKind(content,
                     [](const Quotes& kind, const std::string& text)
                     {
                         if (kind.lines)
                         {
                             expectScanned(kind.type, {{text}, {text, "\n"}});
                         }
                         else
                         {
                             expectNotRecognised({text});
                         }
                     });
    }
    expectScanned(
        TokenType::mlBasicString,
        {{"\"\"\"\\\n\"\"\""}, {"\"\"\"one\\\r\n   two\"\"\""}, {"\"\"\"a\\\n\n b\"\"\""}});
}

TEST(StringScanner, needsTheClosingDelimiter)
{
    for (const char mark : {'"', '\''})
    {
        const auto marks = [mark](std::size_t count) { return std::string(count, mark); };
        std::vector<std::string> texts = {marks(1), marks(1) + '\n', marks(1) + "a",
                                          marks(1) + "a\n" + marks(1)};
        for (std::size_t count = 3; count < 6; ++count)
        {
            texts.push_back(marks(count));
            texts.push_back(marks(count) + "a");
            texts.push_back(marks(count) + "\n");
        }
        for (std::size_t closing = 0; closing < 3; ++closing)
        {
            texts.push_back(marks(3) + 'a' + marks(closing));
            texts.push_back(marks(3) + 'a' + marks(closing) + '\n');
            texts.push_back(marks(3) + 'a' + marks(closing) + 'b' + marks(2));
        }
        expectNotRecognised(texts);
    }
}

// Fewer than three quotes are content, and so is the first of four.
TEST(StringScanner, takesOneQuoteBeforeTheClosingDelimiter)
{
    for (const auto& [type, mark] : std::vector<std::pair<TokenType, char>>{
             {TokenType::mlBasicString, '"'}, {TokenType::mlLiteralString, '\''}})
    {
        const auto marks = [sign = mark](std::size_t count) { return std::string(count, sign); };
        expectScanned(type, {{marks(6), ""},
                             {marks(7), ""},
                             {marks(7), marks(1)},
                             {marks(7), marks(2)},
                             {marks(7), marks(30)},
                             {marks(3) + 'a' + marks(3), "b"},
                             {marks(3) + 'a' + marks(4), "b"},
                             {marks(3) + 'a' + marks(4), marks(1)},
                             {marks(3) + 'a' + marks(4), marks(1) + 'b' + marks(3)},
                             {marks(4) + 'a' + marks(3)},
                             {marks(5) + 'a' + marks(3)},
                             {marks(5) + "\n" + marks(4)},
                             {marks(3) + 'a' + marks(1) + 'b' + marks(2) + 'c' + marks(3)},
                             {marks(3) + 'a' + marks(2) + '\n' + marks(2) + '\n' + marks(3)}});
    }
    expectScanned(TokenType::mlBasicString, {{"\"\"\"\\\"\"\"\""},
                                             {"\"\"\"\"\"\\\"\"\"\""},
                                             {"\"\"\"a\"\\\"\"\\\"\"\"\"\"", "\""},
                                             {"\"\"\"\"\"\\\n\"\"\""}});
}

TEST(StringScanner, takesEveryCharacterOfTheGrammar)
{
    for (std::uint32_t point = 0x80; point <= 0x10FFFF; point += point < 0x10000 ? 1 : 0x3FF)
    {
        const bool surrogate = point >= 0xD800 && point <= 0xDFFF;
        const bool taken = point <= 0xFFFF && !surrogate;
        const std::string content = utf8(point);
        for (const Quotes& kind : kinds)
        {
            const std::string text = kind.mark + content + kind.mark;
            const FoundToken expected = taken ? FoundToken{kind.type, text.size()} : FoundToken();
            ASSERT_EQ(scan(text), expected) << point;
        }
        ASSERT_EQ(scan('#' + content),
                  (taken ? FoundToken{TokenType::comment, content.size() + 1} : FoundToken()))
            << point;
    }
}

TEST(StringScanner, takesNoOtherBytes)
{
    const std::string edges = "\x01\x7f\x80\x8f\x90\x9f\xa0\xbf\xc0\xff";
    for (int lead = 0x80; lead < 0x100; ++lead)
    {
        for (int second = 1; second < 0x100; ++second)
        {
            for (const char third : edges)
            {
                // Well-formed sequences of two bytes and of three.
                const std::string bytes = {static_cast<char>(lead), static_cast<char>(second),
                                           third};
                const bool trails = (second & 0xC0) == 0x80;
                const bool two =
                    lead >= 0xC2 && lead < 0xE0 && trails && static_cast<signed char>(third) >= 0;
                const bool three = lead >= 0xE0 && lead < 0xF0 && trails &&
                                   (third & 0xC0) == 0x80 && !(lead == 0xE0 && second < 0xA0) &&
                                   !(lead == 0xED && second >= 0xA0);
                const std::string text = "'" + bytes + "'";
                ASSERT_EQ(scan(text),
                          (two || three ? FoundToken{TokenType::literalString, 5} : FoundToken()))
                    << testing::PrintToString(bytes);
            }
        }
    }
}

TEST(StringScanner, takesNoCharacterThatIsCutOff)
{
    for (const std::string bytes : {"\xc3", "\xe2", "\xe2\x82", "\xf0\x9f\x98"})
    {
        for (const Quotes& kind : kinds)
        {
            SCOPED_TRACE(testing::PrintToString(kind.mark + bytes));
            EXPECT_EQ(scan(kind.mark + bytes), FoundToken());
            EXPECT_EQ(scan(kind.mark + bytes + kind.mark), FoundToken());
            EXPECT_EQ(scan(kind.mark + "abcdefgh" + bytes), FoundToken());
        }
        EXPECT_EQ(scan('#' + bytes), FoundToken());
    }
}
