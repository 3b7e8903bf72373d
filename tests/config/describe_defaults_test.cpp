#include <gtest/gtest.h>
#include <vorn/parsers/toml_config.h>

#include <chrono>
#include <cmath>
#include <cstdint>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "every_kind.h"
#include "read_back.h"

using namespace vorn::parsers::toml;

namespace
{

struct Unreadable
{
    int outOfRange = 0;
    std::uint64_t large = 0xffffffffffffffffU;
    std::string refused;
    std::string bytes = "\xff";
    every_kind::Colour none{};
    DateTime never;
    std::chrono::nanoseconds third{(std::int64_t{1} << 60) + 1};
    double nan = std::nan("5");
    std::vector<std::optional<int>> gaps{1, std::nullopt};
    std::map<std::string, int> names{{"\xff", 1}};
};

Schema<Unreadable> unreadableSchema()
{
    using every_kind::Colour;
    const auto refuse = [](const std::string& text)
    { return text.empty() ? "is empty" : std::string(); };
    return Schema<Unreadable>()
        .optional("range", &Unreadable::outOfRange, range(1, 10))
        .optional("large", &Unreadable::large)
        .optional("refused", &Unreadable::refused, refuse)
        .optional("bytes", &Unreadable::bytes)
        .optional("none", &Unreadable::none, oneOf({{"red", Colour::red}}))
        .optional("never", &Unreadable::never)
        .optional("third", &Unreadable::third, unit<std::chrono::seconds>())
        .optional("nan", &Unreadable::nan)
        .optional("gaps", &Unreadable::gaps)
        .optional("names", &Unreadable::names);
}

} // namespace

TEST(DescribeInToml, HasNoLineForADefaultThatItCannotSay)
{
    const std::string text = describe(unreadableSchema(), Format::toml);
    for (const char* const line :
         {"\n# range = 1\n", "\n# large = 0\n", "\n# refused = \"\"\n", "\n# bytes = \"\"\n",
          "\n# none = \"red\"\n", "\n# never = 1970-01-01T00:00:00Z\n", "\n# third = 0\n",
          "\n\"nan\" = nan\n", "\n# gaps = [0]\n", "\n# names = {NAME = 0}\n"})
    {
        EXPECT_NE(text.find(line), std::string::npos) << line << text;
    }
    Unreadable config;
    EXPECT_EQ(readBack(unreadableSchema(), config), nothing);
    EXPECT_EQ(config.large, 0xffffffffffffffffU);
    EXPECT_EQ(config.names, Unreadable().names);
}

// A document cannot have this number, but a reader of the page can.
TEST(DescribeInMarkdown, HasNumbersBeyondThoseOfDocuments)
{
    const std::string text = describe(unreadableSchema(), Format::markdown);
    EXPECT_NE(text.find("| `18446744073709551615` |"), std::string::npos) << text;
}

TEST(DescribeInJsonSchema, HasNoDefaultThatTheSchemaDoesNotTake)
{
    const std::string text = describe(unreadableSchema(), Format::jsonSchema);
    EXPECT_EQ(text.find("\"default\""), std::string::npos) << text;
}

namespace
{

struct Element
{
    int port = 0;
    std::vector<int> tags{1}; // which a document cannot empty
    auto tie() const { return std::tie(port, tags); }
};

template <int kind>
struct Full
{
    std::vector<Element> list;
    std::map<std::string, Element> map;
    std::optional<Element> optional;
    Element table;

    Full()
    {
        const Element element = kind == 0   ? Element{1, {2}}
                                : kind == 1 ? Element{1, {}}
                                            : Element{11, {1}};
        list = {element, element};
        map = {{"a", element}};
        optional = table = element;
    }
};

// Whether the document has tables for these, and not as examples.
template <int kind>
std::string tablesOf(const std::string& complaint = {})
{
    const auto element = Schema<Element>()
                             .optional("port", &Element::port, range(0, 10))
                             .optional("tags", &Element::tags)
                             .check([complaint](const Element&) { return complaint; }, {"port"});
    const auto schema = Schema<Full<kind>>()
                            .tables("list", &Full<kind>::list, element)
                            .tablesByName("map", &Full<kind>::map, element)
                            .table("optional", &Full<kind>::optional, element)
                            .table("table", &Full<kind>::table, element);
    Full<kind> config;
    EXPECT_EQ(readBack(schema, config), nothing);
    EXPECT_EQ(config.list.size(), 2U);
    EXPECT_EQ(config.list.back().tie(), Full<kind>().list.back().tie());
    EXPECT_EQ(config.map.at("a").tie(), Full<kind>().map.at("a").tie());
    EXPECT_EQ(config.optional->tie(), Full<kind>().optional->tie());
    EXPECT_EQ(config.table.tie(), Full<kind>().table.tie());
    const std::string text = describe(schema, Format::toml);
    std::string tables;
    for (const char* const header : {"\n[[list]]", "\n[map.a]", "\n[optional]", "\n[table]"})
    {
        tables += text.find(header) == std::string::npos ? "" : header;
    }
    return tables;
}

} // namespace

TEST(DescribeInToml, HasTheTablesOfDefaults)
{
    EXPECT_EQ(tablesOf<0>(), "\n[[list]]\n[map.a]\n[optional]\n[table]");
}

// An element of a list is a new one, which has tags.
TEST(DescribeInToml, HasNoListThatCannotBeSaid)
{
    EXPECT_EQ(tablesOf<1>(), "\n[map.a]\n[optional]\n[table]");
    EXPECT_EQ(tablesOf<2>(), "\n[map.a]\n[optional]\n[table]");
}

namespace
{

// What a new one has, and a document cannot take away.
struct Group
{
    std::optional<Element> optional = Element();
    std::map<std::string, Element> map{{"a", {}}};
    std::vector<Element> list{{}};
    std::map<std::string, int> numbers{{"a", 1}};
};

template <int kind>
struct Groups
{
    std::vector<Group> list{Group()};

    Groups()
    {
        Group& group = list.front();
        if (kind == 1)
        {
            group.optional = std::nullopt;
        }
        if (kind == 2)
        {
            group.map = {{"b", {}}};
        }
        if (kind == 3)
        {
            group.list = {};
        }
        if (kind == 4)
        {
            group.numbers = {{"b", 2}};
        }
    }
};

template <int kind>
void expectAnExample()
{
    const auto element = Schema<Element>().optional("port", &Element::port);
    Schema<Group> group;
    if constexpr (kind == 1)
    {
        group.table("optional", &Group::optional, element);
    }
    else if constexpr (kind == 2)
    {
        group.tablesByName("map", &Group::map, element);
    }
    else if constexpr (kind == 4)
    {
        group.optional("numbers", &Group::numbers);
    }
    else
    {
        group.tables("list", &Group::list, element);
    }
    const auto schema = Schema<Groups<kind>>().tables("list", &Groups<kind>::list, group);
    Groups<kind> config;
    EXPECT_EQ(readBack(schema, config), nothing);
    const Group expected = Groups<kind>().list.front();
    const Group& read = config.list.front();
    EXPECT_EQ(read.optional.has_value(), expected.optional.has_value()) << kind;
    EXPECT_EQ(read.map.count("a"), expected.map.count("a")) << kind;
    EXPECT_EQ(read.map.size(), 1U) << kind;
    EXPECT_EQ(read.numbers, expected.numbers) << kind;
    EXPECT_EQ(read.list.size(), expected.list.size()) << kind;
    EXPECT_EQ(describe(schema, Format::toml).find("\n[[list]]"), std::string::npos) << kind;
}

} // namespace

TEST(DescribeInToml, HasNoListWhoseElementsHaveLessThanNewOnes)
{
    expectAnExample<1>();
    expectAnExample<2>();
    expectAnExample<3>();
    expectAnExample<4>();
}

TEST(DescribeInToml, HasNoTableThatACheckRefuses)
{
    EXPECT_EQ(tablesOf<0>("is refused"), "");
}

TEST(DescribeInToml, PassesOnWhatACheckThrows)
{
    struct Thrown
    {
        int value = 0;
    };
    const auto schema = Schema<Thrown>().optional(
        "value", &Thrown::value, [](int) -> std::string { throw std::runtime_error("no"); });
    EXPECT_THROW(describe(schema, Format::toml), std::runtime_error);
}
