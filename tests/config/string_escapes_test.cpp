#include "config/string_escapes.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>

namespace
{

using namespace vorn::parsers::toml::config;

// Appends the escape that a text has after a letter.  Of an escape all is taken.
std::string escaped(const std::string& escape)
{
    std::string content = ">";
    EXPECT_EQ(appendEscaped(content, 'a' + escape + "00", 1), escape.size()) << escape;
    return content;
}

void expectNone(std::string_view escape)
{
    std::string content = ">";
    EXPECT_EQ(appendEscaped(content, escape, 0), 0U) << escape;
    EXPECT_EQ(content, ">") << escape;
}

} // namespace

TEST(StringEscapes, knowLineBreaks)
{
    EXPECT_EQ(lineBreakLength("\n", 0), 1U);
    EXPECT_EQ(lineBreakLength("a\r\nb", 1), 2U);
    EXPECT_EQ(lineBreakLength("a\n\n", 1), 1U);
    EXPECT_EQ(lineBreakLength("\r", 0), 0U);
    EXPECT_EQ(lineBreakLength("\ra", 0), 0U);
    EXPECT_EQ(lineBreakLength("a", 0), 0U);
    EXPECT_EQ(lineBreakLength("a", 1), 0U);
}

TEST(StringEscapes, haveNames)
{
    const std::pair<const char*, const char*> names[] = {
        {"\\\"", ">\""}, {"\\'", ">'"},  {"\\\\", ">\\"}, {"\\b", ">\b"},
        {"\\f", ">\f"},  {"\\n", ">\n"}, {"\\r", ">\r"},  {"\\t", ">\t"}};
    for (const auto& [escape, content] : names)
    {
        EXPECT_EQ(escaped(escape), content);
    }
}

TEST(StringEscapes, haveNumbersOfCharacters)
{
    const std::pair<const char*, const char*> numbers[] = {{"\\u007f", ">\x7f"},
                                                           {"\\u0080", ">\xc2\x80"},
                                                           {"\\u07FF", ">\xdf\xbf"},
                                                           {"\\u0800", ">\xe0\xa0\x80"},
                                                           {"\\uD7fF", ">\xed\x9f\xbf"},
                                                           {"\\uE000", ">\xee\x80\x80"},
                                                           {"\\U0000ffff", ">\xef\xbf\xbf"},
                                                           {"\\U00010000", ">\xf0\x90\x80\x80"},
                                                           {"\\U0010FFFF", ">\xf4\x8f\xbf\xbf"}};
    for (const auto& [escape, content] : numbers)
    {
        EXPECT_EQ(escaped(escape), content);
    }
    EXPECT_EQ(escaped("\\u0000"), std::string(">\0", 2));
}

TEST(StringEscapes, areNothingElse)
{
    for (const char* const escape :
         {"\\", "\\x", "\\N", "\\e", "\\u", "\\u123", "\\u12g4", "\\U", "\\U0000123", "\\U0000123G",
          "\\uD800", "\\uDFFF", "\\U0000DC00", "\\U00110000", "\\UFFFFFFFF"})
    {
        expectNone(escape);
    }
    expectNone(std::string_view("\\\0", 2));
}

TEST(StringEscapes, joinLines)
{
    EXPECT_EQ(joinedLength("\\\n", 0), 2U);
    EXPECT_EQ(joinedLength("a\\\r\n \t\n  b", 1), 8U);
    EXPECT_EQ(joinedLength("\\\n \r", 0), 3U);
    EXPECT_EQ(joinedLength("\\\nb", 0), 2U);
    EXPECT_EQ(joinedLength("\\ \n", 0), 0U);
    EXPECT_EQ(joinedLength("\\", 0), 0U);
    EXPECT_EQ(joinedLength("\\n", 0), 0U);
}
