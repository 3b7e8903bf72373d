// What is said of tables and lists once they are complete.
#include "every_member.h"
#include "told_problems.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace
{

namespace toml = vorn::parsers::toml;

struct Inner
{
    int value = 0;
};

struct Middle
{
    Inner inner;
    int other = 0;
};

struct Outer
{
    Middle middle;
    std::array<int, 1> one{};
    int begin = 0;
    int end = 1;
};

const toml::Schema<Outer>& outerSchema()
{
    static const auto inner = toml::Schema<Inner>().required("a.value", &Inner::value);
    static const auto middle = toml::Schema<Middle>()
                                   .table("b.inner", &Middle::inner, inner)
                                   .optional("other", &Middle::other);
    static const auto outer =
        toml::Schema<Outer>()
            .table("middle", &Outer::middle, middle)
            .optional("one", &Outer::one)
            .optional("from.begin", &Outer::begin)
            .optional("to.end", &Outer::end)
            .check([](const Outer& config)
                   { return config.end < config.begin ? "end is before begin" : ""; },
                   {"to.end", "from.begin"})
            .check([](const Outer& config) { return config.end == 13 ? "13 is unlucky" : ""; }, {});
    return outer;
}

template <typename Struct>
std::string toldOf(const std::string& text, const toml::Schema<Struct>& schema)
{
    Struct config;
    return test::told(toml::readConfig(text, schema, config));
}

} // namespace

TEST(Closing, findsWhatIsMissingInStructsWithinStructs)
{
    EXPECT_EQ(toldOf("", outerSchema()), "1:1: middle.b.inner.a.value: is missing\n");
    EXPECT_EQ(toldOf("\n[middle]\nother = 1\n", outerSchema()),
              "2:2: middle.b.inner.a.value: is missing\n");
    EXPECT_EQ(toldOf("[middle.b]\n", outerSchema()), "1:9: middle.b.inner.a.value: is missing\n");
    EXPECT_EQ(toldOf("[middle.b.inner.a]\n", outerSchema()),
              "1:17: middle.b.inner.a.value: is missing\n");
    EXPECT_EQ(toldOf("middle.b.inner.a.value = 1\n", outerSchema()), "");
}

TEST(Closing, countsTheElementsOfArrays)
{
    const std::string rest = "middle.b.inner.a.value = 1\n";
    EXPECT_EQ(toldOf("one = [1]\n" + rest, outerSchema()), "");
    EXPECT_EQ(toldOf("one = [1, 2]\n" + rest, outerSchema()),
              "1:1: one: should have 1 element, has 2\n");
    EXPECT_EQ(
        toldOf("[[corner]]\nx = 1\n[[corner]]\nx = 1\n[[corner]]\nx = 1\n", test::everySchema()),
        "1:3: corner: should have 2 elements, has 3\n");
}

TEST(Closing, placesAChecksComplaintAtTheFirstKey)
{
    const std::string rest = "middle.b.inner.a.value = 1\n";
    EXPECT_EQ(toldOf(rest + "to.end = 4\nfrom.begin = 5\n", outerSchema()),
              "2:4: to.end, from.begin: end is before begin\n");
    EXPECT_EQ(toldOf(rest + "from.begin = 5\n[to]\n", outerSchema()),
              "3:2: to.end, from.begin: end is before begin\n");
    EXPECT_EQ(toldOf(rest + "from.begin = 5\n", outerSchema()),
              "1:1: to.end, from.begin: end is before begin\n");
    EXPECT_EQ(toldOf(rest + "to.end = 13\n", outerSchema()), "1:1: 13 is unlucky\n");
}

TEST(Closing, closesListsThatOtherTablesAreBetween)
{
    test::EveryMember config;
    EXPECT_EQ(test::told(toml::readConfig("[[window]]\nend = 1\n[point]\nx = 1\n[[window]]\n"
                                          "end = 2\n[[corner]]\nx = 1\n[[window]]\nend = 3\n"
                                          "[[corner]]\nx = 2\n",
                                          test::everySchema(), config)),
              "");
    ASSERT_EQ(config.windows.size(), 3U);
    EXPECT_EQ(config.windows[1].end, 2);
    EXPECT_EQ(config.corners[1].x, 2.0);
}
