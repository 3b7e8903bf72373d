#include "config/shown_text.h"

#include <vorn/parsers/toml_values.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

namespace config = vorn::parsers::toml::config;
using config::shown;
using vorn::parsers::toml::stringValue;

} // namespace

TEST(ShownText, isWhatCanBeSeen)
{
    for (const char* const text : {"", "plain", "'a \"b\" \\'", "\xc3\xa9", "\xe2\x82\xac",
                                   "\xf0\x9f\x98\x80", "\xf4\x8f\xbf\xbf", "\xe2\x80\xaf"})
    {
        EXPECT_EQ(shown(text), text);
    }
}

TEST(ShownText, hasEscapesForWhatCannot)
{
    EXPECT_EQ(shown("a\tb\nc\r"), "a\\tb\\nc\\r");
    EXPECT_EQ(shown(std::string("\0\x1f\x7f", 3)), "\\u0000\\u001F\\u007F");
    EXPECT_EQ(shown("\xc2\x80\xc2\x9f\xc2\xa0"), "\\u0080\\u009F\xc2\xa0");
    EXPECT_EQ(shown("\xc2\xad\xef\xbb\xbf"), "\\u00AD\\uFEFF");
    // From the space without width on, all that turns directions.
    EXPECT_EQ(shown("\xe2\x80\x8a\xe2\x80\x8b\xe2\x80\x8f\xe2\x80\x90"),
              "\xe2\x80\x8a\\u200B\\u200F\xe2\x80\x90");
    EXPECT_EQ(shown("\xe2\x80\xa7\xe2\x80\xa8\xe2\x80\xae"), "\xe2\x80\xa7\\u2028\\u202E");
    EXPECT_EQ(shown("\xe2\x81\x9f\xe2\x81\xa0\xe2\x81\xaf\xe2\x81\xb0"),
              "\xe2\x81\x9f\\u2060\\u206F\xe2\x81\xb0");
}

TEST(ShownText, hasTheBytesThatAreNoUtf8)
{
    EXPECT_EQ(shown("a\xff\x80z"), "a\\xFF\\x80z");
    EXPECT_EQ(shown("\xc3"), "\\xC3");
    EXPECT_EQ(shown("\xc0\x80"), "\\xC0\\x80");
    EXPECT_EQ(shown("\xed\xa0\x80"), "\\xED\\xA0\\x80");
    EXPECT_EQ(shown("\xf5\x80\x80\x80"), "\\xF5\\x80\\x80\\x80");
}

TEST(ShownText, endsAfterSixtyBytes)
{
    const std::string sixty(60, 'x');
    EXPECT_EQ(shown(sixty), sixty);
    EXPECT_EQ(shown(sixty + 'x'), sixty + "...");
    // No character is cut.
    EXPECT_EQ(shown(sixty.substr(1) + "\xc3\xa9" + 'x'), sixty.substr(1) + "\xc3\xa9...");
    EXPECT_EQ(shown(sixty.substr(1) + "\n\n"), sixty.substr(1) + "\\n...");
}

TEST(QuotedText, isAStringWithTheValue)
{
    for (const std::string& value :
         {std::string(), std::string("a\"b\\c'"), std::string("\t\n\r\0\x7f", 5),
          std::string("\xc2\x85\xe2\x80\xae\xef\xbb\xbf\xc3\xa9\xf0\x9f\x98\x80"),
          std::string(100, 'x')})
    {
        EXPECT_EQ(stringValue(config::quoted(value)), value);
    }
    EXPECT_EQ(config::quoted("a\tb\"\\\xe2\x80\xae"), R"("a\tb\"\\\u202E")");
}

TEST(QuotedText, replacesBytesThatAreNoUtf8)
{
    EXPECT_EQ(config::quoted("a\xff\xc3"), R"("a\uFFFD\uFFFD")");
}
