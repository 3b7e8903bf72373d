#include "config/readable_table.h"

#include "config/table.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace
{

namespace toml = vorn::parsers::toml;

struct Inner
{
    int value = 1;
};

// What a new one is without, and what it has.
struct Item
{
    std::map<std::string, int> numbers;
    std::map<std::string, int> kept{{"a", 1}};
    std::optional<Inner> optional;
    std::optional<Inner> keptOptional = Inner();
    std::vector<Inner> list;
    std::vector<Inner> keptList{Inner()};
    Inner inner;
};

struct Outer
{
    std::vector<Item> list;
    std::map<std::string, Item> map;
};

const toml::Schema<Inner>& innerSchema()
{
    static const auto schema =
        toml::Schema<Inner>()
            .optional("value", &Inner::value, toml::range(0, 9))
            .check([](const Inner& inner) { return inner.value == 5 ? "is five" : ""; }, {});
    return schema;
}

toml::Schema<Item> itemSchema()
{
    return toml::Schema<Item>()
        .optional("numbers", &Item::numbers)
        .table("optional", &Item::optional, innerSchema())
        .tables("list", &Item::list, innerSchema())
        .tables("kept-list", &Item::keptList, innerSchema())
        .table("inner", &Item::inner, innerSchema());
}

// Whether a list can be said that is the default and has these.
bool isListReadable(const std::vector<Item>& items, const toml::Schema<Item>& item = itemSchema())
{
    const auto schema = toml::Schema<Outer>().tables("list", &Outer::list, item);
    return isReadable(schema.internals()->entries[0], &items, &items);
}

template <typename Change>
bool isReadableWith(Change change)
{
    Item item;
    change(item);
    const bool isReadable = isListReadable({item});
    EXPECT_EQ(isListReadable({item, Item()}), isReadable);
    EXPECT_EQ(isListReadable({Item(), item}), isReadable);
    return isReadable;
}

} // namespace

TEST(ReadableTable, isANewStruct)
{
    EXPECT_TRUE(isListReadable({Item()}));
    EXPECT_TRUE(isListReadable({Item(), Item()}));
}

TEST(ReadableTable, hasMoreThanANewStruct)
{
    EXPECT_TRUE(isReadableWith([](Item& item) { item.numbers = {{"a", 1}}; }));
    EXPECT_TRUE(isReadableWith([](Item& item) { item.optional = Inner{2}; }));
    EXPECT_TRUE(isReadableWith([](Item& item) { item.list = {Inner{2}, Inner{3}}; }));
    EXPECT_TRUE(isReadableWith([](Item& item) { item.inner = Inner{2}; }));
    EXPECT_TRUE(isReadableWith([](Item& item) { item.keptList = {Inner{2}}; }));
}

TEST(ReadableTable, hasNoLessThanANewStruct)
{
    EXPECT_FALSE(isReadableWith([](Item& item) { item.keptList = {}; }));
    // What a new one has in these is not compared: it stays, whatever the document says.
    EXPECT_FALSE(isListReadable({Item()}, toml::Schema<Item>().optional("kept", &Item::kept)));
    EXPECT_FALSE(isListReadable({Item()}, toml::Schema<Item>().required("kept", &Item::kept)));
    EXPECT_FALSE(isListReadable(
        {Item()}, toml::Schema<Item>().table("kept", &Item::keptOptional, innerSchema())));
}

TEST(ReadableTable, hasNoValueThatTheSchemaDoesNotTake)
{
    EXPECT_FALSE(isReadableWith([](Item& item) { item.numbers = {{"\xff", 1}}; }));
    EXPECT_FALSE(isReadableWith([](Item& item) { item.optional = Inner{10}; }));
    EXPECT_FALSE(isReadableWith([](Item& item) { item.list = {Inner{2}, Inner{5}}; }));
    EXPECT_FALSE(isReadableWith([](Item& item) { item.inner = Inner{5}; }));
}

TEST(ReadableTable, mayHaveNames)
{
    const auto schema = toml::Schema<Outer>().tablesByName(
        "map", &Outer::map, toml::Schema<Item>().required("kept", &Item::kept));
    const toml::config::Entry& entry = schema.internals()->entries[0];
    const std::map<std::string, Item> named{{"a", {}}, {"b c", {}}};
    EXPECT_TRUE(isReadable(entry, &named, &named));
    // What is in a map that was there stays, so that it cannot be another one.
    const std::map<std::string, Item> before;
    EXPECT_FALSE(isReadable(entry, &named, &before));
    const std::map<std::string, Item> other{{"a", {}}, {"\xff", {}}};
    EXPECT_FALSE(isReadable(entry, &other, &other));
}
