#include "config/value_text.h"

#include "every_member.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace
{

namespace toml = vorn::parsers::toml;
using namespace toml::config;

// The text of a value, after a '!' if it is not exact.
template <typename Member>
std::string valueText(const Member& member, Syntax syntax = Syntax::toml)
{
    Text text;
    const bool isExact = addValue(text, typeOf<Member>, Entry{}, &member, syntax);
    return (isExact ? "" : "!") + text.text;
}

template <typename Member, typename... Arguments>
std::string exampleOf(const Arguments&... arguments)
{
    Entry entry;
    (apply<Member>(entry, arguments), ...);
    Text text;
    addExample(text, typeOf<Member>, entry);
    return text.text;
}

std::string keyText(const std::string& name, Syntax syntax)
{
    Text text;
    EXPECT_EQ(addKey(text, name, syntax), name.find('\xff') == std::string::npos);
    return text.text;
}

} // namespace

TEST(ValueText, isOfListsAndMaps)
{
    using Rows = std::vector<std::vector<int>>;
    using Map = std::map<std::string, bool>;
    EXPECT_EQ(valueText(Rows{{1, 2}, {3}}), "[[1, 2], [3]]");
    EXPECT_EQ(valueText(std::vector<bool>{true, false}), "[true, false]");
    EXPECT_EQ(valueText(Map{{"a", true}, {"b c", false}}), R"({a = true, "b c" = false})");
    EXPECT_EQ(valueText(Map{{"a", true}, {"b c", false}}, Syntax::json),
              R"({"a": true, "b c": false})");
    EXPECT_EQ(valueText(Map{{"\xff", true}}), R"(!{"\uFFFD" = true})");
    // TOML, as it is here, has no empty ones.
    EXPECT_EQ(valueText(std::vector<int>{}), "![]");
    EXPECT_EQ(valueText(Rows{{1}, {}, {2}}), "![[1], [], [2]]");
    EXPECT_EQ(valueText(Rows{{1}, {}}, Syntax::json), "[[1], []]");
    EXPECT_EQ(valueText(Map{}), "!{}");
}

TEST(ValueText, isOfOptionals)
{
    EXPECT_EQ(valueText(std::optional<int>(5)), "5");
    EXPECT_EQ(valueText(std::optional<int>()), "!");
    EXPECT_EQ(valueText(test::Point{}), "!");
}

TEST(ValueText, isNotOfWhatACheckRefuses)
{
    Entry entry;
    entry.type = &typeOf<int>;
    const int value = 5;
    Text text;
    EXPECT_TRUE(addMember(text, entry, &value, Syntax::toml));
    apply<int>(entry, [](int number) { return number == 5 ? "is five" : ""; });
    EXPECT_FALSE(addMember(text, entry, &value, Syntax::toml));
    const int other = 6;
    EXPECT_TRUE(addMember(text, entry, &other, Syntax::toml));
    EXPECT_EQ(text.text, "556");
}

TEST(ValueText, isOfKeys)
{
    EXPECT_EQ(keyText("a-b", Syntax::toml), "a-b");
    EXPECT_EQ(keyText("a-b", Syntax::json), "\"a-b\"");
    EXPECT_EQ(keyText("a b", Syntax::toml), "\"a b\"");
    EXPECT_EQ(keyText("a\"b", Syntax::json), "\"a\\\"b\"");
    EXPECT_EQ(keyText("\xff", Syntax::toml), "\"\\uFFFD\"");
}

TEST(Example, isOfEachKind)
{
    EXPECT_EQ(exampleOf<bool>(), "false");
    EXPECT_EQ(exampleOf<int>(), "0");
    EXPECT_EQ(exampleOf<double>(), "0");
    EXPECT_EQ(exampleOf<std::string>(), "\"\"");
    EXPECT_EQ(exampleOf<toml::DateTime>(), "1970-01-01T00:00:00Z");
    EXPECT_EQ(exampleOf<std::chrono::seconds>(toml::unit<std::chrono::seconds>()), "0");
    EXPECT_EQ(exampleOf<test::Color>(toml::oneOf({{"red", test::Color::red}})), "\"red\"");
    EXPECT_EQ(exampleOf<test::Color>(toml::oneOf({})), "\"\"");
    EXPECT_EQ(exampleOf<std::optional<int>>(), "0");
    EXPECT_EQ(exampleOf<std::vector<bool>>(), "[false]");
    EXPECT_EQ((exampleOf<std::array<std::string, 3>>()), "[\"\", \"\", \"\"]");
    EXPECT_EQ((exampleOf<std::map<std::string, std::vector<int>>>()), "{NAME = [0]}");
}

TEST(Example, isWithinTheRange)
{
    EXPECT_EQ(exampleOf<int>(toml::range(-5, 5)), "0");
    EXPECT_EQ(exampleOf<int>(toml::range(1, 5)), "1");
    EXPECT_EQ(exampleOf<int>(toml::range(-5, -1)), "-5");
    EXPECT_EQ(exampleOf<double>(toml::range(0.5, 2.0)), "0.5");
}
