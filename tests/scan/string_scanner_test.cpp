// Which characters and bytes strings and comments may hold.
#include <gtest/gtest.h>

#include "support/scanning.h"
#include "support/utf8.h"

#include <string>

using namespace test;

namespace
{

struct Quotes
{
    TokenType type;
    std::string mark;
};

const Quotes kinds[] = {
    {TokenType::basicString, "\""},
    {TokenType::literalString, "'"},
    {TokenType::mlBasicString, "\"\"\""},
    {TokenType::mlLiteralString, "'''"},
};

} // namespace

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
