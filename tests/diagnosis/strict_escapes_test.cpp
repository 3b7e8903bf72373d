// The escapes of strings and of quoted keys.
#include "diagnosis/strict_escapes.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <set>
#include <string>

#include "diagnosis/strict_mistakes.h"
#include "strict_mistakes_of.h"
#include "support/utf8.h"

using namespace test;
using namespace vorn::parsers::toml::diagnosis;

namespace
{

std::string hex(std::uint32_t code, int digits)
{
    char text[16] = {};
    std::snprintf(text, sizeof(text), digits == 4 ? "\\u%04X" : "\\U%08x",
                  static_cast<unsigned>(code));
    return text;
}

std::string appended(std::uint32_t code)
{
    std::string text;
    appendCharacter(text, code);
    return text;
}

} // namespace

TEST(StrictEscapes, ofNoCharacter)
{
    expectStrict({
        {R"(a = "\ud7ff\ue000\U0010FFFF\u0000")"
         "\n",
         ""},
        {R"(a = "x\ud800\uDfFf")"
         "\n",
         "escape-of-no-character at 6 \\ud800\nescape-of-no-character at 12 \\uDfFf\n"},
        {R"(a = """
\U0000D800 \U00110000""")"
         "\n",
         "escape-of-no-character at 8 \\U0000D800\nescape-of-no-character at 19 \\U00110000\n"},
        {R"(a = "\\uD800")"
         "\n",
         ""},
        {R"(a = '\uD800')"
         "\n",
         ""},
        {R"(a = '''\uD800 \' ''')"
         "\n",
         ""},
    });
}

TEST(StrictEscapes, apostrophe)
{
    expectStrict({
        {R"(a = "it\'s")"
         "\n",
         "unknown-escape at 7 \\'\n"},
        {R"(a = ["""it's \\' \'"""])"
         "\n",
         "unknown-escape at 17 \\'\n"},
        {R"(a = "\b\f\n\r\t\"\\'")"
         "\n",
         ""},
        {"a = \"\"\"b\\\n c\\\r\n d\"\"\"\n", ""},
    });
}

TEST(StrictEscapes, inKeys)
{
    expectStrict({
        {R"("\ud800" = 1)"
         "\n",
         "escape-of-no-character at 1 \\ud800\n"},
        {R"([a."\'"])"
         "\n",
         "unknown-escape at 4 \\'\n"},
        {R"(a = {'\'."\UFFFFFFFF" = 1})"
         "\n",
         "escape-of-no-character at 10 \\UFFFFFFFF\n"},
    });
}

TEST(StrictEscapes, manyInAString)
{
    std::string text = "a = \"";
    for (int count = 0; count < 100000; ++count)
    {
        text += "\\'";
    }
    EXPECT_EQ(strictMistakes(text + "\"\n").size(), 100000U);
}

TEST(StrictEscapes, areReadWhole)
{
    for (std::uint32_t code = 0; code < 0x10000; code += 0x111)
    {
        const std::string text = "ab" + hex(code, 4) + "1" + hex(code << 12, 8) + "\\n";
        const Escape first = nextEscape(text, 0);
        EXPECT_EQ(first.text, hex(code, 4));
        EXPECT_EQ(first.code, code);
        const Escape second = nextEscape(text, 8);
        EXPECT_EQ(second.text, hex(code << 12, 8));
        EXPECT_EQ(second.code, code << 12);
        EXPECT_EQ(nextEscape(text, 19).code, std::uint32_t{'\n'});
        EXPECT_TRUE(nextEscape(text, text.size()).text.empty());
    }
}

TEST(StrictEscapes, standForTheirCharacters)
{
    for (std::uint32_t code = 0; code <= 0x10FFFF; ++code)
    {
        if (code < 0xD800 || code > 0xDFFF)
        {
            ASSERT_EQ(appended(code), utf8(code));
        }
    }
}

TEST(StrictEscapes, ofNoCharacterDifferFromAllOthers)
{
    std::set<std::string> seen;
    for (const std::uint32_t code : {0xD800U, 0xDFFFU, 0x110000U, 0x110001U, 0x01110000U, 0x111100U,
                                     0xFFFFFFFFU, 0x80000000U, 0x10FFFFU})
    {
        EXPECT_TRUE(seen.insert(appended(code)).second) << code;
    }
}
