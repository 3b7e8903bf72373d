#include <gtest/gtest.h>
#include <vorn/parsers/toml_values.h>

#include <string>
#include <utility>
#include <vector>

using namespace vorn::parsers::toml;
using namespace std::string_literals;

namespace
{

using Cases = std::vector<std::pair<std::string, std::string>>;

void expectValues(const Cases& cases)
{
    for (const auto& [text, value] : cases)
    {
        EXPECT_EQ(stringValue(text), value) << text;
    }
}

void expectNone(const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        EXPECT_EQ(stringValue(text), std::nullopt) << text;
    }
}

const std::string three = R"(""")";

std::string lines(const std::string& content)
{
    return three + content + three;
}

} // namespace

TEST(StringValue, IsWithoutDelimiters)
{
    expectValues({
        {R"("")", ""},
        {R"("red")", "red"},
        {R"("it's")", "it's"},
        {"''", ""},
        {R"('C:\temp')", R"(C:\temp)"},
        {R"('say "x"')", R"(say "x")"},
        {R"('\')", R"(\)"},
        {"\"a\tb\"", "a\tb"},
        {"\"\xC3\xA9\"", "\xC3\xA9"},
        {"''''''", ""},
        {R"('''C:\u0041\''')", R"(C:\u0041\)"},
        {"'''a'b''c'''", "a'b''c"},
        {lines(""), ""},
        {lines("a"), "a"},
        {lines(R"("a" ""b)") + '"', R"("a" ""b")"},
        {R"(""""""")", R"(")"},
        {"'''''''", "'"},
        {"'''a''''", "a'"},
        {lines("a") + '"', R"(a")"},
    });
}

TEST(StringValue, HasEscapesResolved)
{
    expectValues({
        {R"("a\tb")", "a\tb"},
        {R"("\b\f\n\r\"\\\'")", "\b\f\n\r\"\\'"},
        {R"("\u0041\U00000042")", "AB"},
        {R"("\u0000")", "\0"s},
        {R"("\u007f\u0080")", "\x7F\xC2\x80"},
        {R"("\u00e9\u00E9")", "\xC3\xA9\xC3\xA9"},
        {R"("\u07FF\u0800")", "\xDF\xBF\xE0\xA0\x80"},
        {R"("\uD7FF\uE000\uFFFF")", "\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"},
        {R"("\U00010000\U0010FFFF")", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
        {R"("\\u0041")", R"(\u0041)"},
        {lines(R"(a\"\"\"b\u0041)"), R"(a"""bA)"},
    });
}

TEST(StringValue, HasTheLineBreaksOfTomlOneZero)
{
    expectValues({
        {lines("\none\\\n   two"), "onetwo"},
        {lines("\na"), "a"},
        {lines("\r\na"), "a"},
        {lines("\n\na"), "\na"},
        {lines("\ra"), "\ra"},
        {lines("a\nb\r\nc"), "a\nb\r\nc"},
        {"'''\na\\\n  b'''", "a\\\n  b"},
        {"'''\r\na'''", "a"},
        {lines("a\\\r\n\t b"), "ab"},
        {lines("a\\\n\n \r\n\tb"), "ab"},
        {lines("a\\\nb"), "ab"},
        {lines("\\\n"), ""},
        {lines("\n\\\n\n"), ""},
        {lines("a\\\n \\\n b"), "ab"},
        // An escaped backslash joins no lines.
        {lines("a\\\\\n  b"), "a\\\n  b"},
        {lines("a\\\\\\\n  b"), "a\\b"},
        {lines("a\\\n\"b"), "a\"b"},
        {lines("a\\\n\rb"), "a\rb"},
    });
}

TEST(StringValue, IsNoneWithAnEscapeOfNoCharacter)
{
    expectNone({R"("\uD800")", R"("\uDFFF")", R"("\ud83d\ude00")", R"("\U0000D800")",
                R"("\U00110000")", R"("\UFFFFFFFF")", R"("\U80000041")", lines(R"(a\uD800)")});
}

TEST(StringValue, KeepsBytesThatAreNotUtf8)
{
    EXPECT_EQ(stringValue("\"\xFF\xC3\x01\r\0\"s"), std::nullopt);
    EXPECT_EQ(stringValue("\"\xFF\xC3\x01\r\0z\""s), "\xFF\xC3\x01\r\0z"s);
}

TEST(StringValue, OtherTextsHaveNone)
{
    expectNone({"",
                "a",
                "\"",
                "'",
                "\"\"\"",
                "\"\"\"\"",
                "\"\"\"\"\"",
                "'''",
                "'''''",
                "\"a",
                "a\"",
                "\"a'",
                "\"a\"b\"",
                "'a'b'",
                "'a\\'b'",
                "\"a\" ",
                " \"a\"",
                "\"a\nb\"",
                "'a\nb'",
                "\"a\0"s,
                "\"a\"\0"s,
                "\"\\\"",
                "\"\\",
                "\"\\q\"",
                "\"\\ \"",
                "\"\\\n\"",
                "\"\\u004\"",
                "\"\\u004g\"",
                "\"\\u",
                "\"\\U0000004\"",
                "\"\\u00\"41\"",
                lines("a\\ \nb"),
                lines("a\\"),
                lines("a\\\rb"),
                lines("a") + "\"\"",
                lines("a\"\"\"b"),
                "'''a'''''",
                "'''a'''b'''",
                "\"\"\"a",
                "\"\"\"a\"",
                "\"\"\"a\"\"",
                "\"\"\"\\\n",
                "\"\"\"\n"});
}
