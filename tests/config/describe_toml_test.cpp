#include <gtest/gtest.h>
#include <vorn/parsers/toml_config.h>

#include <chrono>
#include <optional>
#include <regex>
#include <string>
#include <tuple>
#include <vector>

#include "every_kind.h"
#include "listener_schema.h"
#include "read_back.h"

using namespace vorn::parsers::toml;

namespace
{

// A document with its examples: lines that are pairs or headers after "# ".
std::string withExamples(const std::string& text)
{
    static const std::regex example("(^|\n)(?:# )+(?=\\[|(?:[A-Za-z0-9_.-]+|\"[^\"]*\") = )");
    return std::regex_replace(text, example, "$1");
}

} // namespace

TEST(DescribeInToml, HasTheDefaultsOfEveryKind)
{
    every_kind::Config config;
    EXPECT_EQ(readBack(every_kind::schema(), config), nothing);
    EXPECT_TRUE(config == every_kind::Config());
}

// Lists in a document take the place of others, and values of others, so what was there before
// shows which lines there are.
TEST(DescribeInToml, SetsWhatHasADefault)
{
    every_kind::Config config;
    config.isOn = false;
    config.tiny = 1;
    config.byte = 1;
    config.small = 1;
    config.port = 1;
    config.middle = 1;
    config.natural = 1;
    config.large = 1;
    config.size = 1;
    config.ratio = config.whole = config.negativeZero = config.infinity = 1;
    config.single = config.largest = 1;
    config.text = "other";
    config.colour = every_kind::Colour::red;
    config.moment = config.day = config.clock = {};
    config.delay = config.longDelay = std::chrono::milliseconds(1);
    config.exactDelay = std::chrono::duration<double>(1);
    config.interval = std::chrono::seconds(1);
    config.set.reset();
    config.flags = {true};
    config.colours.clear();
    config.matrix.clear();
    config.point = {};
    config.counts.clear();
    config.nested.clear();
    config.proxy.host = "none";
    config.setProxy.reset();
    config.pair = {};
    config.interfaces["lo"].address = "other";
    config.interfaces.erase("eth 0");
    EXPECT_EQ(readBack(every_kind::schema(), config), nothing);
    EXPECT_TRUE(config.values() == every_kind::Config().values());
    EXPECT_EQ(config.interfaces.at("eth 0").address, "10.0.0.1");
    config.interfaces["eth 0"].proxies = every_kind::Config().interfaces["eth 0"].proxies;
    EXPECT_TRUE(config == every_kind::Config());
}

TEST(DescribeInToml, LacksTheRequiredKeysOnly)
{
    listening::Config config;
    EXPECT_EQ(readBack(listening::configSchema(), config),
              std::vector<std::string>{"name: is missing"});
    const auto inner = Schema<every_kind::Rule>(every_kind::ruleSchema());
    struct Outer
    {
        every_kind::Rule rule;
        std::optional<every_kind::Rule> other;
    };
    const auto outer = Schema<Outer>()
                           .table("deep.rule", &Outer::rule, inner)
                           .table("other", &Outer::other, inner);
    Outer object;
    EXPECT_EQ(readBack(outer, object), std::vector<std::string>{"deep.rule.target: is missing"});
    struct Outermost
    {
        Outer outer;
    };
    const auto outermost = Schema<Outermost>().table("outer", &Outermost::outer, outer);
    Outermost all;
    EXPECT_EQ(readBack(outermost, all),
              std::vector<std::string>{"outer.deep.rule.target: is missing"});
    EXPECT_NE(describe(outermost, Format::jsonSchema).find("\n  \"required\": [\"outer\"]"),
              std::string::npos);
}

TEST(DescribeInToml, HasExamplesThatAreAccepted)
{
    const std::string text = withExamples(describe(listening::configSchema(), Format::toml));
    EXPECT_NE(text.find("\nlimits = {NAME = 0}\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\n[[listener]]\n"), std::string::npos) << text;
    listening::Config config;
    EXPECT_EQ(problemsOf(text, listening::configSchema(), config), nothing) << text;
    const std::string all = withExamples(describe(every_kind::schema(), Format::toml));
    EXPECT_NE(all.find("\n[none.NAME.proxies.NAME.rule.match]\n"), std::string::npos) << all;
    every_kind::Config every;
    EXPECT_EQ(problemsOf(all, every_kind::schema(), every), nothing) << all;
}

TEST(DescribeInToml, QuotesKeysThatAreLikeValues)
{
    struct Numbers
    {
        int a = 1, b = 2, c = 3, d = 4, e = 5, f = 6, g = 7;
        auto tie() const { return std::tie(a, b, c, d, e, f, g); }
    };
    const auto schema = Schema<Numbers>()
                            .optional("true", &Numbers::a)
                            .optional("inf.nan", &Numbers::b)
                            .optional("1e5", &Numbers::c)
                            .optional("-1", &Numbers::d)
                            .optional("\"\".\"a.b\"", &Numbers::e)
                            .optional("'\"'.'\\'", &Numbers::f)
                            .optional("info", &Numbers::g);
    const std::string text = describe(schema, Format::toml);
    for (const char* const line :
         {"\"true\" = 1\n", "[\"inf\"]\n", "\"nan\" = 2\n", "\"1e5\" = 3\n", "\"-1\" = 4\n",
          "[\"\"]\n", "\"a.b\" = 5\n", "[\"\\\"\"]\n", "\"\\\\\" = 6\n", "\ninfo = 7\n"})
    {
        EXPECT_NE(text.find(line), std::string::npos) << line << text;
    }
    Numbers numbers{0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(readBack(schema, numbers), nothing);
    EXPECT_EQ(numbers.tie(), Numbers().tie());
}

TEST(DescribeInToml, CommentsAreAccepted)
{
    struct Commented
    {
        int value = 0;
    };
    const auto schema = Schema<Commented>().optional("value", &Commented::value,
                                                     "One|two\r\n\"\\\xf0\x9f\x98\x80\xff.");
    Commented config;
    EXPECT_EQ(readBack(schema, config), nothing);
    EXPECT_EQ(describe(schema, Format::toml).find("# One|two\\r\n# \"\\\\U0001F600\\uFFFD.\n# an"),
              0U)
        << describe(schema, Format::toml);
}
