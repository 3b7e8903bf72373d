// What schemas say beside the kinds of their members.
#include "every_member.h"
#include "told_problems.h"

#include "support/large_documents.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace
{

namespace toml = vorn::parsers::toml;
using test::EveryMember;

struct Inner
{
    int value = 0;
};

struct Outer
{
    Inner inner;
    std::string name = "default";
};

toml::Schema<Inner> innerSchema()
{
    return toml::Schema<Inner>().required("value", &Inner::value);
}

toml::Schema<Outer> outerSchema()
{
    return toml::Schema<Outer>()
        .table("inner", &Outer::inner, innerSchema())
        .optional("name", &Outer::name);
}

template <typename Struct>
std::string toldOf(const std::string& text, const toml::Schema<Struct>& schema)
{
    Struct config;
    return test::told(toml::readConfig(text, schema, config));
}

} // namespace

TEST(Schema, wantsWhatAStructRequiresEvenWithoutItsTable)
{
    EXPECT_EQ(toldOf("name = 'a'\n", outerSchema()), "1:1: inner.value: is missing\n");
    EXPECT_EQ(toldOf("[inner]\n", outerSchema()), "1:2: inner.value: is missing\n");
    EXPECT_EQ(toldOf("inner.value = 1\n", outerSchema()), "");
}

TEST(Schema, tellsUnknownKeysAsItsAuthorWants)
{
    const std::string text = "nme = 1\n[inner]\nvalue = 1\nvalu = 2\n";
    EXPECT_EQ(toldOf(text, outerSchema()), "1:1: nme: unknown key (did you mean name?)\n"
                                           "4:1: inner.valu: unknown key (did you mean value?)\n");
    EXPECT_EQ(toldOf(text, outerSchema().unknownKeys(toml::Unknown::warning)),
              "1:1: warning: nme: unknown key (did you mean name?)\n"
              "4:1: warning: inner.valu: unknown key (did you mean value?)\n");
    EXPECT_EQ(toldOf(text, outerSchema().unknownKeys(toml::Unknown::ignored)), "");
    const toml::Schema<Outer> mixed =
        toml::Schema<Outer>()
            .table("inner", &Outer::inner, innerSchema().unknownKeys(toml::Unknown::problem))
            .unknownKeys(toml::Unknown::ignored);
    EXPECT_EQ(toldOf(text, mixed), "4:1: inner.valu: unknown key (did you mean value?)\n");
}

TEST(Schema, letsWarningsPass)
{
    Outer config;
    const auto problems =
        toml::readConfig("name = 'a'\nx = 1\ninner.value = 2\n",
                         outerSchema().unknownKeys(toml::Unknown::warning), config);
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(problems[0].severity, toml::Severity::warning);
    EXPECT_EQ(config.name, "a");
    EXPECT_EQ(config.inner.value, 2);
}

// A check that is not written for this may return a null pointer, where nothing is wrong.
TEST(Schema, takesNullPointersForNothing)
{
    struct Limits
    {
        int low = 0;
        std::optional<int> high;
    };
    const auto isOdd = [](int number) { return number % 2 != 0 ? "is odd" : nullptr; };
    const auto schema = toml::Schema<Limits>()
                            .optional("low", &Limits::low, isOdd)
                            .optional("high", &Limits::high, isOdd)
                            .check([](const Limits& limits) -> const char*
                                   { return limits.high < limits.low ? "is below low" : nullptr; },
                                   {"high"});
    EXPECT_EQ(toldOf("low = 2\nhigh = 4\n", schema), "");
    EXPECT_EQ(toldOf("low = 1\nhigh = 4\n", schema), "1:7: low: is odd\n");
    EXPECT_EQ(toldOf("low = 2\nhigh = 0\n", schema), "2:1: high: is below low\n");
}

TEST(Schema, checksMembersAndStructs)
{
    EXPECT_EQ(toldOf("port = 22\n", test::everySchema()), "1:8: port: is taken\n");
    EXPECT_EQ(toldOf("[[window]]\nbegin = 5\nend = 4\n", test::everySchema()),
              "3:1: window[0].end, window[0].begin: end is before begin\n");
    EXPECT_EQ(toldOf("[named.a]\nbegin = 11\n", test::everySchema()),
              "1:8: named.a.end, named.a.begin: end is before begin\n");
    EXPECT_EQ(toldOf("[[window]]\n[[window]]\n[[window]]\n[[window]]\n", test::everySchema()),
              "1:3: window: has more than three\n");
    EXPECT_EQ(
        toldOf("window = [{end = 1}, {end = 1}, {end = 1}, {end = -1}]\n", test::everySchema()),
        "1:45: window[3].end, window[3].begin: end is before begin\n");
}

TEST(Schema, doesNotCheckAStructWithOtherProblems)
{
    EXPECT_EQ(toldOf("[[window]]\nbegin = 5\nend = 4\nx = 1\n", test::everySchema()),
              "4:1: window[0].x: unknown key\n");
}

TEST(Schema, takesQuotedKeys)
{
    EXPECT_EQ(toldOf("[[window]]\n\"5 GHz\".end = 20\n", test::everySchema()), "");
    EXPECT_EQ(toldOf("[[window]]\n[window.'5 GHz']\nend = 'x'\n", test::everySchema()),
              "3:7: window[0].\"5 GHz\".end: should be an integer, is a string\n");
}

TEST(Schema, tellsItsOwnMistakes)
{
    const auto toldOfEmpty = [](const toml::Schema<Outer>& schema) { return toldOf("", schema); };
    EXPECT_EQ(toldOfEmpty(toml::Schema<Outer>().optional("a b", &Outer::name)),
              "the schema is wrong: 'a b' is not a key\n");
    EXPECT_EQ(toldOfEmpty(toml::Schema<Outer>().optional("", &Outer::name)),
              "the schema is wrong: '' is not a key\n");
    EXPECT_EQ(toldOfEmpty(toml::Schema<Outer>()
                              .optional("a", &Outer::name)
                              .optional("a.b", &Outer::name)
                              .optional("a", &Outer::name)),
              "the schema is wrong: a.b has two meanings\n"
              "the schema is wrong: a has two meanings\n");
    EXPECT_EQ(toldOfEmpty(outerSchema().check([](const Outer&) { return ""; }, {"nam"})),
              "the schema is wrong: nam has a check, but is not a key\n");
    enum class Other
    {
        one
    };
    EXPECT_EQ(toldOf("", toml::Schema<EveryMember>().optional("color", &EveryMember::color,
                                                              toml::oneOf({{"one", Other::one}}))),
              "the schema is wrong: the choices of color are of another type\n");
}

TEST(Schema, tellsLimitsThatLeaveNothing)
{
    struct Limited
    {
        int integer = 0;
        double number = 0;
        Outer outer;
        test::Color color = test::Color::red;
    };
    using L = Limited;
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(toldOf("", toml::Schema<L>()
                             .optional("integer", &L::integer, toml::range(10, 1))
                             .optional("number", &L::number, toml::range(0.0, nan))
                             .optional("color", &L::color, toml::oneOf({}))
                             .optional("again", &L::color,
                                       toml::oneOf({{"red", test::Color::red},
                                                    {"red", test::Color::green}}))),
              "the schema is wrong: the range of integer is empty\n"
              "the schema is wrong: the range of number is empty\n"
              "the schema is wrong: color has no choices\n"
              "the schema is wrong: again has the choice red twice\n");
}

// Otherwise there would be no end to it.
TEST(Schema, isNotWithinItself)
{
    struct Node
    {
        std::vector<Node> children;
    };
    toml::Schema<Node> schema;
    schema.tables("children", &Node::children, schema);
    EXPECT_EQ(toldOf("", schema), "the schema is wrong: children is within itself\n");
}

TEST(Schema, tellsTheNarrowerLimits)
{
    struct Narrow
    {
        std::uint8_t byte = 0;
        std::uint64_t size = 0;
        float ratio = 0;
    };
    const toml::Schema<Narrow> schema =
        toml::Schema<Narrow>()
            .optional("byte", &Narrow::byte, toml::range(-5, 3000))
            .optional("size", &Narrow::size, toml::range(1, std::uint64_t{0} - 1))
            .optional("ratio", &Narrow::ratio, toml::range(0.0F, 0.7F));
    EXPECT_EQ(toldOf("byte = 300\nsize = 0\nratio = 0.8\n", schema),
              "1:8: byte: 300 is not in 0 to 255\n"
              "2:8: size: 0 is not in 1 to 9223372036854775807\n"
              "3:9: ratio: 0.8 is not in 0 to 0.7\n");
    EXPECT_EQ(toldOf("byte = 255\nsize = 5\nratio = 0.7\n", schema), "");
}

TEST(Schema, showsWhatChecksSaySafely)
{
    const toml::Schema<Outer> schema = toml::Schema<Outer>().optional(
        "name", &Outer::name, [](const std::string& name) { return "is " + name; });
    EXPECT_EQ(toldOf("name = \"a\\nb\\u001b[2J\"\n", schema), "1:8: name: is a\\nb\\u001B[2J\n");
}

TEST(Schema, isSharedByItsCopies)
{
    const toml::Schema<Outer> schema = outerSchema();
    const toml::Schema<Outer> copy = schema; // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(schema.internals(), copy.internals());
}

// Lists are replaced, other members stay as they are.
TEST(ReadConfig, keepsWhatTheDocumentDoesNotHave)
{
    EveryMember config;
    config.number = 7;
    config.flags = {true};
    config.colors = {test::Color::red};
    config.features = {{"a", true}, {"b", true}};
    config.windows.resize(2);
    EXPECT_EQ(
        test::told(toml::readConfig("flags = [false, false]\nfeatures.b = false\n[[window]]\n",
                                    test::everySchema(), config)),
        "");
    EXPECT_EQ(config.number, 7);
    EXPECT_EQ(config.flags, (std::vector<bool>{false, false}));
    EXPECT_EQ(config.colors.size(), 1U);
    EXPECT_EQ(config.features, (std::map<std::string, bool>{{"a", true}, {"b", false}}));
    EXPECT_EQ(config.windows.size(), 1U);
}

TEST(ReadConfig, leavesTheConfigurationAloneIfThereAreErrors)
{
    EveryMember config;
    config.number = 7;
    EXPECT_NE(test::told(toml::readConfig("number = 8\ntiny = 999\n", test::everySchema(), config)),
              "");
    EXPECT_EQ(config.number, 7);
}

// The diagnosis does not look for more than a thousand mistakes.
TEST(ReadConfig, isNotSilentIfItCannotLookAtAll)
{
    const std::string text = test::repeated("# \f\n", 1000) + "on = true\non = false\n";
    EveryMember config;
    EXPECT_EQ(test::told(toml::readConfig(text, test::everySchema(), config)),
              "1003:1: has more than 1,000 mistakes by TOML 1.0, so that not all are looked for\n");
    EXPECT_FALSE(config.isOn);
}

TEST(ReadConfig, tellsTheStartsOfLongKeys)
{
    const std::string name(1000, 'k');
    EveryMember config;
    const auto problems =
        toml::readConfig(name + " = 1\n[named." + name + "]\nx = 1\n", test::everySchema(), config);
    const std::string start = name.substr(0, 60) + "...";
    EXPECT_EQ(test::told(problems),
              "1:1: " + start + ": unknown key\n3:1: named." + start + ".x: unknown key\n");
}

TEST(ReadConfig, tellsAtMostAThousandProblems)
{
    std::string text;
    for (int i = 0; i < 3000; ++i)
    {
        text += "x" + std::to_string(i) + " = 1\n";
    }
    Outer config;
    EXPECT_EQ(toml::readConfig(text, outerSchema(), config).size(), 1000U);
}
