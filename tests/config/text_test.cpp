#include "config/text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace
{

using namespace vorn::parsers::toml::config;

using Add = void (*)(Text&, std::string_view);

std::string added(Add add, std::string_view text)
{
    Text out;
    out << ">";
    add(out, text);
    return out.text;
}

} // namespace

TEST(Text, growsByPieces)
{
    Text text;
    text << "a" << std::string_view("bc", 1) << std::int64_t{-5} << ""
         << std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(text.text, "ab-59223372036854775807");
}

TEST(Text, hasEscapesForWhatADocumentCannotHave)
{
    EXPECT_EQ(added(addForDocument, "a\xc3\xa9\xef\xbf\xbf"), ">a\xc3\xa9\xef\xbf\xbf");
    EXPECT_EQ(added(addForDocument, "\xf0\x90\x80\x80z\xf4\x8f\xbf\xbf"),
              ">\\U00010000z\\U0010FFFF");
}

TEST(Text, isAStringOfJson)
{
    EXPECT_EQ(added(addJson, "a\"\\\t\x01"), R"(>"a\"\\\t\u0001")");
    EXPECT_EQ(added(addJson, "\xc3\xa9\xef\xbf\xbf"), R"(>"\u00E9\uFFFF")");
    EXPECT_EQ(added(addJson, "\xf0\x90\x80\x80\xf4\x8f\xbf\xbf"), R"(>"\uD800\uDC00\uDBFF\uDFFF")");
    EXPECT_EQ(added(addJson, "\xff"), R"(>"\uFFFD")");
}

TEST(Text, isACommentOfOneLine)
{
    EXPECT_EQ(added(addComment, "a \"b\" \\ 'c'"), ">a \"b\" \\ 'c'");
    EXPECT_EQ(added(addComment, "a\nb\t\xff\xf0\x9f\x98\x80"), ">a\\nb\\t\\uFFFD\\U0001F600");
    EXPECT_EQ(added(addComment, "\\"), ">\\");
    EXPECT_EQ(added(addComment, ""), ">");
}

TEST(Text, isACellOfATable)
{
    EXPECT_EQ(added(addCell, "a|b\r\nc"), ">a\\|b  c");
    EXPECT_EQ(added(addCode, "a|b"), ">`a\\|b`");
    EXPECT_EQ(added(addCode, "a`b"), ">`` a`b ``");
}
